#pragma once

#include <cstdio>

namespace verdalis {

/// Opens a new file for writing and reading that goes away when it is closed, even if the program is killed.
/// \returns null if there is no place for it
[[nodiscard]] std::FILE* openScratchFile();

}  // namespace verdalis
