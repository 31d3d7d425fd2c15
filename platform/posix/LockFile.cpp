#include "platform/LockFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/posix/owner.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// \param create O_CREAT or 0
int openLock(const fs::path& path, int create) {
  const auto openFor = [&](int access) {
    const int flags = access | create | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    return ::open(path.c_str(), flags, 0644);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  };
  // Network file systems lock only what may be written, others also a file of another user.
  const int descriptor = openFor(O_RDWR);
  return descriptor < 0 && (errno == EACCES || errno == EROFS) ? openFor(O_RDONLY) : descriptor;
}

bool lockNow(int descriptor, int kind) {
  int result = 0;
  do
    result = ::flock(descriptor, kind | LOCK_NB);
  while (result != 0 && errno == EINTR);
  return result == 0;
}

/// As lockNow, but is patient with a program that holds the lock only to look at it.
bool lockSoon(int descriptor) {
  constexpr int mostAttempts = 10;
  for (int attempt = 1; !lockNow(descriptor, LOCK_EX); ++attempt) {
    if (errno != EWOULDBLOCK || attempt == mostAttempts) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

/// Whether the file behind a path is still the one that was opened.
bool isNamed(int descriptor, const fs::path& path) {
  struct stat opened {};
  struct stat named {};
  return ::fstat(descriptor, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

void close(int descriptor) {
  const int cause = errno;  // keep the errno of a failure
  ::close(descriptor);
  errno = cause;
}

}  // namespace

LockFile::LockFile(const fs::path& path) : path_(path) {
  // The former holder may remove the file before it is locked; then another one is created.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    const Owner owner = ownerFor(path);
    const int descriptor = openLock(path, O_CREAT);
    if (descriptor < 0) return;
    // A file system that has no owners ignores this.
    const int ignored = ::fchown(descriptor, owner.user, owner.group);
    static_cast<void>(ignored);
    const bool locked = lockSoon(descriptor);
    if (locked && isNamed(descriptor, path)) {
      descriptor_ = descriptor;
      return;
    }
    close(descriptor);
    if (!locked) return;
  }
  errno = EAGAIN;
}

LockFile::~LockFile() {
  if (descriptor_ < 0) return;
  if (isHeld()) ::unlink(path_.c_str());  // while it is locked
  ::close(descriptor_);
}

bool LockFile::isHeld() const {
  return descriptor_ >= 0 && isNamed(descriptor_, path_);
}

bool isHeldByAnyone(const fs::path& path) {
  const int descriptor = openLock(path, 0);
  if (descriptor < 0) return errno != ENOENT;
  // Several programs may look at it at once.
  const bool isFree = lockNow(descriptor, LOCK_SH);
  close(descriptor);
  return !isFree;
}

}  // namespace verdalis
