#pragma once

#include <zip.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace verdalis {

/// A copy of the zip archive of a workbook, in which parts are changed on the way. All parts keep their
/// order, and have a fixed date and no rights of their own, so that the same parts give the same bytes.
/// Memory does not grow with a part: what has been changed stands in a folder until it is packed.
class ArchiveCopy {
 public:
  /// Takes a piece of a part, up to and with the next `>`, and adds what is to stand there to the text.
  using Change = std::function<void(std::string_view piece, std::string& out)>;

  /// \param folder for files that the caller removes
  /// \throws RunTimeError (fileNotFound) if the archive cannot be opened
  ArchiveCopy(const std::filesystem::path& from, std::filesystem::path folder);

  /// \param part such as `xl/worksheets/sheet1.xml`
  /// \throws RunTimeError (fileNotFound) if the part is not there, or cannot be read or written; whatever the
  /// change throws
  void change(const std::string& part, const Change& change);

  /// \throws RunTimeError (fileNotFound) if the copy cannot be written
  void write(const std::filesystem::path& to);

 private:
  struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
  };
  using Handle = std::unique_ptr<zip_t, Discard>;

  static Handle open(const std::filesystem::path& file, int flags);
  void add(zip_t* copy, zip_uint64_t index);

  Handle from_;
  std::filesystem::path folder_;
  std::map<zip_uint64_t, std::filesystem::path> changed_;  ///< By the place in the archive
};

}  // namespace verdalis
