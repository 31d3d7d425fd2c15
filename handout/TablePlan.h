#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "handout/Handout.h"
#include "handout/TextRuler.h"

namespace verdalis {

/// The text of a cell on paper.
[[nodiscard]] std::string cellText(const HandoutTable& table, const HandoutRow& row, std::size_t column);

/// A column in place.
struct PlannedColumn {
  std::size_t index = 0;  ///< In the table
  double left = 0;        ///< From the left edge of the table, points
  double width = 0;
  double decimals = 0;  ///< Room behind the decimal points, which stand below each other
};

/// Columns that stand beside each other.
struct ColumnGroup {
  std::vector<PlannedColumn> columns;
  double width = 0;
};

/// How a table stands on paper: its font, and its columns. A table that is too wide in the smallest font is
/// given in several groups of columns, each with the first column.
struct TablePlan {
  double size = 0;  ///< Of the font of the cells
  std::vector<ColumnGroup> groups;

  [[nodiscard]] PrintFont cells(bool bold) const { return {size, bold}; }
  [[nodiscard]] PrintFont heads() const { return {size - 0.5, true}; }
  [[nodiscard]] PrintFont units() const { return {size - 1, false}; }
};

[[nodiscard]] TablePlan planTable(const HandoutTable& table, double width, TextRuler& ruler);

/// The part of a number in front of its decimal point, and the rest.
struct NumberParts {
  double whole = 0;
  double decimals = 0;
};
[[nodiscard]] NumberParts partsOf(const std::string& text, PrintFont font, TextRuler& ruler);

/// A heading has no more lines than this.
inline constexpr std::size_t mostHeadLines = 5;

}  // namespace verdalis
