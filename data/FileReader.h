#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
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
  std::size_t leftOut = 0;                            ///< Files beyond mostCropFiles, which are not read

  /// A custom crop of an open farm, which need not be in the library.
  struct FarmCrop {
    std::string name;
    std::string text;  ///< The contents of its crop file

    friend bool operator==(const FarmCrop&, const FarmCrop&) = default;
  };

  /// Crops that Initialize() uses in place of the custom crops with the same name, or after all others. A
  /// text that is no crop file is passed over.
  std::vector<FarmCrop> farmCrops;

  /// The contents of the crop file of a custom crop; nullptr for any other crop.
  [[nodiscard]] std::shared_ptr<const std::string> textOf(const Crop& crop) const;

  /// Whether a crop is one of farmCrops.
  [[nodiscard]] bool isFarmCrop(std::string_view name) const;

  /// The contents of the library's own file of a custom crop; nullptr if it has none of this name.
  [[nodiscard]] std::shared_ptr<const std::string> libraryText(std::string_view name) const;

  /// Whether a text is a crop file.
  [[nodiscard]] static bool isCropFile(std::string_view text);

  /// Reads the library again. A file that is not a valid crop file is skipped and listed in `skipped`. Fallow
  /// is inserted once as many valid files have been read as there are stock files, so a bad file moves it
  /// behind a custom crop or drops it.
  /// \returns true.
  /// \throws RunTimeError (fileNotFound) if `crops` is missing or cannot be listed.
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
  void addFarmCrops();

  using Text = std::shared_ptr<const std::string>;
  std::map<const Crop*, Text> texts_;                  ///< Of the custom crops in cropCollection
  std::map<std::string, Text, std::less<>> ownTexts_;  ///< Of the library's custom crops, by name

  std::filesystem::path home_;
};

/// Maximum number of crop files that are read, stock files first. The list of crops has room for far fewer.
inline constexpr std::size_t mostCropFiles = 200;

/// Maximum number of characters of a crop's name, and of the text of its units.
inline constexpr std::size_t mostCropCharacters = 255;

/// Whether a name or a text of units is within mostCropCharacters.
[[nodiscard]] bool isShortCropText(std::string_view text);

/// Maximum number of rows, and of columns, of a yield table. Limits a crop file to 8 MB of memory, whatever
/// it asks for.
inline constexpr int maxTableSide = 1000;

}  // namespace verdalis
