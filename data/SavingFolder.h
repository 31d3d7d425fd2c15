#pragma once

#include <filesystem>
#include <optional>

namespace verdalis {

/// The hidden folder `.saving` of a home folder, for temporary files of targets in `crops` and the folders
/// below it: a file there that is not complete yet must not be taken for a crop file. The destructor removes
/// the folder if it is empty.
class SavingFolder {
 public:
  /// \param targets the folder of the files to replace; path() is empty if it is not `crops` or directly
  /// below it, or if no file can be renamed from `.saving` into it.
  explicit SavingFolder(const std::filesystem::path& targets);
  SavingFolder(const SavingFolder&) = delete;
  SavingFolder& operator=(const SavingFolder&) = delete;
  ~SavingFolder();

  [[nodiscard]] const std::optional<std::filesystem::path>& path() const { return path_; }

 private:
  std::optional<std::filesystem::path> path_;
};

/// Removes what killed programs have left in a home folder: temporary files in the folder itself, `.saving`,
/// `crops`, and `crops/custom`. Files that a program is writing, and what cannot be removed, stay.
void clearLeftovers(const std::filesystem::path& home);

}  // namespace verdalis
