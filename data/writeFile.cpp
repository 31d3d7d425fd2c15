#include "data/writeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>

#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

mode_t modeFor(const fs::path& target) {
  struct stat status {};
  if (::stat(target.c_str(), &status) == 0) return status.st_mode & 07777U;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666U & ~mask;
}

/// Follows all symbolic links of a path; the final file need not exist.
/// \returns nothing if the links form a loop.
std::optional<fs::path> behindLinks(fs::path path) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int links = 0; links < mostLinks; ++links) {
    if (!fs::is_symlink(path, error)) return path;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return std::nullopt;
}

/// The errno why a file must not be replaced; 0 if it may be.
int reasonToRefuse(const fs::path& target) {
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (!fs::exists(status)) return 0;
  if (fs::is_directory(status)) return EISDIR;
  // Renaming a file over a device or a pipe would destroy it.
  if (!fs::is_regular_file(status)) return ENXIO;
  // A write-protected file is not replaced.
  return ::access(target.c_str(), W_OK) == 0 ? 0 : errno;
}

}  // namespace

/// A temporary file. The destructor removes it unless moveTo() succeeded.
class FileReplacement::TemporaryFile {
 public:
  /// The temporary name is short, because the target's name may have the maximum length.
  TemporaryFile(const fs::path& beside, mode_t mode)
      : name_((beside.parent_path() / ".saving-XXXXXX").string()) {
    descriptor_ = ::mkstemp(name_.data());
    if (descriptor_ >= 0 && ::fchmod(descriptor_, mode) != 0) close();
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() { close(); }

  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

  [[nodiscard]] bool write(std::string_view bytes) const {
    while (isOpen() && !bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return isOpen();
  }

  [[nodiscard]] bool moveTo(const fs::path& target) {
    if (::fsync(descriptor_) != 0) return false;
    if (::rename(name_.c_str(), target.c_str()) != 0) return false;
    ::close(descriptor_);
    descriptor_ = -1;
    return true;
  }

 private:
  void close() {
    if (!isOpen()) return;
    const int cause = errno;  // keep the errno of the failure
    ::close(descriptor_);
    ::unlink(name_.c_str());
    descriptor_ = -1;
    errno = cause;
  }

  std::string name_;
  int descriptor_ = -1;
};

FileReplacement::FileReplacement(const fs::path& path) : path_(path) {
  const std::optional<fs::path> target = behindLinks(path);
  const int reason = target ? reasonToRefuse(*target) : ELOOP;
  if (reason != 0) fail(reason);
  target_ = *target;
  file_ = std::make_unique<TemporaryFile>(target_, modeFor(target_));
  if (!file_->isOpen()) fail(errno);
}

FileReplacement::~FileReplacement() = default;

void FileReplacement::write(std::string_view bytes) {
  if (!file_->write(bytes)) fail(errno);
}

void FileReplacement::keep() {
  if (!file_->moveTo(target_)) fail(errno);
}

void FileReplacement::fail(int reason) const {
  throw RunTimeError(ErrorNumber::fileNotFound, "The file " + path_.string() + " cannot be written: " +
                                                    std::generic_category().message(reason) + ".");
}

void writeFile(const fs::path& path, std::string_view bytes) {
  FileReplacement file(path);
  file.write(bytes);
  file.keep();
}

}  // namespace verdalis
