#pragma once

#include <filesystem>

namespace verdalis {

/// An empty file that one program at a time can hold. The system lets go of it when the program ends, however
/// that happens; that the file exists means nothing. The destructor removes it if it is held.
class LockFile {
 public:
  /// Takes the lock, and creates the file if it is missing. Waits a moment if another program has it, which
  /// may only be looking at it.
  explicit LockFile(const std::filesystem::path& path);
  LockFile(const LockFile&) = delete;
  LockFile& operator=(const LockFile&) = delete;
  ~LockFile();

  /// Whether this object holds the lock. If not after the constructor, errno says why: EWOULDBLOCK if another
  /// program has it. Later, someone may have removed the file.
  [[nodiscard]] bool isHeld() const;

 private:
  std::filesystem::path path_;
  int descriptor_ = -1;
};

/// Whether any program holds a lock file, or that cannot be found out.
[[nodiscard]] bool isHeldByAnyone(const std::filesystem::path& path);

}  // namespace verdalis
