#include "data/readFile.h"

#include "data/readBytes.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {

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
