#include "platform/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "platform/TemporaryFile.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// Opens a folder for locking, if it is one and not a link.
int openFolder(const fs::path& folder) {
  constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
  return ::open(folder.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

bool isFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool isOurs(int descriptor) {
  struct stat status {};
  return ::fstat(descriptor, &status) == 0 && status.st_uid == ::geteuid();
}

}  // namespace

TemporaryFolder::TemporaryFolder(const fs::path& parent, std::string_view start) {
  // A cleaner may remove the folder before it is locked; then another one is made.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts && !isFolder(path_); ++attempt) {
    unlock();
    std::string name = (parent / (std::string(start) + "XXXXXX")).string();
    if (::mkdtemp(name.data()) == nullptr) {
      throw fs::filesystem_error("mkdtemp", parent, std::error_code(errno, std::generic_category()));
    }
    path_ = name;
    descriptor_ = openFolder(path_);
    // A file system without locks is no error: no folder can be found abandoned there.
    if (descriptor_ >= 0) static_cast<void>(::flock(descriptor_, LOCK_EX));
  }
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  unlock();
}

void TemporaryFolder::unlock() {
  if (descriptor_ >= 0) ::close(descriptor_);
  descriptor_ = -1;
}

void removeAbandonedFolders(const fs::path& parent, std::string_view start) {
  std::error_code error;
  for (fs::directory_iterator entry(parent, error), end; !error && entry != end; entry.increment(error)) {
    if (!isTemporaryName(entry->path().filename().string(), start)) continue;
    const int folder = openFolder(entry->path());
    if (folder < 0) continue;
    std::error_code ignored;
    // The lock is free only if the program that made the folder has ended.
    if (isOurs(folder) && ::flock(folder, LOCK_EX | LOCK_NB) == 0) fs::remove_all(entry->path(), ignored);
    ::close(folder);
  }
}

}  // namespace verdalis
