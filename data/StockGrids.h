#pragma once

#include <span>
#include <string_view>

namespace verdalis {

/// The yield table of a stock crop as texts, as its crop file has them. The tables are made from the files in
/// crops/ when the program is built, so that there is one source of their numbers; what a user does to the
/// files of his own library does not change them.
struct StockGrid {
  std::string_view crop;           ///< Name of the crop
  std::string_view firstRain;      ///< Annual rainfall of the first column, inches
  std::string_view lastRain;       ///< Annual rainfall of the last column, inches
  std::string_view maxIrrigation;  ///< Net irrigation of the last row, inches; the first row is 0
  std::string_view values;         ///< The yields per acre, comma separated, row after row
};

/// All of them.
[[nodiscard]] std::span<const StockGrid> stockGrids();

/// The table of a crop by its name in lower case; nullptr for any other crop.
[[nodiscard]] const StockGrid* stockGrid(std::string_view lowerName);

}  // namespace verdalis
