#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace verdalis {

class LockFile;

/// A copy of an unsaved farm that belongs to no running program.
struct OrphanCopy {
  std::filesystem::path path;
  std::chrono::system_clock::time_point written;  ///< When it was last written
};

/// The copies of unsaved farms, one for each running program, as farm files in the state folder. A program
/// holds a lock file beside its copy. A copy whose lock nobody holds is an orphan: its program has ended
/// without saving the farm. Copies are always whole, even if a program is killed, and an orphan is deleted
/// only by discard(), or after its contents are in another copy or a saved farm. Creates nothing until
/// something is written.
///
/// All functions but the constructor throw RunTimeError (fileNotFound) with the reason if the folder cannot
/// be used; copies stay then, and the program can go on.
class RecoveryFolder {
 public:
  explicit RecoveryFolder(std::filesystem::path folder);
  RecoveryFolder(const RecoveryFolder&) = delete;
  RecoveryFolder& operator=(const RecoveryFolder&) = delete;
  /// Lets go of all copies. An own copy that has not been removed becomes an orphan.
  ~RecoveryFolder();

  /// Replaces the own copy. Afterwards the adopted orphans are deleted.
  void write(std::string_view text);

  /// Deletes the own copy and the adopted orphans, because the farm was saved or is not wanted.
  void remove();

  /// Lets the own copy stay as a claimed orphan; the next write() makes another own copy.
  /// \returns nothing if there is no own copy
  std::optional<OrphanCopy> leave();

  /// All orphans, oldest first, whether or not they can be read as a farm. Deletes lock files without a copy,
  /// and what a killed program has left unfinished. A missing folder has none.
  [[nodiscard]] std::vector<OrphanCopy> orphans();

  /// Makes sure that no other program offers or takes an orphan while this object exists. Claiming it again
  /// changes nothing.
  /// \returns false if another program has it, or if it is gone
  [[nodiscard]] bool claim(const OrphanCopy& orphan);

  /// Takes over a claimed orphan whose contents are on screen: it goes with the next write() or remove().
  void adopt(const OrphanCopy& orphan);

  /// Deletes a claimed orphan.
  void discard(const OrphanCopy& orphan);

 private:
  struct Claim {
    std::unique_ptr<LockFile> lock;
    bool adopted = false;
  };

  void takeOwnName();
  void deleteAdopted();

  std::filesystem::path folder_;
  std::filesystem::path own_;  ///< The own copy; empty before the first write
  std::unique_ptr<LockFile> ownLock_;
  std::map<std::filesystem::path, Claim> claims_;  ///< By the paths of the copies
};

}  // namespace verdalis
