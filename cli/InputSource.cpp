#include "cli/InputSource.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "cli/Interrupt.h"
#include "cli/Messages.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr int millisecondsBetweenLooks = 100;

std::string reasonOf(int error) {
  return std::generic_category().message(error);
}

bool isFolder(int descriptor) {
  struct stat status {};
  return ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::size_t StreamSource::read(char* to, std::size_t size) {
  in_.read(to, static_cast<std::streamsize>(size));
  return static_cast<std::size_t>(in_.gcount());
}

FileSource::FileSource() : name_("standard input"), descriptor_(STDIN_FILENO) {}

FileSource::FileSource(const std::string& path)
    : name_("the file " + path), descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
  int reason = descriptor_ < 0 ? errno : 0;
  if (reason == 0 && isFolder(descriptor_)) {
    ::close(descriptor_);
    reason = EISDIR;
  }
  if (reason != 0) throw Refusal("The file " + path + " cannot be read: " + reasonOf(reason) + ".");
}

FileSource::~FileSource() {
  if (descriptor_ != STDIN_FILENO) ::close(descriptor_);
}

std::size_t FileSource::read(char* to, std::size_t size) {
  while (!Interrupt::requested()) {
    struct pollfd waiting {
      descriptor_, POLLIN, 0
    };
    const int ready = ::poll(&waiting, 1, millisecondsBetweenLooks);
    if (ready == 0 || (ready < 0 && errno == EINTR)) continue;
    const ssize_t count = ::read(descriptor_, to, size);
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR && errno != EAGAIN) {
      throw RunTimeError(ErrorNumber::fileNotFound, name_ + " cannot be read: " + reasonOf(errno) + ".");
    }
  }
  return 0;
}

}  // namespace verdalis
