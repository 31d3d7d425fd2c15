#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace verdalis {

/// Where the home folder, which holds `crops` and `inputs.txt`, may lie.
struct HomePlaces {
  std::filesystem::path programFolder;  ///< Folder of the executable
  std::optional<std::filesystem::path>
      dataHome;  ///< The user's data folder of this program; none without a user
  std::vector<std::filesystem::path>
      stockCrops;  ///< Where the stock crops may lie, the first that exists counts
};

/// The places of the running program.
[[nodiscard]] HomePlaces homePlaces();

/// The home folder: the folder of the executable if it holds `crops` and can be written, else the user's data
/// folder, into which the stock crops are copied when it has no crops yet.
/// \throws RunTimeError (fileNotFound) when there is none and none can be made
[[nodiscard]] std::filesystem::path homeFolder(const HomePlaces& places);

}  // namespace verdalis
