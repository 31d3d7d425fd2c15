#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/TemporaryFile.h"

namespace verdalis {

class SavingFolder;

/// Replaces the contents of a file, whole or not at all, with bytes that come piece by piece: they are
/// written to a temporary file on the same file system, flushed to disk, and renamed over it by keep(). On
/// failure, and without keep(), the old file is unchanged. The temporary file is beside the target, but for a
/// crop file in the folder `.saving` of the home folder, if possible. Symbolic links are followed, and
/// permissions are kept; a file that root writes goes to its owner. A folder, a
/// write-protected file, and what isOpenTarget() names are not replaced.
class FileReplacement {
 public:
  /// \param naming when the temporary file gets its name; one without a name is beside the target in any case
  /// \throws RunTimeError (fileNotFound) if the file cannot be written; the text and errno say why.
  explicit FileReplacement(const std::filesystem::path& path,
                           TemporaryFile::Naming naming = TemporaryFile::Naming::atOnce);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  ~FileReplacement();

  /// \throws RunTimeError as the constructor
  void write(std::string_view bytes);

  /// Puts what has been written in the place of the file.
  /// \throws RunTimeError as the constructor
  void keep();

 private:
  void open(const std::filesystem::path& folder, TemporaryFile::Naming naming);
  [[noreturn]] void fail(int reason) const;

  std::filesystem::path path_;
  std::filesystem::path target_;  ///< Behind all links
  std::filesystem::perms permissions_{};
  std::unique_ptr<SavingFolder> savingFolder_;  ///< Removed after the file in it
  std::unique_ptr<TemporaryFile> file_;
};

/// Replaces the contents of a file by a FileReplacement.
/// \throws RunTimeError (fileNotFound) if the file cannot be written; the text and errno say why.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace verdalis
