#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace verdalis {

/// Possible places of the home folder, which holds `crops` and `inputs.txt`.
struct HomePlaces {
  std::filesystem::path programFolder;  ///< Folder of the executable
  std::optional<std::filesystem::path>
      dataHome;  ///< Data folder of this program for the user; empty if the user has no home
  std::vector<std::filesystem::path>
      stockCrops;  ///< Possible places of the stock crops; the first that exists is used
};

/// The places for the running program.
[[nodiscard]] HomePlaces homePlaces();

/// The home folder: the folder of the executable if it contains `crops` and is writable, else the user's data
/// folder. The stock crops are copied there if it has no crops yet, and copies that killed programs have left
/// unfinished are removed.
/// \throws RunTimeError (fileNotFound) if there is none and none can be created
[[nodiscard]] std::filesystem::path homeFolder(const HomePlaces& places);

}  // namespace verdalis
