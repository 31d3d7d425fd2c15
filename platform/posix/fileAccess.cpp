#include "platform/fileAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "platform/posix/owner.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

int errorOfAccess(const fs::path& path, int wanted) {
  return ::access(path.c_str(), wanted) == 0 ? 0 : errno;
}

std::optional<struct statx> mountOf(const fs::path& folder) {
  constexpr unsigned wanted = STATX_TYPE | STATX_MNT_ID;
  struct statx status {};
  if (::statx(AT_FDCWD, folder.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &status) != 0) return std::nullopt;
  return status;
}

}  // namespace

bool mayRead(const fs::path& file) {
  return errorOfAccess(file, R_OK) == 0;
}

int errorOfCreatingIn(const fs::path& folder) {
  return errorOfAccess(folder, W_OK | X_OK);
}

int errorOfReplacing(const fs::path& file) {
  return errorOfAccess(file, W_OK);
}

int errorOfOpening(const fs::path& file) {
  constexpr int flags = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
  const int descriptor = ::open(file.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  if (descriptor < 0) return errno;
  ::close(descriptor);
  return 0;
}

fs::perms permissionsFor(const fs::path& file) {
  if (const auto status = statusOf(file)) return static_cast<fs::perms>(status->st_mode & 07777U);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return static_cast<fs::perms>(0666U & ~mask);
}

bool makeFolder(const fs::path& folder, FolderUse use) {
  if (::mkdir(folder.c_str(), use == FolderUse::onlyTheUser ? 0700 : 0777) != 0) return false;
  if (::geteuid() != 0) return true;
  const auto above = statusOf(folder.has_parent_path() ? folder.parent_path() : ".");
  if (above && above->st_uid != 0) {
    // A file system that has no owners ignores this.
    const int ignored = ::lchown(folder.c_str(), above->st_uid, above->st_gid);
    static_cast<void>(ignored);
  }
  return true;
}

void removeEmptyFolder(const fs::path& folder) {
  ::rmdir(folder.c_str());
}

bool canRenameBetween(const fs::path& one, const fs::path& two) {
  const auto first = mountOf(one);
  if (!first) return false;
  std::error_code error;
  const auto second = mountOf(fs::canonical(two, error));
  errno = 0;
  return second && S_ISDIR(first->stx_mode) && S_ISDIR(second->stx_mode) &&
         first->stx_dev_major == second->stx_dev_major && first->stx_dev_minor == second->stx_dev_minor &&
         first->stx_mnt_id == second->stx_mnt_id;
}

}  // namespace verdalis
