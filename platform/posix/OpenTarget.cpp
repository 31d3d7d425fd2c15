#include "platform/OpenTarget.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <system_error>

#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// An open file by its entry in a folder of /proc. Reading that link would give the name of the file behind.
struct OpenFile {
  fs::path folder;  ///< Without links, such as /proc/123/fd
  int descriptor = -1;
};

std::optional<int> descriptorOf(const std::string& name) {
  int descriptor = -1;
  const char* const end = name.data() + name.size();
  const auto [stop, error] = std::from_chars(name.data(), end, descriptor);
  if (error != std::errc() || stop != end || descriptor < 0) return std::nullopt;
  return descriptor;
}

std::optional<OpenFile> openFileOf(const fs::path& path) {
  const std::optional<int> descriptor = descriptorOf(path.filename().string());
  if (!descriptor) return std::nullopt;
  std::error_code error;
  const fs::path folder = fs::canonical(path.parent_path(), error);
  if (error || folder.filename() != "fd" || !folder.string().starts_with("/proc/")) return std::nullopt;
  return OpenFile{folder, *descriptor};
}

/// The open file that a path leads to through any number of links.
std::optional<OpenFile> openFileBehind(fs::path path) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int links = 0; links < mostLinks; ++links) {
    if (std::optional<OpenFile> file = openFileOf(path)) return file;
    if (!fs::is_symlink(path, error)) return std::nullopt;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return std::nullopt;
}

bool isOurs(const OpenFile& file) {
  std::error_code error;
  const fs::path process = fs::canonical("/proc/self", error);
  return !error && (file.folder.string() + "/").starts_with(process.string() + "/");
}

/// Opening the link of a file would give it a new position at its start, so a file of this process is
/// duplicated.
int open(const fs::path& path) {
  const std::optional<OpenFile> file = openFileBehind(path);
  if (file && isOurs(*file)) {
    return ::fcntl(file->descriptor, F_DUPFD_CLOEXEC, 0);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  }
  constexpr int flags = O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY;
  return ::open(path.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

}  // namespace

bool isOpenTarget(const fs::path& path) {
  std::error_code error;
  return fs::is_other(fs::status(path, error)) || openFileBehind(path).has_value();
}

OpenTarget::OpenTarget(const fs::path& path) : name_(path.string()), descriptor_(open(path)) {
  if (descriptor_ < 0) fail();
}

OpenTarget::~OpenTarget() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void OpenTarget::write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OpenTarget::fail() const {
  throw RunTimeError(ErrorNumber::fileNotFound, "The result cannot be written to " + name_ + ".");
}

}  // namespace verdalis
