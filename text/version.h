#pragma once

#include <string>

namespace verdalis {

/// The number of the version and that of its build, as in "1.16" and "002". The top CMakeLists.txt sets both.
[[nodiscard]] const std::string& versionNumber();
[[nodiscard]] const std::string& buildNumber();

/// What --version prints, as in "1.16 build 002".
[[nodiscard]] std::string versionText();

}  // namespace verdalis
