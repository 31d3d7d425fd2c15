#include "xlsx/Sheet.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "xlsx/cleanText.h"

namespace verdalis {
namespace {

constexpr std::size_t leastWidth = 8;
constexpr std::size_t mostWidth = 60;  // longer texts are cut on screen, not in the file
constexpr std::size_t mostHeadWidth = 16;
constexpr double lineHeight = 15;  // points

lxw_row_t rowOf(SheetPlace place) {
  return static_cast<lxw_row_t>(place.row);
}

lxw_col_t columnOf(SheetPlace place) {
  return static_cast<lxw_col_t>(place.column);
}

/// A style of further decimals where a number has them, as one for this number.
NumberStyle shownStyle(double number, NumberStyle style) {
  if (!style.exact) return style;
  NumberStyle bare = style;
  bare.before.clear();
  bare.after.clear();
  const std::string text = styled(number, bare);
  const std::size_t point = text.find('.');
  style.decimals = point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
  return style;
}

void requireInside(SheetPlace place) {
  if (place.row < Sheet::mostRows && place.column < Sheet::mostColumns) return;
  throw RunTimeError(
      ErrorNumber::overflow,
      "A sheet of a workbook has room for 1,048,576 rows and 16,384 columns, and this one would "
      "need more. Ask for fewer values or options.");
}

}  // namespace

Sheet::Sheet(Book& book, std::string name) : book_(book), name_(std::move(name)), numbers_(book.addSheet()) {
  sheet_ = workbook_add_worksheet(book_.book(), name_.c_str());
  if (sheet_ == nullptr) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
  worksheet_set_landscape(sheet_);
  worksheet_fit_to_pages(sheet_, 1, 0);
}

void Sheet::widen(std::size_t column, std::size_t characters) {
  if (column >= widths_.size()) widths_.resize(column + 1);
  widths_[column] = std::max(widths_[column], characters);
}

void Sheet::put(SheetPlace place, std::string_view text, const Book::Look& look) {
  requireInside(place);
  const std::string clean = cleanText(text);
  if (clean.empty() && look == Book::Look()) return;
  require(worksheet_write_string(sheet_, rowOf(place), columnOf(place), clean.c_str(), book_.format(look)));
}

void Sheet::write(SheetPlace place, std::string_view text, const Book::Look& look) {
  put(place, text, look);
  widen(place.column, widthOf(text) + 1);
}

void Sheet::writeLine(SheetPlace place, std::string_view text, const Book::Look& look) {
  put(place, text, look);
}

void Sheet::write(SheetPlace place, double number, const NumberStyle& style, Book::Look look) {
  if (!std::isfinite(number)) {
    look.right = true;
    write(place, generalText(number), look);
    return;
  }
  requireInside(place);
  look.number = numberFormat(shownStyle(number, style));
  require(worksheet_write_number(sheet_, rowOf(place), columnOf(place), number, book_.format(look)));
  numbers_.add(place, number);
  widen(place.column, widthOf(styled(number, style)) + 1);
}

void Sheet::write(SheetPlace place, const HandoutCell& cell, const HandoutColumn& column,
                  const Book::Look& look) {
  if (const auto* const number = std::get_if<double>(&cell)) {
    write(place, *number, column.style, look);
  } else if (const auto* const text = std::get_if<std::string>(&cell)) {
    Book::Look aligned = look;
    aligned.right = column.number;
    aligned.indented = !column.number && place.column > 0;
    write(place, *text, aligned);
  }
}

std::size_t Sheet::writeHead(SheetPlace place, const std::string& text, bool right) {
  Book::Look look;
  look.kind = Book::Look::Kind::head;
  look.right = right;
  look.indented = !right && place.column > 0;
  put(place, text, look);
  const std::vector<std::string> lines = brokenIntoLines(text, mostHeadWidth);
  for (const std::string& line : lines)
    widen(place.column, widthOf(line) + 2);
  return lines.size();
}

void Sheet::insert(SheetPlace place, lxw_chart* chart, lxw_chart_options& options) {
  requireInside(place);
  require(worksheet_insert_chart_opt(sheet_, rowOf(place), columnOf(place), chart, &options));
  book_.addChart(numbers_);
}

void Sheet::setHeight(std::size_t row, std::size_t lines) {
  require(worksheet_set_row(sheet_, static_cast<lxw_row_t>(row), lineHeight * static_cast<double>(lines),
                            nullptr));
}

void Sheet::freezeAbove(std::size_t row) {
  worksheet_freeze_panes(sheet_, static_cast<lxw_row_t>(row), 0);
  require(worksheet_repeat_rows(sheet_, static_cast<lxw_row_t>(row - 1), static_cast<lxw_row_t>(row - 1)));
}

void Sheet::finish() {
  for (std::size_t column = 0; column < widths_.size(); ++column) {
    if (widths_[column] == 0) continue;
    const auto width = static_cast<double>(std::clamp(widths_[column] + 1, leastWidth, mostWidth));
    const auto at = static_cast<lxw_col_t>(column);
    require(worksheet_set_column(sheet_, at, at, width, nullptr));
  }
}

std::size_t Sheet::widthOfColumns(std::size_t count) const {
  std::size_t width = 0;
  for (std::size_t column = 0; column < count; ++column) {
    const std::size_t own = column < widths_.size() ? widths_[column] + 1 : leastWidth;
    width += std::clamp(own, leastWidth, mostWidth);
  }
  return width;
}

}  // namespace verdalis
