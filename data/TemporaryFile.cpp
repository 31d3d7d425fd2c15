#include "data/TemporaryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".saving-";
constexpr std::string_view pattern = "XXXXXX";  // replaced by mkostemp

/// Locks an open file, or waits if a cleaner holds the lock for a moment. A file system without locks is no
/// error: no file can be found abandoned there.
void lock(int descriptor) {
  while (::flock(descriptor, LOCK_EX) != 0 && errno == EINTR) {
  }
}

bool hasName(int descriptor) {
  struct stat status {};
  return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

/// Whether an open file is a regular file of this user, or of anyone if this is root, and still has the name
/// by which it was opened.
bool isOurs(int descriptor, const fs::path& file) {
  struct stat opened {};
  struct stat named {};
  return ::fstat(descriptor, &opened) == 0 && ::lstat(file.c_str(), &named) == 0 && S_ISREG(opened.st_mode) &&
         (opened.st_uid == ::geteuid() || ::geteuid() == 0) && opened.st_dev == named.st_dev &&
         opened.st_ino == named.st_ino;
}

void removeIfAbandoned(const fs::path& file) {
  constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const int descriptor = ::open(file.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  if (descriptor < 0) return;
  // The lock is free only if the program that created the file has ended.
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isOurs(descriptor, file)) ::unlink(file.c_str());
  ::close(descriptor);
}

}  // namespace

bool isTemporaryName(std::string_view name, std::string_view start) {
  const auto isLetterOrDigit = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  };
  return name.size() == start.size() + pattern.size() && name.starts_with(start) &&
         std::all_of(name.begin() + start.size(), name.end(), isLetterOrDigit);
}

TemporaryFile::TemporaryFile(const fs::path& folder) {
  // A cleaner may remove the file before it is locked; then another one is created.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    create(folder);
    if (!isOpen()) return;
    lock(descriptor_);
    if (hasName(descriptor_)) return;
    close();
  }
  errno = EAGAIN;
}

TemporaryFile::~TemporaryFile() {
  close();
}

void TemporaryFile::create(const fs::path& folder) {
  name_ = (folder / (std::string(prefix) + std::string(pattern))).string();
  descriptor_ = ::mkostemp(name_.data(), O_CLOEXEC);
}

void TemporaryFile::giveTo(uid_t owner, gid_t group) const {
  const int ignored = ::fchown(descriptor_, owner, group);
  static_cast<void>(ignored);
}

bool TemporaryFile::write(std::string_view bytes) const {
  while (isOpen() && !bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return isOpen();
}

bool TemporaryFile::moveTo(const fs::path& target, mode_t mode) {
  if (::fchmod(descriptor_, mode) != 0 || ::fsync(descriptor_) != 0) return false;
  if (::rename(name_.c_str(), target.c_str()) != 0) return false;
  ::close(descriptor_);
  descriptor_ = -1;
  return true;
}

void TemporaryFile::close() {
  if (!isOpen()) return;
  const int cause = errno;  // keep the errno of the failure
  ::unlink(name_.c_str());  // while it is locked
  ::close(descriptor_);
  descriptor_ = -1;
  errno = cause;
}

void removeAbandonedFiles(const fs::path& folder) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (isTemporaryName(entry->path().filename().string(), prefix)) removeIfAbandoned(entry->path());
  }
}

}  // namespace verdalis
