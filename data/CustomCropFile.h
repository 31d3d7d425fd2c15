#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// A custom crop in the library.
struct CustomCropEntry {
  std::filesystem::path path;
  std::string name;
};

/// The file of a custom crop as it was before it was replaced or deleted.
struct FormerCustomCrop {
  std::filesystem::path path;
  std::string name;  ///< The crop's name in the file, or the name of the file
  std::string bytes;
};

/// The parts of a crop file that the editor loads. A part missing from the file is empty.
struct CustomCropContents {
  std::optional<std::string> name;
  std::optional<std::string> firstRain;      ///< Inches
  std::optional<std::string> lastRain;       ///< Inches
  std::optional<std::string> maxIrrigation;  ///< Inches
  std::vector<std::string> values;           ///< The cells of the table, row by row
};

/// The parts of a crop file that the editor saves.
struct CustomCropItems {
  std::string name;
  std::string units;          ///< As chosen; a text not in yieldUnits counts as bushels
  std::string firstRain;      ///< Inches
  std::string lastRain;       ///< Inches
  std::string maxIrrigation;  ///< Inches
  std::string values;         ///< Comma separated
};

/// Splits a comma separated list; an empty text has no entries. Entries beyond the number of cells of the
/// largest yield table are ignored.
[[nodiscard]] std::vector<std::string> commaSeparatedEntries(std::string_view list);

/// Reads a whole number of inches.
/// \throws RunTimeError (typeMismatch, overflow) for any other text.
[[nodiscard]] int wholeInches(const std::string& text);

/// The custom crops in a folder, sorted by file name. A file without a name in its first line is skipped, and
/// so is every file beyond mostCropFiles. A missing folder has no crops.
[[nodiscard]] std::vector<CustomCropEntry> findCustomCrops(const std::filesystem::path& folder);

/// A crop file as it is now; nothing if there is none or it cannot be read.
[[nodiscard]] std::optional<FormerCustomCrop> formerCustomCrop(const std::filesystem::path& path);

/// Reads a crop file as far as possible. Does not fail.
[[nodiscard]] CustomCropContents readCustomCrop(const std::filesystem::path& path);

/// The text of a crop file. Line ends inside an item become blanks, because each item is one line of the
/// file. A range whose bounds are not numbers is written empty.
[[nodiscard]] std::string customCropText(const CustomCropItems& items);

/// Removes the nine characters that a file name cannot contain.
[[nodiscard]] std::string RemoveIllegals(std::string_view name);

/// The file path of a new crop: its name without illegal characters, plus ".txt". A name that would be
/// hidden, and then no crop file, is preceded by "_".
[[nodiscard]] std::filesystem::path customCropPath(const std::filesystem::path& folder,
                                                   const std::string& name);

/// The path of customCropPath(), with a number added if there is such a file.
[[nodiscard]] std::filesystem::path freeCropPath(const std::filesystem::path& folder,
                                                 const std::string& name);

}  // namespace verdalis
