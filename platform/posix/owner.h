#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>

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

/// What the system knows of the file that a path leads to; nothing if there is none.
[[nodiscard]] std::optional<struct stat> statusOf(const std::filesystem::path& path);

}  // namespace verdalis
