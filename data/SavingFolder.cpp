#include "data/SavingFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "data/TemporaryFile.h"
#include "data/owner.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// The place of `.saving` for files of a folder; nothing if that folder is not read for crops.
std::optional<fs::path> savingPath(const fs::path& targets) {
  std::error_code error;
  fs::path folder = fs::canonical(targets, error);
  if (error) return std::nullopt;
  if (folder.filename() != "crops") folder = folder.parent_path();
  if (folder.filename() != "crops") return std::nullopt;
  return folder.parent_path() / ".saving";
}

std::optional<struct statx> statusOf(const fs::path& folder) {
  constexpr unsigned wanted = STATX_TYPE | STATX_MNT_ID;
  struct statx status {};
  if (::statx(AT_FDCWD, folder.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &status) != 0) return std::nullopt;
  return status;
}

/// Whether files can be renamed from one folder into the other.
bool onSameMount(const struct statx& first, const fs::path& two) {
  std::error_code error;
  const auto second = statusOf(fs::canonical(two, error));
  return second && S_ISDIR(first.stx_mode) && S_ISDIR(second->stx_mode) &&
         first.stx_dev_major == second->stx_dev_major && first.stx_dev_minor == second->stx_dev_minor &&
         first.stx_mnt_id == second->stx_mnt_id;
}

}  // namespace

SavingFolder::SavingFolder(const fs::path& targets) {
  const std::optional<fs::path> saving = savingPath(targets);
  if (!saving) return;
  // Another process may remove the folder before it is looked at.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    if (!makeFolder(*saving, 0700) && errno != EEXIST) return;
    const auto made = statusOf(*saving);
    if (!made && errno == ENOENT) continue;
    if (made && onSameMount(*made, targets)) {
      path_ = saving;
    } else {
      ::rmdir(saving->c_str());
    }
    return;
  }
}

SavingFolder::~SavingFolder() {
  if (!path_) return;
  const int cause = errno;  // keep the errno of a failure
  ::rmdir(path_->c_str());
  errno = cause;
}

void clearLeftovers(const fs::path& home) {
  const fs::path crops = home / "crops";
  if (const std::optional<fs::path> saving = savingPath(crops)) {
    removeAbandonedFiles(*saving);
    ::rmdir(saving->c_str());
  }
  for (const fs::path& folder : {home, crops, crops / "custom"})
    removeAbandonedFiles(folder);
}

}  // namespace verdalis
