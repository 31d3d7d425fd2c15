#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// A custom crop of the library.
struct CustomCropEntry {
  std::filesystem::path path;
  std::string name;
};

/// What the editor reads back of a crop file. What the file lacks is absent.
struct CustomCropContents {
  std::optional<std::string> name;
  std::optional<std::string> firstRain;      ///< Inches
  std::optional<std::string> lastRain;       ///< Inches
  std::optional<std::string> maxIrrigation;  ///< Inches
  std::vector<std::string> values;           ///< The cells of the table, row after row
};

/// What the editor writes.
struct CustomCropItems {
  std::string name;
  std::string units;          ///< As chosen; another text than those of yieldUnits counts as bushels
  std::string firstRain;      ///< Inches
  std::string lastRain;       ///< Inches
  std::string maxIrrigation;  ///< Inches
  std::string values;         ///< Comma separated
};

/// The entries of a comma separated list; an empty text has none. What a list has beyond the cells of the
/// largest yield table is left out.
[[nodiscard]] std::vector<std::string> commaSeparatedEntries(std::string_view list);

/// The whole inches that a text says.
/// \throws RunTimeError (typeMismatch, overflow) for any other text.
[[nodiscard]] int wholeInches(const std::string& text);

/// The custom crops of a folder by the names of their files. A file whose first line gives no name is passed
/// over, and a missing folder holds none.
[[nodiscard]] std::vector<CustomCropEntry> findCustomCrops(const std::filesystem::path& folder);

/// Reads a crop file as far as it goes.
[[nodiscard]] CustomCropContents readCustomCrop(const std::filesystem::path& path);

/// The text of a crop file. Line ends within an item become blanks, for a line of the file is an item; a
/// range that is no number stays empty.
[[nodiscard]] std::string customCropText(const CustomCropItems& items);

/// The name without the nine characters that a file name cannot have.
[[nodiscard]] std::string RemoveIllegals(std::string_view name);

/// The path of a new crop's file: its name without what a file name cannot have. A name of nothing else gives
/// the file ".txt".
[[nodiscard]] std::filesystem::path customCropPath(const std::filesystem::path& folder,
                                                   const std::string& name);

}  // namespace verdalis
