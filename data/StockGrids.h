#pragma once

#include <span>
#include <string_view>

namespace verdalis {

/// The yield table of a stock crop as texts, as in its crop file. The build generates these tables from the
/// files in crops/, so their numbers have one source. Changes that users make to their own library do not
/// affect them.
struct StockGrid {
  std::string_view crop;           ///< Name of the crop
  std::string_view firstRain;      ///< Annual rainfall of the first column, inches
  std::string_view lastRain;       ///< Annual rainfall of the last column, inches
  std::string_view maxIrrigation;  ///< Net irrigation of the last row, inches; the first row is 0
  std::string_view values;         ///< Yields per acre, comma separated, row by row
};

[[nodiscard]] std::span<const StockGrid> stockGrids();

/// The table of a crop, by lower-case name; nullptr for any other crop.
[[nodiscard]] const StockGrid* stockGrid(std::string_view lowerName);

}  // namespace verdalis
