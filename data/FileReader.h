#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/CropScenario.h"
#include "model/YieldTable.h"

namespace verdalis {

/// A file of the crop library that was skipped.
struct SkippedCropFile {
  std::filesystem::path path;
  std::string reason;  ///< A sentence

  friend bool operator==(const SkippedCropFile&, const SkippedCropFile&) = default;
};

/// Reads the crop library below the home folder: one file per stock crop in `crops`, the user's own crops in
/// `crops/custom`, and optional tables by soil in `crops/soils`.
class FileReader {
 public:
  explicit FileReader(std::filesystem::path home) : home_(std::move(home)) {}

  std::filesystem::path fileDirectory;                ///< Folder listed last
  std::vector<std::filesystem::path> fileCollection;  ///< Files in reading order
  CropScenario cropCollection;                        ///< Crops read, with Fallow after the stock crops
  std::vector<SkippedCropFile> skipped;               ///< Files that are no valid crop files

  /// Reads the library again. A file that is not a valid crop file is skipped and listed in
  /// `skipped`. Fallow is inserted once as many valid files have been read as there are stock files, so a bad
  /// file moves it behind a custom crop or drops it. \returns true. \throws RunTimeError (fileNotFound) if
  /// `crops` is missing or cannot be listed.
  bool Initialize();

  /// The text after the first "=".
  /// \throws RunTimeError (invalidCall) if the line has no "=".
  [[nodiscard]] static std::string_view parseEquals(std::string_view line);

  /// Builds a yield table from three comma separated lists. Only the first and last rainfall and the last
  /// irrigation are used. The values fill the table row by row; blank and missing values are 0.
  /// \throws RunTimeError (typeMismatch, overflow) if a bound is not a number; (subscript) if there are more
  /// values than cells, or more than 1,000 rows or columns.
  [[nodiscard]] static YieldTable makeYieldArray(std::string_view rainfall, std::string_view irrigation,
                                                 std::string_view values);

 private:
  void readSoils(Crop& crop) const;

  std::filesystem::path home_;
};

/// Maximum number of rows, and of columns, of a yield table. Limits a crop file to 8 MB of memory, whatever
/// it asks for.
inline constexpr int maxTableSide = 1000;

}  // namespace verdalis
