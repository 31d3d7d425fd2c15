#include "handout/TableOnPages.h"

#include <algorithm>

namespace verdalis {
namespace {

constexpr PrintFont titleFont{10.5, true};
constexpr std::size_t mostTitleLines = 3;
constexpr double belowTitle = 4;
constexpr double rowPadding = 2;  ///< Above and below the lines of a row
constexpr double headPadding = 3;
constexpr double betweenGroups = 14;

// A row that takes more than this part of a page is cut, but not after its first few lines.
constexpr double highestRow = 0.4;
constexpr std::size_t leastLines = 8;

/// A table of at most this part of a page stands on one page.
constexpr double highestWhole = 0.55;
constexpr std::size_t mostRowsOfWhole = 60;

const Paint strongRule{Ink::axis};
const Paint fineRule{Ink::grid};

}  // namespace

TableOnPages::TableOnPages(const HandoutTable& table, PageFlow& flow, TextRuler& ruler)
    : table_(table), flow_(flow), ruler_(ruler), plan_(planTable(table, flow.width(), ruler)) {}

std::vector<std::string> TableOnPages::titleLines() {
  if (table_.title.empty()) return {};
  return ruler_.firstLines(table_.title, flow_.width(), titleFont, mostTitleLines);
}

TableOnPages::Head TableOnPages::headOf(const ColumnGroup& group) {
  Head head;
  Row headings{{}, plan_.heads(), 0};
  Row units{{}, plan_.units(), 0};
  for (const PlannedColumn& column : group.columns) {
    const HandoutColumn& told = table_.columns[column.index];
    const double x = told.number ? column.left + column.width : column.left;
    const Anchor anchor = told.number ? Anchor::end : Anchor::start;
    Cell heading{{}, x, anchor};
    Cell unit{{}, x, anchor};
    if (!told.heading.empty()) {
      heading.lines = ruler_.firstLines(told.heading, column.width, headings.font, mostHeadLines);
    }
    if (!told.unit.empty()) unit.lines = ruler_.firstLines(told.unit, column.width, units.font, 2);
    headings.lines = std::max(headings.lines, heading.lines.size());
    units.lines = std::max(units.lines, unit.lines.size());
    headings.cells.push_back(std::move(heading));
    units.cells.push_back(std::move(unit));
  }
  // Headings of fewer lines stand at the bottom.
  for (Cell& heading : headings.cells) {
    const std::size_t missing = headings.lines - heading.lines.size();
    heading.lines.insert(heading.lines.begin(), missing, std::string());
  }
  for (Row* row : {&headings, &units}) {
    if (row->lines == 0) continue;
    head.height += static_cast<double>(row->lines) * PageFlow::lineOf(row->font);
    head.rows.push_back(std::move(*row));
  }
  if (!head.rows.empty()) head.height += headPadding;
  return head;
}

TableOnPages::Row TableOnPages::rowOf(const ColumnGroup& group, const HandoutRow& row) {
  Row result{{}, plan_.cells(row.strong), 1};
  for (const PlannedColumn& column : group.columns) {
    const std::string text = cellText(table_, row, column.index);
    const bool right = table_.columns[column.index].number;
    Cell cell{{}, right ? column.left + column.width : column.left, right ? Anchor::end : Anchor::start};
    const bool isNumber =
        column.index < row.cells.size() && std::holds_alternative<double>(row.cells[column.index]);
    if (right && isNumber && ruler_.width(text, result.font) <= column.width) {
      cell.lines = {text};
      const double decimals = partsOf(text, result.font, ruler_).decimals;
      if (column.decimals > decimals) cell.x -= column.decimals - decimals;
    } else if (!text.empty()) {
      cell.lines = ruler_.lines(text, column.width, result.font);
    }
    result.lines = std::max(result.lines, cell.lines.size());
    result.cells.push_back(std::move(cell));
  }
  return result;
}

double TableOnPages::leadHeight() {
  double height = static_cast<double>(titleLines().size()) * PageFlow::lineOf(titleFont) + belowTitle;
  if (plan_.groups.empty()) return height;
  const ColumnGroup& group = plan_.groups.front();
  height += headOf(group).height;
  if (table_.rows.empty()) return height;
  const Row first = rowOf(group, table_.rows.front());
  const double lead = height + (mayCut(first) ? heightOf(first, leastLines) : heightOf(first, first.lines));
  if (table_.rows.size() > mostRowsOfWhole) return lead;
  for (const HandoutRow& row : table_.rows) {
    const Row placed = rowOf(group, row);
    height += heightOf(placed, placed.lines);
  }
  return height <= highestWhole * flow_.pageHeight() ? height : lead;
}

double TableOnPages::heightOf(const Row& row, std::size_t lines) {
  return static_cast<double>(lines) * PageFlow::lineOf(row.font) + 2 * rowPadding;
}

bool TableOnPages::mayCut(const Row& row) const {
  return row.lines > leastLines && heightOf(row, row.lines) > highestRow * flow_.pageHeight();
}

void TableOnPages::placeTitle(bool again) {
  std::vector<std::string> lines = titleLines();
  if (lines.empty()) return;
  if (again)
    lines = ruler_.firstLines(table_.title + " (further columns)", flow_.width(), titleFont, mostTitleLines);
  for (const std::string& line : lines) {
    flow_.addText(0, flow_.top(), Anchor::start, line, titleFont, {Ink::text});
    flow_.moveDown(PageFlow::lineOf(titleFont));
  }
  flow_.moveDown(belowTitle);
}

void TableOnPages::placeHead(const ColumnGroup& group, const Head& head) {
  if (!head.rows.empty()) {
    double top = flow_.top();
    for (const Row& row : head.rows) {
      for (const Cell& cell : row.cells) {
        for (std::size_t i = 0; i < cell.lines.size(); ++i) {
          flow_.addText(cell.x, top + static_cast<double>(i) * PageFlow::lineOf(row.font), cell.anchor,
                        cell.lines[i], row.font, {Ink::muted});
        }
      }
      top += static_cast<double>(row.lines) * PageFlow::lineOf(row.font);
    }
    flow_.moveDown(head.height);
  }
  flow_.addRule(0, group.width, flow_.top(), 0.8, strongRule);
}

void TableOnPages::placeRow(const ColumnGroup& group, const Head& head, const Row& row) {
  const double line = PageFlow::lineOf(row.font);
  std::size_t next = 0;
  while (next < row.lines) {
    const double least = heightOf(row, mayCut(row) ? std::min(leastLines, row.lines - next) : row.lines);
    if (least > flow_.left() || next > 0) {
      flow_.beginPage();
      placeHead(group, head);
    }
    const double room = flow_.left() - 2 * rowPadding;
    const auto fitting = static_cast<std::size_t>(std::max(room / line, 1.0));
    const std::size_t end = std::min(row.lines, next + fitting);
    const double top = flow_.top() + rowPadding;
    for (const Cell& cell : row.cells) {
      for (std::size_t i = next; i < std::min(end, cell.lines.size()); ++i) {
        flow_.addText(cell.x, top + static_cast<double>(i - next) * line, cell.anchor, cell.lines[i],
                      row.font, {Ink::text});
      }
    }
    flow_.moveDown(static_cast<double>(end - next) * line + 2 * rowPadding);
    next = end;
  }
  flow_.addRule(0, group.width, flow_.top(), 0.4, fineRule);
}

void TableOnPages::placeGroup(const ColumnGroup& group, bool first) {
  const Head head = headOf(group);
  if (!first) {
    flow_.gap(betweenGroups);
    flow_.need(leadHeight() + PageFlow::lineOf(titleFont));
    placeTitle(true);
  }
  placeHead(group, head);
  for (const HandoutRow& row : table_.rows)
    placeRow(group, head, rowOf(group, row));
}

void TableOnPages::place() {
  flow_.need(leadHeight());
  placeTitle(false);
  for (std::size_t i = 0; i < plan_.groups.size(); ++i)
    placeGroup(plan_.groups[i], i == 0);
}

}  // namespace verdalis
