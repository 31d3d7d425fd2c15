#pragma once

#include <filesystem>

namespace verdalis {

/// Whether this user may read a file.
[[nodiscard]] bool mayRead(const std::filesystem::path& file);

/// Whether this user may create files in a folder.
/// \returns 0 if so, else the errno that says why not
[[nodiscard]] int errorOfCreatingIn(const std::filesystem::path& folder);

/// Whether an existing file may be replaced, or is protected against writing.
/// \returns 0 if it may be, else the errno that says why not
[[nodiscard]] int errorOfReplacing(const std::filesystem::path& file);

/// Tries to open an existing file for writing, and changes nothing. Another program may have it open so that
/// nobody else can write it.
/// \returns 0 if it can be opened, else the errno that says why not
[[nodiscard]] int errorOfOpening(const std::filesystem::path& file);

/// The permissions of a file, or those that a new file gets.
[[nodiscard]] std::filesystem::perms permissionsFor(const std::filesystem::path& file);

/// Who may use a new folder.
enum class FolderUse { everyone, onlyTheUser };

/// Creates a folder, which root gives to the owner of the folder above it.
/// \returns false if it could not be created; errno says why.
bool makeFolder(const std::filesystem::path& folder, FolderUse use = FolderUse::everyone);

/// Removes a folder if it is empty. Leaves anything else.
void removeEmptyFolder(const std::filesystem::path& folder);

/// Whether both are folders, the first not by a link, and files can be renamed from one into the other.
/// \returns false, with errno, if that cannot be found out
[[nodiscard]] bool canRenameBetween(const std::filesystem::path& one, const std::filesystem::path& two);

}  // namespace verdalis
