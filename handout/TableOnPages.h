#pragma once

#include <array>
#include <string>
#include <vector>

#include "handout/Handout.h"
#include "handout/PageFlow.h"
#include "handout/TablePlan.h"
#include "handout/TextRuler.h"

namespace verdalis {

/// A table on its way to the pages.
class TableOnPages {
 public:
  TableOnPages(const HandoutTable& table, PageFlow& flow, TextRuler& ruler);

  /// What must stand together at the beginning: the title, the head and the first row.
  [[nodiscard]] double leadHeight();

  void place();

 private:
  /// The lines of a cell, and where they stand.
  struct Cell {
    std::vector<std::string> lines;
    double x = 0;
    Anchor anchor = Anchor::start;
  };
  struct Row {
    std::vector<Cell> cells;
    PrintFont font;
    std::size_t lines = 1;  ///< The most of a cell
  };
  /// The head of a group of columns.
  struct Head {
    std::vector<Row> rows;
    double height = 0;
  };

  [[nodiscard]] static double heightOf(const Row& row, std::size_t lines);
  [[nodiscard]] bool mayCut(const Row& row) const;
  [[nodiscard]] std::vector<std::string> titleLines();
  [[nodiscard]] Head headOf(const ColumnGroup& group);
  [[nodiscard]] Row rowOf(const ColumnGroup& group, const HandoutRow& row);
  void placeTitle(bool again);
  void placeHead(const ColumnGroup& group, const Head& head);
  void placeRow(const ColumnGroup& group, const Head& head, const Row& row);
  void placeGroup(const ColumnGroup& group, bool first);

  const HandoutTable& table_;
  PageFlow& flow_;
  TextRuler& ruler_;
  TablePlan plan_;
};

}  // namespace verdalis
