#pragma once

#include <filesystem>
#include <string>

namespace verdalis::testing {

/// What another program does. A killed one is killed as soon as it has done that.
enum class Deed {
  replaceAndBeKilled,     ///< Writes the text for a file, which it does not replace yet
  writeCopyAndBeKilled,   ///< Writes the text as its recovery copy into a folder
  removeCopyAndBeKilled,  ///< Writes its recovery copy into a folder and removes it
  lockAndBeKilled,        ///< Takes the lock of a file
  findLockHeld,           ///< Fails unless the lock of a file is held
  findNoOrphans,   ///< Fails unless a folder offers no orphan, and the text is a copy of another program
  clearLeftovers,  ///< Clears a home folder
};

/// Runs this test program a second time, at the same time, to do a deed.
/// \param path the file or folder of the deed
/// \returns whether the deed succeeded; false if the program was killed
bool anotherProgram(Deed deed, const std::filesystem::path& path, const std::string& text = {});

/// Does a deed, in the other program. \returns whether it succeeded
bool perform(Deed deed, const std::filesystem::path& path, const std::string& text);

/// Ends this program as if it was killed.
[[noreturn]] void beKilled();

}  // namespace verdalis::testing
