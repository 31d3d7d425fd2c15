#pragma once

#include <filesystem>
#include <string_view>

namespace verdalis {

/// A folder for files that are not complete yet, locked while it exists, so that another process can tell it
/// from a folder that a killed program has left behind. Only this user can read it. The destructor removes it
/// with all that is in it.
class TemporaryFolder {
 public:
  /// Makes the folder.
  /// \param start the start of its name; six letters or digits follow (see isTemporaryName)
  /// \throws std::filesystem::filesystem_error
  TemporaryFolder(const std::filesystem::path& parent, std::string_view start);
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  void unlock();

  std::filesystem::path path_;
  int descriptor_ = -1;     ///< Of the lock; -1 if the file system has none
  void* handle_ = nullptr;  ///< Of the lock, where descriptors cannot be of folders
};

/// Removes the temporary folders of killed programs from a folder, with all that is in them.
void removeAbandonedFolders(const std::filesystem::path& parent, std::string_view start);

}  // namespace verdalis
