#include "data/farmFile.h"

#include <system_error>

#include "data/readBytes.h"
#include "data/readFile.h"
#include "data/writeFile.h"
#include "text/RunTimeError.h"

namespace verdalis {

namespace fs = std::filesystem;

FileStamp stampOf(std::string_view bytes) {
  // FNV-1a. Texts of the same length that differ in one byte never have the same hash.
  constexpr std::uint64_t start = 0xcbf29ce484222325;
  constexpr std::uint64_t prime = 0x100000001b3;
  std::uint64_t hash = start;
  for (const char byte : bytes)
    hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
  return {bytes.size(), hash};
}

FarmFile readFarmFile(const fs::path& path) {
  FarmFile file{readBytes(path), {}};
  file.stamp = stampOf(file.text);
  return file;
}

FileStamp writeFarmFile(const fs::path& path, std::string_view text) {
  if (text.size() > maxFileSize) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The file " + path.string() +
                                                      " cannot be written: It would have more than " +
                                                      std::to_string(maxFileSize >> 20U) + " MB.");
  }
  FileReplacement file(path, TemporaryFile::Naming::whenComplete);
  file.write(text);
  file.keep();
  return stampOf(text);
}

FileChange changeSince(const fs::path& path, const FileStamp& stamp) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return FileChange::gone;
  if (fs::is_regular_file(status)) {
    const std::uintmax_t size = fs::file_size(path, error);
    if (!error && size != stamp.size) return FileChange::changed;  // without reading it
  }
  try {
    return stampOf(readBytes(path)) == stamp ? FileChange::unchanged : FileChange::changed;
  } catch (const RunTimeError&) {
    return FileChange::changed;
  }
}

}  // namespace verdalis
