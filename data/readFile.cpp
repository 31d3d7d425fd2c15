#include "data/readFile.h"

#include <fstream>
#include <system_error>

#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {

std::string readBytes(const std::filesystem::path& path) {
  const auto fail = [&] {
    throw RunTimeError(ErrorNumber::fileNotFound, "The file " + path.string() + " cannot be read.");
  };
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) fail();
  const auto size = std::filesystem::file_size(path, error);
  if (error || size > maxFileSize) fail();
  std::ifstream file(path, std::ios::binary);
  std::string bytes(size, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(size));
  if (file.bad() || !file.is_open()) fail();
  bytes.resize(static_cast<std::size_t>(file.gcount()));  // the file may have shrunk in the meantime
  return bytes;
}

std::string readFile(const std::filesystem::path& path) {
  return decodeText(readBytes(path));
}

std::string_view LineReader::next() {
  if (rest_.empty()) throw RunTimeError(ErrorNumber::invalidCall, "The file ends too early.");
  const std::size_t end = rest_.find_first_of("\r\n");
  const std::string_view line = rest_.substr(0, end);
  if (end == std::string_view::npos) {
    rest_ = {};
  } else {
    rest_.remove_prefix(end + (rest_.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return line;
}

}  // namespace verdalis
