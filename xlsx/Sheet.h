#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "handout/Handout.h"
#include "xlsx/Book.h"
#include "xlsx/SheetNumbers.h"

namespace verdalis {

/// A sheet of a workbook, filled cell by cell. Its columns grow with what is written.
class Sheet {
 public:
  static constexpr std::size_t mostRows = 1048576;
  static constexpr std::size_t mostColumns = 16384;

  /// \throws RunTimeError (fileNotFound) if it cannot be made
  Sheet(Book& book, std::string name);

  [[nodiscard]] Book& book() const { return book_; }
  [[nodiscard]] lxw_worksheet* sheet() const { return sheet_; }
  [[nodiscard]] const std::string& name() const { return name_; }

  /// Writes a text as a text, whatever it begins with.
  /// \throws RunTimeError (overflow) outside the sheet
  void write(SheetPlace place, std::string_view text, const Book::Look& look = {});

  /// Writes a number with its digits; one that is not finite as a text.
  void write(SheetPlace place, double number, const NumberStyle& style, Book::Look look = {});
  void write(SheetPlace place, const HandoutCell& cell, const HandoutColumn& column, const Book::Look& look);

  /// Writes a line that may be wider than its column, and does not widen it.
  void writeLine(SheetPlace place, std::string_view text, const Book::Look& look = {});

  /// Writes the head of a column, which is broken into lines.
  /// \returns the number of lines
  std::size_t writeHead(SheetPlace place, const std::string& text, bool right);

  /// Puts a chart over the cells, with the numbers of this sheet.
  void insert(SheetPlace place, lxw_chart* chart, lxw_chart_options& options);

  void setHeight(std::size_t row, std::size_t lines);
  void freezeAbove(std::size_t row);

  /// Sets the widths of the columns. To be called at the end.
  void finish();

  /// The width of the columns so far, in characters.
  [[nodiscard]] std::size_t widthOfColumns(std::size_t count) const;

 private:
  void put(SheetPlace place, std::string_view text, const Book::Look& look);
  void widen(std::size_t column, std::size_t characters);

  Book& book_;
  std::string name_;
  lxw_worksheet* sheet_ = nullptr;
  SheetNumbers& numbers_;
  std::vector<std::size_t> widths_;
};

}  // namespace verdalis
