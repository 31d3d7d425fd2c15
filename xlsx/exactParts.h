#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "xlsx/SheetNumbers.h"

namespace verdalis {

// The parts of a workbook with numbers, as libxlsxwriter has written them. They pass in pieces, each of which
// ends with a tag (`<v>`, then `0.5</v>`), and come out with the same numbers to the last bit.

/// The shortest text that reads back as the same 64-bit float, negative zero included, for `<v>`: `0.1`,
/// `-0`, `1E+22`.
[[nodiscard]] std::string exactText(double number);

/// The cells of a sheet. Each number of the list replaces the text of its cell; everything else stays.
class ExactCells {
 public:
  /// \param numbers sorted; must outlive this
  explicit ExactCells(const SheetNumbers& numbers) : numbers_(numbers) {}

  /// \throws RunTimeError (fileNotFound) if a cell has a number that is not in the list, or if a cell of the
  /// list was passed by
  void take(std::string_view piece, std::string& out);

  /// To be called after the last piece.
  /// \throws RunTimeError (fileNotFound) if the sheet has no end, or if there are cells of the list that did
  /// not come
  void finish() const;

 private:
  void begin(std::string_view cell);

  const SheetNumbers& numbers_;
  std::size_t next_ = 0;         ///< The first number of the list whose cell has not come
  std::optional<double> value_;  ///< Of the cell that passes, if it has a number
  bool whole_ = false;           ///< Whether the last piece was the end of the sheet
};

/// The points that a chart keeps of the columns that it shows, for programs that do not read the sheet.
class ExactPoints {
 public:
  /// \param numbers of the sheet of the chart, sorted; must outlive this
  explicit ExactPoints(const SheetNumbers& numbers) : numbers_(numbers) {}

  void take(std::string_view piece, std::string& out);

 private:
  const SheetNumbers& numbers_;
  std::optional<SheetPlace> first_;  ///< The first cell of the column
  std::size_t index_ = 0;            ///< Of the point in the column
  bool numeric_ = false;             ///< Whether the points are numbers
};

}  // namespace verdalis
