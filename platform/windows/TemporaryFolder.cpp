#include "platform/TemporaryFolder.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "platform/TemporaryFile.h"
#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& parent) {
  throw fs::filesystem_error("TemporaryFolder", parent, std::error_code(errno, std::generic_category()));
}

/// Whether an open folder is one, and neither a file nor a link of the user.
bool isPlainFolder(int folder) {
  const DWORD attributes = attributesOf(folder);
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

}  // namespace

TemporaryFolder::TemporaryFolder(const fs::path& parent, std::string_view start) {
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts && descriptor_ < 0; ++attempt) {
    const std::string letters = randomLetters();
    if (letters.empty()) fail(parent);
    path_ = parent / (std::string(start) + letters);
    if (CreateDirectoryW(systemName(path_).c_str(), nullptr) == 0) {
      keepErrno();
      if (errno != EEXIST) fail(parent);
      continue;
    }
    // Others may use the folder but not remove it while it is open. A cleaner may be faster; then another
    // folder is made.
    descriptor_ = openFile(path_, FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING,
                           FILE_FLAG_BACKUP_SEMANTICS);
  }
  if (descriptor_ < 0) fail(parent);
}

TemporaryFolder::~TemporaryFolder() {
  unlock();
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void TemporaryFolder::unlock() {
  if (descriptor_ >= 0) closeFile(descriptor_);
  descriptor_ = -1;
}

void removeAbandonedFolders(const fs::path& parent, std::string_view start) {
  std::error_code error;
  for (fs::directory_iterator entry(parent, error), end; !error && entry != end; entry.increment(error)) {
    if (!isTemporaryName(narrowText(entry->path().filename().native()), start)) continue;
    // This fails for a folder that its program has still open.
    const int folder = openFile(entry->path(), DELETE | FILE_READ_ATTRIBUTES, 0, OPEN_EXISTING,
                                FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT);
    if (folder < 0) continue;
    const bool isOurs = isPlainFolder(folder);
    closeFile(folder);
    if (!isOurs) continue;
    std::error_code ignored;
    fs::remove_all(entry->path(), ignored);
  }
}

}  // namespace verdalis
