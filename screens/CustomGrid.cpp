#include "screens/CustomGrid.h"

#include <algorithm>

#include "data/FileReader.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr char blank = ' ';

/// Number of headings of a range.
int headCount(int first, int last) {
  if (last < first || last - first >= maxTableSide) {
    throw RunTimeError(ErrorNumber::subscript, "A grid from " + std::to_string(first) + " to " +
                                                   std::to_string(last) + " inches cannot be made.");
  }
  return last - first + 1;
}

std::string head(int inches) {
  return std::to_string(inches) + " in.";
}

const std::string& currentText(const Grid& grid) {
  return grid.cell(grid.row(), grid.column());
}

void setCurrentText(Grid& grid, const std::string& text) {
  grid.setCell(grid.row(), grid.column(), text);
}

void removeLastCharacter(Grid& grid) {
  std::string text = currentText(grid);
  if (text.find_first_not_of(blank) == std::string::npos) return;
  const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
  while (text.size() > 1 && continues(text.back()))
    text.pop_back();
  text.pop_back();
  setCurrentText(grid, text);
}

/// After the last column comes the heading column, from which the next step enters the first data column.
void moveRight(Grid& grid) {
  if (grid.column() + 1 < grid.columns()) {
    grid.setCurrent(grid.row(), grid.column() + 1);
  } else {
    grid.setCurrent(grid.row() + 1 < grid.rows() ? grid.row() + 1 : 1, 0);
  }
}

void copyCell(const Grid& grid, ClipboardService& clipboard) {
  clipboard.clear();
  clipboard.setText(currentText(grid));
}

/// The text up to the next separator. Removes it and the separator from `rest`.
std::string_view takeField(std::string_view& rest) {
  const std::size_t end = rest.find_first_of("\t\r\n");
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(field.size());
  return field;
}

}  // namespace

void sizeCustomGrid(Grid& grid, int firstColumn, int lastColumn, int firstRow, int lastRow) {
  const int columns = headCount(firstColumn, lastColumn);
  const int rows = headCount(firstRow, lastRow);
  const Grid::Batch batch(grid);
  grid.setSize(rows + 1, columns + 1);
  for (int column = 1; column <= columns; ++column)
    grid.setCell(0, column, head(firstColumn + column - 1));
  for (int row = 1; row <= rows; ++row)
    grid.setCell(row, 0, head(firstRow + row - 1));
}

void fillCustomGrid(Grid& grid, std::span<const std::string> values) {
  const Grid::Batch batch(grid);
  int row = 1;
  int column = 1;
  for (const std::string& value : values) {
    if (column >= grid.columns()) {
      column = 1;
      ++row;
    }
    if (row >= grid.rows()) return;
    grid.setCell(row, column, value);
    ++column;
  }
}

std::string customGridValues(const Grid& grid) {
  std::string values;
  for (int row = 1; row < grid.rows(); ++row) {
    for (int column = 1; column < grid.columns(); ++column) {
      if (row > 1 || column > 1) values += ',';
      values += grid.cell(row, column);
    }
  }
  return values;
}

std::string spreadsheetText(const Grid& grid) {
  std::string text;
  for (int row = 0; row < grid.rows(); ++row) {
    if (row > 0) text += "\r\n";
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) text += '\t';
      text += grid.cell(row, column);
    }
  }
  return text;
}

bool isSpreadsheetNumbers(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '\t' || c == '\r' || c == '\n';
  });
}

void pasteSpreadsheet(Grid& grid, std::string_view text) {
  const Grid::Batch batch(grid);
  int row = 1;
  int column = 1;
  while (!text.empty() && row < grid.rows()) {
    const std::string_view field = takeField(text);
    // Texts to the right of the grid are skipped without copying them.
    if (column < grid.columns()) grid.setCell(row, column, std::string(field));
    if (text.empty()) break;
    if (text.front() == '\t') {
      column = std::min(column + 1, grid.columns());
      text.remove_prefix(1);
      // A row may end with an empty field, and the text with such a row.
      if (text.empty() && column < grid.columns()) grid.setCell(row, column, "");
    } else {
      text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
      column = 1;
      ++row;
    }
  }
  grid.setCurrent(1, 1);
}

void typeIntoGrid(Grid& grid, const std::string& character) {
  const bool printable = std::none_of(character.begin(), character.end(),
                                      [](char c) { return static_cast<unsigned char>(c) < blank; });
  if (printable && !character.empty()) setCurrentText(grid, currentText(grid) + character);
}

void pressKeyInGrid(Grid& grid, GridKey key, ClipboardService& clipboard) {
  switch (key) {
    case GridKey::enter:
      moveRight(grid);
      break;
    case GridKey::backspace:
      removeLastCharacter(grid);
      break;
    case GridKey::erase:
      setCurrentText(grid, "");
      break;
    case GridKey::copy:
      copyCell(grid, clipboard);
      break;
    case GridKey::cut:
      copyCell(grid, clipboard);
      setCurrentText(grid, "");
      break;
    case GridKey::paste:
      setCurrentText(grid, clipboard.text());
      break;
  }
}

}  // namespace verdalis
