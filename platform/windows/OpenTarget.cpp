#include "platform/OpenTarget.h"

#include <system_error>

#include "platform/windows/system.h"
#include "text/RunTimeError.h"

namespace verdalis {

namespace fs = std::filesystem;

bool isOpenTarget(const fs::path& path) {
  std::error_code error;
  return isDeviceName(path) || fs::is_other(fs::status(path, error));
}

OpenTarget::OpenTarget(const fs::path& path)
    : name_(path.string()),
      descriptor_(openFile(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, 0)) {
  if (descriptor_ < 0) fail();
}

OpenTarget::~OpenTarget() {
  if (descriptor_ >= 0) closeFile(descriptor_);
}

void OpenTarget::write(std::string_view bytes) const {
  if (!writeAll(descriptor_, bytes)) fail();
}

void OpenTarget::fail() const {
  throw RunTimeError(ErrorNumber::fileNotFound, "The result cannot be written to " + name_ + ".");
}

}  // namespace verdalis
