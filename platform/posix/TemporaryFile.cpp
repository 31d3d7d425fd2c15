#include "platform/TemporaryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "platform/posix/owner.h"

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

/// A path that leads to an open file, whether it has a name or not.
std::string pathOf(int descriptor) {
  return "/proc/self/fd/" + std::to_string(descriptor);
}

/// Gives a name to a file that has none.
/// \returns false if that failed, for example because the name is taken (EEXIST).
bool giveName(int descriptor, const fs::path& name) {
  return ::linkat(AT_FDCWD, pathOf(descriptor).c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

/// A name as mkostemp makes them; empty if the system has no random numbers.
std::string randomName() {
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::array<unsigned char, pattern.size()> bytes{};
  if (::getentropy(bytes.data(), bytes.size()) != 0) return {};
  std::string name(prefix);
  for (const unsigned char byte : bytes)
    name += letters[byte % letters.size()];
  return name;
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

TemporaryFile::TemporaryFile(const fs::path& folder, Naming naming) : folder_(folder) {
  if (naming == Naming::whenComplete && createWithoutName(folder)) return;
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
  std::string name = (folder / (std::string(prefix) + std::string(pattern))).string();
  descriptor_ = ::mkostemp(name.data(), O_CLOEXEC);
  name_ = name;
}

bool TemporaryFile::createWithoutName(const fs::path& folder) {
  constexpr int flags = O_TMPFILE | O_RDWR | O_CLOEXEC;
  descriptor_ = ::open(folder.c_str(), flags, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  // It gets its name by this path, which needs /proc.
  if (isOpen() && ::access(pathOf(descriptor_).c_str(), F_OK) != 0) close();
  if (isOpen()) lock(descriptor_);
  return isOpen();
}

void TemporaryFile::giveToOwnerOf(const fs::path& target) const {
  const Owner owner = ownerFor(target);
  // A file system that has no owners ignores this.
  const int ignored = ::fchown(descriptor_, owner.user, owner.group);
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

bool TemporaryFile::putInto(const fs::path& target, const fs::path& step) {
  if (name_.empty() && giveName(descriptor_, target)) return true;
  // Giving a name does not replace a file, but renaming does.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts && name_.empty(); ++attempt) {
    if (errno != EEXIST) return false;
    const fs::path name = step.empty() ? folder_ / randomName() : step;
    if (giveName(descriptor_, name)) name_ = name;
  }
  return !name_.empty() && ::rename(name_.c_str(), target.c_str()) == 0;
}

bool TemporaryFile::moveTo(const fs::path& target, fs::perms permissions, const fs::path& step) {
  if (::fchmod(descriptor_, static_cast<mode_t>(permissions)) != 0 || ::fsync(descriptor_) != 0) return false;
  if (!putInto(target, step)) return false;
  ::close(descriptor_);
  descriptor_ = -1;
  return true;
}

void TemporaryFile::close() {
  if (!isOpen()) return;
  const int cause = errno;                      // keep the errno of the failure
  if (!name_.empty()) ::unlink(name_.c_str());  // while it is locked
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
