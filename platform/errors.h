#pragma once

#include <string>
#include <system_error>

namespace verdalis {

/// The reason behind an error in words, as "No such file or directory": in English in UTF-8 on every system,
/// as all texts of the program.
[[nodiscard]] std::string reasonText(const std::error_code& error);

}  // namespace verdalis
