#pragma once

#include <filesystem>
#include <utility>

namespace verdalis {

/// Which files the program works with. A home folder alone says it all for a person's own session.
struct ProgramFiles {
  ProgramFiles(std::filesystem::path homeFolder)  // NOLINT(google-explicit-constructor): see above
      : home(std::move(homeFolder)), inputs(home / "inputs.txt") {}

  std::filesystem::path home;    ///< The folder with `crops`
  std::filesystem::path inputs;  ///< The saved inputs, read when the main window is loaded
  bool savesInputs = true;       ///< A run writes them first
};

}  // namespace verdalis
