#include "data/owner.h"

#include <sys/stat.h>
#include <unistd.h>

#include <optional>

namespace verdalis {
namespace {

namespace fs = std::filesystem;

std::optional<struct stat> statusOf(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

}  // namespace

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

bool makeFolder(const fs::path& folder, mode_t mode) {
  if (::mkdir(folder.c_str(), mode) != 0) return false;
  if (::geteuid() != 0) return true;
  const auto above = statusOf(folder.has_parent_path() ? folder.parent_path() : ".");
  if (above && above->st_uid != 0) {
    // A file system that has no owners ignores this.
    const int ignored = ::lchown(folder.c_str(), above->st_uid, above->st_gid);
    static_cast<void>(ignored);
  }
  return true;
}

}  // namespace verdalis
