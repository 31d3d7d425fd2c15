#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace verdalis::testing {

/// What another program does with the file or folder, and with the text, that it is given. One that is killed
/// is killed as soon as it has done that.
enum class Deed {
  replaceAndBeKilled,     ///< Writes the text for a file, which it does not replace yet
  writeCopyAndBeKilled,   ///< Writes the text as its recovery copy into a folder
  removeCopyAndBeKilled,  ///< Writes a recovery copy into a folder and removes it
  lockAndBeKilled,        ///< Takes the lock of a file
  findLockHeld,           ///< Succeeds if the lock of a file is held
  findNoOrphans,   ///< Succeeds if a folder offers no orphan, and the one of the name cannot be claimed
  clearLeftovers,  ///< Clears a home folder
  saveOften,       ///< Replaces the file of the name in a home folder, and clears that folder
  saveFarmOften,   ///< Replaces a farm by the version of the number
  addFarmsOften,   ///< Adds farms of the folder of the name to the recent ones of a state folder
  restoreAll,      ///< Restores all orphans that no other program gets, as farms of the name
  countLocked,     ///< Adds countRounds to the file "counter", 1 at a time while it holds a lock
};

constexpr int countRounds = 100;

/// Runs this test program a second time, beside itself, to do a deed.
/// \returns whether the deed succeeded; false if the program was killed
bool anotherProgram(Deed deed, const std::filesystem::path& path, const std::string& text = {});

/// Runs this test program once for each text, all beside each other. \returns whether all deeds succeeded
bool severalPrograms(Deed deed, const std::filesystem::path& path, const std::vector<std::string>& texts);

/// Does a deed, in the other program. \returns whether it succeeded
bool perform(Deed deed, const std::filesystem::path& path, const std::string& text);

/// Ends this program as if it was killed.
[[noreturn]] void beKilled();

}  // namespace verdalis::testing
