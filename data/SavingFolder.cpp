#include "data/SavingFolder.h"

#include <cerrno>
#include <system_error>

#include "platform/TemporaryFile.h"
#include "platform/fileAccess.h"

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

}  // namespace

SavingFolder::SavingFolder(const fs::path& targets) {
  const std::optional<fs::path> saving = savingPath(targets);
  if (!saving) return;
  // Another process may remove the folder before it is looked at.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    if (!makeFolder(*saving, FolderUse::onlyTheUser) && errno != EEXIST) return;
    if (canRenameBetween(*saving, targets)) {
      path_ = saving;
      return;
    }
    if (errno == ENOENT) continue;
    removeEmptyFolder(*saving);
    return;
  }
}

SavingFolder::~SavingFolder() {
  if (!path_) return;
  const int cause = errno;  // keep the errno of a failure
  removeEmptyFolder(*path_);
  errno = cause;
}

void clearLeftovers(const fs::path& home) {
  const fs::path crops = home / "crops";
  if (const std::optional<fs::path> saving = savingPath(crops)) {
    removeAbandonedFiles(*saving);
    removeEmptyFolder(*saving);
  }
  for (const fs::path& folder : {home, crops, crops / "custom"})
    removeAbandonedFiles(folder);
}

}  // namespace verdalis
