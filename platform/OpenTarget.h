#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// Whether a path leads to something that is written into and never replaced: a device, a pipe, or a file
/// that is open already, by a name such as /dev/stdout, /dev/fd/3 or /proc/self/fd/3. Links are followed.
[[nodiscard]] bool isOpenTarget(const std::filesystem::path& path);

/// Writes into such a target piece by piece. A file that is open already keeps its position, and is appended
/// to if it was opened so.
class OpenTarget {
 public:
  /// \throws RunTimeError (fileNotFound) if the target cannot be opened
  explicit OpenTarget(const std::filesystem::path& path);
  OpenTarget(const OpenTarget&) = delete;
  OpenTarget& operator=(const OpenTarget&) = delete;
  ~OpenTarget();

  /// \throws RunTimeError (fileNotFound) if the bytes cannot be written
  void write(std::string_view bytes) const;

 private:
  [[noreturn]] void fail() const;

  std::string name_;
  int descriptor_ = -1;
};

}  // namespace verdalis
