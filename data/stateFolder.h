#pragma once

#include <filesystem>
#include <optional>

namespace verdalis {

/// The folder for what the program remembers beside the farm: copies of unsaved farms, and recent farms. It
/// is `recovery` in the home folder that the user has named, else the program's folder in the user's state
/// folder. Creates nothing.
/// \throws RunTimeError (fileNotFound) if no home folder is named and the user has none
[[nodiscard]] std::filesystem::path stateFolder(const std::optional<std::filesystem::path>& homeOption);

/// Creates a folder and the missing ones above it, which only the user can enter.
/// \throws RunTimeError (fileNotFound) if it cannot be made; the text says why.
void makePrivateFolder(const std::filesystem::path& folder);

}  // namespace verdalis
