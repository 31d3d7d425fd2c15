#pragma once

#include <string>

namespace verdalis {

/// Version and build number, for example "1.16" and "002". Both are set in the top CMakeLists.txt.
[[nodiscard]] const std::string& versionNumber();
[[nodiscard]] const std::string& buildNumber();

/// Text printed by --version, for example "1.16 build 002".
[[nodiscard]] std::string versionText();

}  // namespace verdalis
