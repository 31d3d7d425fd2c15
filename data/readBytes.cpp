#include "data/readBytes.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <system_error>

#include "data/readFile.h"
#include "platform/InputFile.h"
#include "platform/errors.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, const std::string& reason) {
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "The file " + path.string() + " cannot be read: " + reason + ".");
}

[[noreturn]] void failForSize(const fs::path& path) {
  fail(path, "It has more than " + std::to_string(maxFileSize >> 20U) + " MB");
}

void requireRegular(const fs::path& path, InputFile::Kind kind) {
  if (kind == InputFile::Kind::folder) fail(path, "It is a folder");
  if (kind != InputFile::Kind::regular) fail(path, "It is a device or a pipe");
}

std::string bytesOf(const fs::path& path) {
  requireRegular(path, kindOf(path));  // opening a device may already have effects
  // It may have become a pipe since it was looked at.
  InputFile file(path, InputFile::Opening::atOnce);
  requireRegular(path, file.kind());
  const std::uintmax_t size = file.size();
  if (size > maxFileSize) failForSize(path);
  // The file may grow or shrink meanwhile. One byte more shows its end.
  std::string bytes(static_cast<std::size_t>(size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    if (length == bytes.size()) bytes.resize(std::min<std::size_t>(2 * bytes.size(), maxFileSize + 1));
    const std::optional<std::size_t> count = file.read(bytes.data() + length, bytes.size() - length);
    if (!count) continue;
    if (*count == 0) break;
    length += *count;
    if (length > maxFileSize) failForSize(path);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace

std::string readBytes(const fs::path& path) {
  try {
    return bytesOf(path);
  } catch (const std::system_error& error) {
    fail(path, reasonText(error.code()));
  }
}

}  // namespace verdalis
