#pragma once

#include <string>
#include <string_view>

namespace verdalis {

/// A text in double quotation marks for use within a message: on one line, in UTF-8, and cut to its first 40
/// characters and "..." where it is longer.
[[nodiscard]] std::string quoteForMessage(std::string_view text);

}  // namespace verdalis
