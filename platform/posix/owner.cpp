#include "platform/posix/owner.h"

#include <unistd.h>

namespace verdalis {

namespace fs = std::filesystem;

std::optional<struct stat> statusOf(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

Owner ownerFor(const fs::path& file) {
  const bool isRoot = ::geteuid() == 0;
  const auto old = statusOf(file);
  if (isRoot && old) return {old->st_uid, old->st_gid};
  const auto folder = statusOf(file.has_parent_path() ? file.parent_path() : ".");
  if (!folder) return {};
  if (isRoot && folder->st_uid != 0) return {folder->st_uid, folder->st_gid};
  Owner owner;
  if ((folder->st_mode & S_ISGID) != 0) owner.group = folder->st_gid;
  return owner;
}

}  // namespace verdalis
