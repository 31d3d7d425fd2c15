#include "platform/InputFile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace verdalis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail() {
  throw std::system_error(errno, std::generic_category());
}

struct stat statusOf(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) fail();
  return status;
}

InputFile::Kind kindOf(const struct stat& status) {
  if (S_ISDIR(status.st_mode)) return InputFile::Kind::folder;
  return S_ISREG(status.st_mode) ? InputFile::Kind::regular : InputFile::Kind::other;
}

}  // namespace

InputFile::Kind kindOf(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) fail();
  return kindOf(status);
}

InputFile::InputFile() : descriptor_(STDIN_FILENO) {}

InputFile::InputFile(const fs::path& path, Opening opening) : isOwn_(true) {
  const int flags = O_RDONLY | O_NOCTTY | O_CLOEXEC | (opening == Opening::atOnce ? O_NONBLOCK : 0);
  descriptor_ = ::open(path.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  if (descriptor_ < 0) fail();
}

InputFile::~InputFile() {
  if (isOwn_) ::close(descriptor_);
}

InputFile::Kind InputFile::kind() const {
  return kindOf(statusOf(descriptor_));
}

std::uintmax_t InputFile::size() const {
  return static_cast<std::uintmax_t>(statusOf(descriptor_).st_size);
}

bool InputFile::isReadyWithin(std::chrono::milliseconds time) const {
  struct pollfd waiting {
    descriptor_, POLLIN, 0
  };
  const int ready = ::poll(&waiting, 1, static_cast<int>(time.count()));
  return ready > 0 || (ready < 0 && errno != EINTR);  // an error is told by reading
}

std::optional<std::size_t> InputFile::read(char* to, std::size_t size) {
  const ssize_t count = ::read(descriptor_, to, size);
  if (count >= 0) return static_cast<std::size_t>(count);
  if (errno != EINTR && errno != EAGAIN) fail();
  return std::nullopt;
}

}  // namespace verdalis
