#include "platform/LockFile.h"

#include <cerrno>
#include <system_error>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

// The lock is that nobody else can open the file. The system closes it with its program, and removes it then.
int openLock(const fs::path& path) {
  return openFile(path, GENERIC_READ | GENERIC_WRITE | DELETE, 0, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE);
}

bool isInUse(DWORD error) {
  // A file that is about to go says so by refusing access.
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

}  // namespace

LockFile::LockFile(const fs::path& path) : path_(path) {
  // Is patient with a program that has the file open only to look at it.
  constexpr int mostAttempts = 10;
  for (int attempt = 1;; ++attempt) {
    descriptor_ = openLock(path);
    if (descriptor_ >= 0) return;
    const bool inUse = isInUse(GetLastError());
    if (!inUse) return;
    if (attempt == mostAttempts) {
      std::error_code error;
      errno = fs::exists(path, error) ? EWOULDBLOCK : EACCES;
      return;
    }
    Sleep(10);
  }
}

LockFile::~LockFile() {
  if (descriptor_ >= 0) closeFile(descriptor_);
}

bool LockFile::isHeld() const {
  return descriptor_ >= 0;  // while it is open, nobody can remove it
}

bool isHeldByAnyone(const fs::path& path) {
  const int descriptor = openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  if (descriptor < 0) return errno != ENOENT;
  closeFile(descriptor);
  return false;
}

}  // namespace verdalis
