#pragma once

#include <filesystem>
#include <optional>
#include <utility>

namespace verdalis {

/// The files that the program works with. For an ordinary session the home folder is enough.
struct ProgramFiles {
  ProgramFiles(std::filesystem::path homeFolder)  // NOLINT(google-explicit-constructor): see above
      : home(std::move(homeFolder)), inputs(home / "inputs.txt") {}

  std::filesystem::path home;    ///< Contains the folder `crops`
  std::filesystem::path inputs;  ///< The saved inputs, read when the main window is loaded
  bool savesInputs = true;       ///< Whether a run first writes them

  /// For recent farms and copies of unsaved farms; nothing to remember neither.
  std::optional<std::filesystem::path> state;
  bool recovers = false;  ///< Whether unsaved farms are copied, and copies of former programs are offered
};

}  // namespace verdalis
