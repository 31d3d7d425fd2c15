#pragma once

#include <sys/stat.h>

#include <filesystem>

namespace verdalis {

/// The owner and the group of a file; -1 stands for the usual one.
struct Owner {
  uid_t user = static_cast<uid_t>(-1);
  gid_t group = static_cast<gid_t>(-1);
};

/// The owner that a file gets when it is created or replaced. Root does not take files from their users: it
/// keeps the owner and group of the old file, and gives a new file to the owner of its folder. Otherwise only
/// a folder that passes on its group decides.
[[nodiscard]] Owner ownerFor(const std::filesystem::path& file);

/// Creates a folder, which root gives to the owner of the folder above it.
/// \returns false if it could not be created; errno says why.
bool makeFolder(const std::filesystem::path& folder, mode_t mode = 0777);

}  // namespace verdalis
