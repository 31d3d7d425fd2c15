#pragma once

#include <filesystem>
#include <optional>

namespace verdalis {

/// The folder of the running program; empty if the system does not tell.
[[nodiscard]] std::filesystem::path programFolder();

/// This program's folder for the data of the user, which go with the user to other machines: below
/// XDG_DATA_HOME or HOME, on Windows below APPDATA. Empty if the user has no such folder.
[[nodiscard]] std::optional<std::filesystem::path> userDataFolder();

/// This program's folder for what it remembers between two runs on this machine: below XDG_STATE_HOME or
/// HOME, on Windows below LOCALAPPDATA. Empty if the user has no such folder.
[[nodiscard]] std::optional<std::filesystem::path> userStateFolder();

/// The variable of the environment that is missing if the user has none of these folders.
extern const char* const userFolderVariable;

}  // namespace verdalis
