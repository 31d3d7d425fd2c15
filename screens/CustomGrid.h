#pragma once

#include <span>
#include <string>
#include <string_view>

#include "controls/Grid.h"
#include "controls/services.h"

namespace verdalis {

// The grid of a custom crop. Row 0 and column 0 are headings in inches; the data cells contain the yields,
// with a row for each inch of net irrigation and a column for each inch of annual rainfall.

/// Resizes the grid for ranges of whole inches and writes the headings. Cells that still fit keep their
/// contents.
/// \throws RunTimeError (subscript) for a range that is descending or longer than a yield table may be
void sizeCustomGrid(Grid& grid, int firstColumn, int lastColumn, int firstRow, int lastRow);

/// Fills the data cells with texts, row by row. Texts that do not fit are ignored.
void fillCustomGrid(Grid& grid, std::span<const std::string> values);

/// The texts of the data cells, row by row on one line, separated by commas.
[[nodiscard]] std::string customGridValues(const Grid& grid);

/// The whole grid with its headings, in the clipboard format of spreadsheets: tabs between columns, CR LF
/// between rows.
[[nodiscard]] std::string spreadsheetText(const Grid& grid);

/// Whether a text contains only digits, points, tabs and line ends. A minus sign is not allowed on purpose: a
/// yield is never negative.
[[nodiscard]] bool isSpreadsheetNumbers(std::string_view text);

/// Fills the data cells from a spreadsheet's text, starting at the first one, which becomes the current cell.
/// CR LF, LF and CR each end a row. Texts beyond the grid are ignored. Takes time proportional to the length
/// of the text.
void pasteSpreadsheet(Grid& grid, std::string_view text);

/// Appends a typed character to the text of the current cell, which may be a heading. Control characters are
/// ignored.
void typeIntoGrid(Grid& grid, const std::string& character);

/// Applies a key to the current cell.
void pressKeyInGrid(Grid& grid, GridKey key, ClipboardService& clipboard);

}  // namespace verdalis
