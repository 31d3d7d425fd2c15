#include "data/readBytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "data/readFile.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, const std::string& reason) {
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "The file " + path.string() + " cannot be read: " + reason + ".");
}

[[noreturn]] void failForErrno(const fs::path& path) {
  fail(path, std::generic_category().message(errno));
}

[[noreturn]] void failForSize(const fs::path& path) {
  fail(path, "It has more than " + std::to_string(maxFileSize >> 20U) + " MB");
}

/// An open file. The destructor closes it.
class OpenFile {
 public:
  explicit OpenFile(const fs::path& path) {
    // Without waiting for a writer, if the path has become a pipe since it was looked at.
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    descriptor_ = ::open(path.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }

  [[nodiscard]] int descriptor() const { return descriptor_; }

 private:
  int descriptor_ = -1;
};

void requireRegular(const fs::path& path, const struct stat& status) {
  if (S_ISDIR(status.st_mode)) fail(path, "It is a folder");
  if (!S_ISREG(status.st_mode)) fail(path, "It is a device or a pipe");
}

}  // namespace

std::string readBytes(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) failForErrno(path);
  requireRegular(path, status);  // opening a device may already have effects
  const OpenFile file(path);
  if (file.descriptor() < 0 || ::fstat(file.descriptor(), &status) != 0) failForErrno(path);
  requireRegular(path, status);
  const auto size = static_cast<std::uintmax_t>(status.st_size);
  if (size > maxFileSize) failForSize(path);
  // The file may grow or shrink meanwhile. One byte more shows its end.
  std::string bytes(static_cast<std::size_t>(size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    if (length == bytes.size()) bytes.resize(std::min<std::size_t>(2 * bytes.size(), maxFileSize + 1));
    const ssize_t count = ::read(file.descriptor(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) failForErrno(path);
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
    if (length > maxFileSize) failForSize(path);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace verdalis
