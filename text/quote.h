#pragma once

#include <string>
#include <string_view>

namespace verdalis {

/// Puts a text in double quotation marks for a message: on one line, in UTF-8, and cut after 40 characters,
/// with "..." added, if it is longer.
[[nodiscard]] std::string quoteForMessage(std::string_view text);

}  // namespace verdalis
