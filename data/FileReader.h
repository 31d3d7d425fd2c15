#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "model/CropScenario.h"
#include "model/YieldTable.h"

namespace verdalis {

/// Reads the crop library: a file a crop in `crops`, the user's own crops in `crops/custom`, optional tables
/// by soil in `crops/soils`, all below the home folder of the program.
class FileReader {
 public:
  explicit FileReader(std::filesystem::path home) : home_(std::move(home)) {}

  std::filesystem::path fileDirectory;                ///< The folder last listed
  std::vector<std::filesystem::path> fileCollection;  ///< The files in reading order
  CropScenario cropCollection;                        ///< The crops read, Fallow behind the stock crops

  /// Reads the library anew. A file that is no crop is passed over without a message. A bad file keeps Fallow
  /// waiting: Fallow comes after as many good files as there are stock files, so possibly behind a custom
  /// crop or not at all. \returns true. \throws RunTimeError (fileNotFound) when `crops` is missing or cannot
  /// be listed.
  bool Initialize();

  /// The text behind the first "=".
  /// \throws RunTimeError (invalidCall) for a line without one.
  [[nodiscard]] static std::string_view parseEquals(std::string_view line);

  /// The yield table of three comma separated lists: of the rainfall list only the first and last value
  /// count, of the irrigation list only the last; the values fill row after row. Blank values are 0, missing
  /// ones too. \throws RunTimeError (typeMismatch, overflow) for a bound that is no number, (subscript) when
  /// there are more values than cells or a table of more than 1,000 rows or columns is asked for.
  [[nodiscard]] static YieldTable makeYieldArray(std::string_view rainfall, std::string_view irrigation,
                                                 std::string_view values);

 private:
  void readSoils(Crop& crop) const;

  std::filesystem::path home_;
};

/// Most rows, and most columns, of a yield table: a crop file costs 8 MB at most, whatever it asks for.
inline constexpr int maxTableSide = 1000;

}  // namespace verdalis
