#pragma once

#include <filesystem>
#include <vector>

namespace verdalis {

/// The files in a folder, sorted by name ignoring case. Includes every extension and hidden files, but no
/// subfolders.
/// \throws RunTimeError (fileNotFound) if the folder is missing or cannot be listed.
[[nodiscard]] std::vector<std::filesystem::path> filesByName(const std::filesystem::path& folder);

}  // namespace verdalis
