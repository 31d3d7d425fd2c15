#include "handout/TablePlan.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "charts/ticks.h"

namespace verdalis {
namespace {

/// The fonts of cells, from the usual one to the smallest that is read with ease.
constexpr std::array<double, 5> cellSizes{9, 8.5, 8, 7.5, 7};

constexpr double widestGap = 26;
constexpr double smallestGap = 9;
constexpr double narrowest = 16;          ///< Column
constexpr double longestWord = 90;        ///< Longer ones may be broken
constexpr double mostForFirst = 0.35;     ///< Of the width, for a column that is repeated
constexpr std::size_t widestBytes = 400;  ///< No more of a text decides the width of its column

/// What a column needs.
struct Need {
  double least = narrowest;  ///< Words are not broken
  double wanted = narrowest;
  double decimals = 0;
};

bool isNumber(const HandoutRow& row, std::size_t column) {
  return column < row.cells.size() && std::holds_alternative<double>(row.cells[column]);
}

Need needOf(const HandoutTable& table, std::size_t index, const TablePlan& plan, TextRuler& ruler) {
  const HandoutColumn& column = table.columns[index];
  Need need;
  NumberParts most;
  const auto addText = [&](const std::string& text, PrintFont font) {
    const std::string_view front = std::string_view(text).substr(0, widestBytes);
    need.wanted = std::max(need.wanted, ruler.width(front, font));
    need.least = std::max(need.least, std::min(ruler.widestWord(front, font), longestWord));
  };
  for (const HandoutRow& row : table.rows) {
    const std::string text = cellText(table, row, index);
    if (text.empty()) continue;
    if (isNumber(row, index) && column.number) {
      const NumberParts parts = partsOf(text, plan.cells(row.strong), ruler);
      most.whole = std::max(most.whole, parts.whole);
      most.decimals = std::max(most.decimals, parts.decimals);
    } else {
      addText(text, plan.cells(row.strong));
    }
  }
  const double number = most.whole + most.decimals;
  // Numbers are not broken, unless one would fill the page.
  need.least = std::max(need.least, std::min(number, 2 * longestWord));
  need.wanted = std::max(need.wanted, number);
  if (number <= 2 * longestWord) need.decimals = most.decimals;
  // A heading may take several lines. In a table of many columns it asks for half of its width.
  const double head = ruler.width(std::string_view(column.heading).substr(0, widestBytes), plan.heads());
  const double word = ruler.widestWord(std::string_view(column.heading).substr(0, widestBytes), plan.heads());
  const double unit = ruler.width(std::string_view(column.unit).substr(0, widestBytes), plan.units());
  need.least = std::max({need.least, std::min(word, longestWord), std::min(unit, longestWord)});
  const double wantedHead = table.columns.size() > 6 ? head / 2 : std::min(head, longestWord);
  need.wanted = std::max({need.wanted, need.least, wantedHead, std::min(unit, longestWord)});
  // A measure may find a text wider than the sum of its parts.
  need.least += 1;
  need.wanted += 1;
  return need;
}

/// Puts columns beside each other, if they have room.
bool place(const std::vector<std::size_t>& columns, const std::vector<Need>& needs, double width,
           std::vector<ColumnGroup>& groups) {
  double least = 0;
  double wanted = 0;
  for (const std::size_t column : columns) {
    least += needs[column].least;
    wanted += needs[column].wanted;
  }
  const double gaps = static_cast<double>(columns.size()) - 1;
  if (least + gaps * smallestGap > width) return false;
  double gap = smallestGap;
  double share = 1;  // of what each column wants beyond the least
  if (wanted + gaps * smallestGap <= width) {
    if (gaps > 0) gap = std::min(widestGap, (width - wanted) / gaps);
  } else {
    share = (width - gaps * smallestGap - least) / (wanted - least);
  }
  ColumnGroup group;
  double left = 0;
  for (const std::size_t column : columns) {
    const Need& need = needs[column];
    const double taken = need.least + share * (need.wanted - need.least);
    group.columns.push_back({column, left, taken, need.decimals});
    left += taken + gap;
  }
  group.width = std::min(left - gap, width);
  groups.push_back(std::move(group));
  return true;
}

/// Gives the columns in as few groups as possible, each with the first column.
void placeInGroups(std::vector<Need>& needs, double width, std::vector<ColumnGroup>& groups) {
  const auto bounded = [](Need& need, double most) {
    need.least = std::min(need.least, most);
    need.wanted = std::min(need.wanted, most);
    if (need.decimals >= most / 2) need.decimals = 0;
  };
  bounded(needs.front(), width * mostForFirst);
  const double room = width - needs.front().least - smallestGap;
  for (std::size_t i = 1; i < needs.size(); ++i)
    bounded(needs[i], room);
  std::size_t next = 1;
  do {
    std::vector<std::size_t> columns{0};
    double taken = needs.front().least;
    for (; next < needs.size(); ++next) {
      const double more = needs[next].least + smallestGap;
      constexpr double rounding = 1e-6;
      if (columns.size() > 1 && taken + more > width - rounding) break;
      columns.push_back(next);
      taken += more;
    }
    if (!place(columns, needs, std::max(width, taken), groups)) return;
  } while (next < needs.size());
}

}  // namespace

std::string cellText(const HandoutTable& table, const HandoutRow& row, std::size_t column) {
  if (column >= row.cells.size()) return {};
  const HandoutCell& cell = row.cells[column];
  if (const auto* const text = std::get_if<std::string>(&cell)) return *text;
  if (const auto* const number = std::get_if<double>(&cell))
    return shortNumber(*number, table.columns[column].style);
  return {};
}

NumberParts partsOf(const std::string& text, PrintFont font, TextRuler& ruler) {
  const std::size_t point = std::min(text.find('.'), text.size());
  return {ruler.width(std::string_view(text).substr(0, point), font),
          ruler.width(std::string_view(text).substr(point), font)};
}

TablePlan planTable(const HandoutTable& table, double width, TextRuler& ruler) {
  TablePlan plan;
  if (table.columns.empty()) return plan;
  std::vector<std::size_t> columns(table.columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i)
    columns[i] = i;
  std::vector<Need> needs;
  for (const double size : cellSizes) {
    plan.size = size;
    needs.clear();
    double least = 0;
    for (const std::size_t column : columns) {
      needs.push_back(needOf(table, column, plan, ruler));
      least += needs.back().least + smallestGap;
      // Long tables are measured only as far as needed.
      if (least - smallestGap > width && size != cellSizes.back()) break;
    }
    if (needs.size() == columns.size() && place(columns, needs, width, plan.groups)) return plan;
  }
  placeInGroups(needs, width, plan.groups);
  return plan;
}

}  // namespace verdalis
