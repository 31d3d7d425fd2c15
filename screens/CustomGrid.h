#pragma once

#include <span>
#include <string>
#include <string_view>

#include "controls/Grid.h"
#include "controls/services.h"

namespace verdalis {

// What the grid of a custom crop does: row 0 and column 0 are heads in inches, the cells behind them hold the
// yields, a row for each inch of net irrigation and a column for each inch of annual rainfall.

/// Sizes the grid for whole inches and writes the heads; contents that still fit stay.
/// \throws RunTimeError (subscript) for a range that runs backwards or is longer than a yield table may be.
void sizeCustomGrid(Grid& grid, int firstColumn, int lastColumn, int firstRow, int lastRow);

/// Pours texts into the data cells, row after row. What does not fit is left out.
void fillCustomGrid(Grid& grid, std::span<const std::string> values);

/// The texts of the data cells, comma separated, row after row, on one line.
[[nodiscard]] std::string customGridValues(const Grid& grid);

/// The whole grid, heads included, as spreadsheets exchange it: tabs between columns, CR LF between rows.
[[nodiscard]] std::string spreadsheetText(const Grid& grid);

/// Whether a text has only characters of numbers and of the spreadsheet's form: digits, points, tabs, line
/// ends. A minus sign is none of them, and that is meant: a yield is never negative.
[[nodiscard]] bool isSpreadsheetNumbers(std::string_view text);

/// Pours a spreadsheet's text into the data cells from the first one on and makes that the current one. CR
/// LF, LF and CR each end a row; what lies beyond the grid is left out. Takes time in proportion to the text.
void pasteSpreadsheet(Grid& grid, std::string_view text);

/// A character typed at the current cell, head cells included, is added to its text; control characters are
/// not.
void typeIntoGrid(Grid& grid, const std::string& character);

/// A key at the current cell.
void pressKeyInGrid(Grid& grid, GridKey key, ClipboardService& clipboard);

}  // namespace verdalis
