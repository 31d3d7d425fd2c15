#pragma once

#include <filesystem>
#include <vector>

namespace verdalis {

/// The files of a folder by name, ignoring case. Folders in it are passed over; every file counts, whatever
/// its extension, hidden ones too. \throws RunTimeError (fileNotFound) when the folder is missing or cannot
/// be listed.
[[nodiscard]] std::vector<std::filesystem::path> filesByName(const std::filesystem::path& folder);

}  // namespace verdalis
