#pragma once

#include <filesystem>
#include <vector>

namespace verdalis {

/// Whether the name of a file begins with a dot. Such a file is no crop file, whatever it contains: it may
/// belong to another program, or be one that is being written.
[[nodiscard]] bool isHidden(const std::filesystem::path& path);

/// The files in a folder, sorted by name ignoring case. Includes every extension, but no hidden files and no
/// subfolders.
/// \throws RunTimeError (fileNotFound) if the folder is missing or cannot be listed.
[[nodiscard]] std::vector<std::filesystem::path> filesByName(const std::filesystem::path& folder);

}  // namespace verdalis
