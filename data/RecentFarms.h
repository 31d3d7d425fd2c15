#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace verdalis {

/// The farm files that were used last, kept in the file `recent/farms` of the state folder: one absolute path
/// per line, newest first. Several programs may use the list at once; each replaces the file completely. A
/// file that is missing, unreadable or damaged counts as the paths that can be found in it.
class RecentFarms {
 public:
  static constexpr std::size_t most = 9;

  explicit RecentFarms(const std::filesystem::path& stateFolder);

  /// At most `most` paths, newest first.
  [[nodiscard]] std::vector<std::filesystem::path> list() const;

  /// Puts a file at the top. A path that contains the end of a line is not kept.
  /// \throws RunTimeError (fileNotFound) if the list cannot be written
  void add(const std::filesystem::path& farm) const;

  /// \throws RunTimeError (fileNotFound) if the list cannot be written
  void remove(const std::filesystem::path& farm) const;

 private:
  void replace(const std::vector<std::filesystem::path>& farms) const;

  std::filesystem::path file_;
};

}  // namespace verdalis
