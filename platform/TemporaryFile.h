#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// A file for contents that are not complete yet, named ".saving-XXXXXX". It is locked while it exists, so
/// that another process can tell it from a file that a killed program has left behind. The destructor removes
/// it unless moveTo() succeeded. After a failure, errno says why.
class TemporaryFile {
 public:
  /// When the file gets its name. A file without a name goes with its program, even if that is killed. Where
  /// the system has no such files, the name is given at once.
  enum class Naming { atOnce, whenComplete };

  /// Creates the file in a folder. The name is short, because the name of the file to replace may have the
  /// maximum length.
  explicit TemporaryFile(const std::filesystem::path& folder, Naming naming = Naming::atOnce);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  /// Whether the file has been created.
  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

  /// Gives the file to whom the target belongs or would belong: root does not take files from their users.
  /// Where files have no such owners, this does nothing.
  void giveToOwnerOf(const std::filesystem::path& target) const;

  [[nodiscard]] bool write(std::string_view bytes) const;

  /// Flushes the contents to disk, sets the permissions, and renames the file.
  /// \param step the name, in the same folder and unused, that a file without a name has for the moment
  /// before it replaces an existing target; a random one if empty
  [[nodiscard]] bool moveTo(const std::filesystem::path& target, std::filesystem::perms permissions,
                            const std::filesystem::path& step = {});

 private:
  void create(const std::filesystem::path& folder);
  bool createWithoutName(const std::filesystem::path& folder);
  bool putInto(const std::filesystem::path& target, const std::filesystem::path& step);
  void close();

  std::filesystem::path folder_;
  std::filesystem::path name_;  ///< Empty while it has none
  int descriptor_ = -1;
};

/// Whether a name consists of `start` and six letters or digits, as the names of temporary files and folders
/// do.
[[nodiscard]] bool isTemporaryName(std::string_view name, std::string_view start);

/// Removes the temporary files in a folder that belong to this user and that no program is writing any more.
/// What cannot be removed stays.
void removeAbandonedFiles(const std::filesystem::path& folder);

}  // namespace verdalis
