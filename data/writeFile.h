#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace verdalis {

/// Replaces the contents of a file, whole or not at all, with bytes that come piece by piece: they are
/// written to a temporary file beside it, flushed to disk, and renamed over it by keep(). On failure, and
/// without keep(), the old file is unchanged. Symbolic links are followed, and permissions are kept. Anything
/// but a regular file (a folder, a device, a pipe) and a write-protected file are not replaced.
class FileReplacement {
 public:
  /// \throws RunTimeError (fileNotFound) if the file cannot be written; the text says why.
  explicit FileReplacement(const std::filesystem::path& path);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  ~FileReplacement();

  /// \throws RunTimeError as the constructor
  void write(std::string_view bytes);

  /// Puts what has been written in the place of the file. \throws RunTimeError as the constructor
  void keep();

 private:
  class TemporaryFile;

  [[noreturn]] void fail(int reason) const;

  std::filesystem::path path_;
  std::filesystem::path target_;  ///< Behind all links
  std::unique_ptr<TemporaryFile> file_;
};

/// Replaces the contents of a file by a FileReplacement.
/// \throws RunTimeError (fileNotFound) if the file cannot be written; the text says why.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace verdalis
