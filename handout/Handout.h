#pragma once

#include <string>
#include <variant>
#include <vector>

#include "charts/Chart.h"

namespace verdalis {

/// What leaves the house: a report on paper or a workbook, as data. The same sections serve both.

/// What stands in a cell: nothing, a text, or a number with all its digits.
using HandoutCell = std::variant<std::monostate, std::string, double>;

struct HandoutColumn {
  std::string heading;  ///< Without the unit
  std::string unit;     ///< Such as "in" or "$/acre", told in the head; empty for none
  bool number = true;   ///< Right-aligned; its cells may still hold texts
  NumberStyle style;    ///< How its numbers are written
};

struct HandoutRow {
  std::vector<HandoutCell> cells;  ///< By column; missing ones at the end are empty
  bool strong = false;             ///< In bold, such as a total
};

struct HandoutTable {
  std::string title;  ///< Above the table; empty for none
  std::vector<HandoutColumn> columns;
  std::vector<HandoutRow> rows;
};

/// A part that is chosen or left out as a whole: a chapter on paper, a sheet in a workbook. On paper its
/// paragraphs stand first, then its charts, then its tables.
struct HandoutSection {
  std::string title;
  std::vector<std::string> paragraphs;
  std::vector<Chart> charts;
  std::vector<HandoutTable> tables;
};

struct Handout {
  std::string title;       ///< Such as "Irrigation plan"
  std::string farm;        ///< The name of the farm; empty if it has none
  std::string letterhead;  ///< The adviser's line; empty for none
  std::string date;        ///< As it is printed; empty for none
  std::vector<HandoutSection> sections;
};

}  // namespace verdalis
