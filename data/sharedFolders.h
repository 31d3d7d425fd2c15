#pragma once

#include <filesystem>
#include <vector>

namespace verdalis {

/// The folders that may contain what comes with the program (`crops`, `help` and `examples`), in the order in
/// which to look: where an installation puts them, as seen from the program, so that the whole may be moved,
/// and then the source tree. The build names the source tree in the file `verdalis-source.txt` beside the
/// program, because an installed program must not look in a folder of the machine that built it.
/// \param program folder of the program.
[[nodiscard]] std::vector<std::filesystem::path> sharedFolders(const std::filesystem::path& program);

}  // namespace verdalis
