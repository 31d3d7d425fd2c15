#include "xlsx/ArchiveCopy.h"

#include <array>
#include <cstddef>
#include <fstream>
#include <utility>

#include "xlsx/library.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t atOnce = std::size_t{1} << 16U;  // bytes
constexpr zip_uint16_t firstDay = 1U << 5U | 1U;       // 1980-01-01
constexpr zip_uint32_t compression = 6;                // the usual one

struct CloseFile {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};

void requireOf(zip_t* archive, bool fine) {
  if (!fine) failToMake(zip_strerror(archive));
}

}  // namespace

ArchiveCopy::ArchiveCopy(const fs::path& from, fs::path folder)
    : from_(open(from, ZIP_RDONLY)), folder_(std::move(folder)) {}

ArchiveCopy::Handle ArchiveCopy::open(const fs::path& file, int flags) {
  int error = 0;
  if (zip_t* const archive = zip_open(libraryPath(file).c_str(), flags, &error)) return Handle(archive);
  zip_error_t reason;
  zip_error_init_with_code(&reason, error);
  const std::string text = zip_error_strerror(&reason);
  zip_error_fini(&reason);
  failToMake(text);
}

void ArchiveCopy::change(const std::string& part, const Change& change) {
  const zip_int64_t found = zip_name_locate(from_.get(), part.c_str(), 0);
  requireOf(from_.get(), found >= 0);
  const auto index = static_cast<zip_uint64_t>(found);
  const std::unique_ptr<zip_file_t, CloseFile> in(zip_fopen_index(from_.get(), index, 0));
  requireOf(from_.get(), in != nullptr);
  const fs::path to = folder_ / ("part" + std::to_string(index) + ".xml");
  std::ofstream out(to, std::ios::binary | std::ios::trunc);
  std::array<char, atOnce> bytes{};
  std::string rest;  // of what was read, the piece that has no end yet
  std::string ready;
  zip_int64_t count = 0;
  while (out && (count = zip_fread(in.get(), bytes.data(), bytes.size())) > 0) {
    rest.append(bytes.data(), static_cast<std::size_t>(count));
    std::size_t done = 0;
    for (std::size_t end = 0; (end = rest.find('>', done)) != std::string::npos; done = end + 1)
      change(std::string_view(rest).substr(done, end + 1 - done), ready);
    rest.erase(0, done);
    out.write(ready.data(), static_cast<std::streamsize>(ready.size()));
    ready.clear();
  }
  if (count < 0) failToMake(zip_file_strerror(in.get()));
  out << rest;
  out.close();
  if (!out) failToMake("Its sheets cannot be written.");
  changed_[index] = to;
}

void ArchiveCopy::add(zip_t* copy, zip_uint64_t index) {
  const char* const name = zip_get_name(from_.get(), index, 0);
  requireOf(from_.get(), name != nullptr);
  const auto changed = changed_.find(index);
  zip_source_t* const source = changed == changed_.end()
                                   ? zip_source_zip(copy, from_.get(), index, ZIP_FL_COMPRESSED, 0, -1)
                                   : zip_source_file(copy, libraryPath(changed->second).c_str(), 0, -1);
  requireOf(copy, source != nullptr);
  const zip_int64_t added = zip_file_add(copy, name, source, 0);
  if (added < 0) zip_source_free(source);
  requireOf(copy, added >= 0);
  const auto place = static_cast<zip_uint64_t>(added);
  requireOf(copy, zip_set_file_compression(copy, place, ZIP_CM_DEFLATE, compression) == 0);
  requireOf(copy, zip_file_set_dostime(copy, place, 0, firstDay, 0) == 0);
  requireOf(copy, zip_file_set_external_attributes(copy, place, 0, ZIP_OPSYS_DOS, 0) == 0);
}

void ArchiveCopy::write(const fs::path& to) {
  Handle copy = open(to, ZIP_CREATE | ZIP_TRUNCATE);
  const zip_int64_t count = zip_get_num_entries(from_.get(), 0);
  for (zip_int64_t index = 0; index < count; ++index)
    add(copy.get(), static_cast<zip_uint64_t>(index));
  requireOf(copy.get(), zip_close(copy.get()) == 0);
  static_cast<void>(copy.release());  // closing has freed it
}

}  // namespace verdalis
