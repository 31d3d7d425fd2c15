#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// A list of records with sortable columns and a current record. The texts are made when they are shown, so a
/// table can have many thousands of rows.
///
/// A record is a row of the contents, counted from 0 in the order in which they were set. A place is a line
/// of the table as it is sorted and filtered now.
class Table : public Control {
 public:
  enum class Align { left, right };

  struct Column {
    std::string heading;
    Align align = Align::right;
    bool sorts = true;   ///< A click on the heading sorts by this column
    bool water = false;  ///< Its bars tell of water, and have its colour
  };

  /// What stands in a cell.
  struct Cell {
    std::string text;
    std::optional<double> bar;  ///< Length of a bar, 0 to 1 of the room for it: before a left-aligned text,
                                ///< behind a right-aligned one
    bool strong = false;        ///< In bold
  };

  /// The records: their number, and functions that may be called at any time until other contents are set.
  struct Contents {
    std::size_t records = 0;
    std::function<Cell(std::size_t record, std::size_t column)> cell;

    /// Whether one record stands before another when sorted upwards by a column. Without it, by the texts,
    /// which are made for all records on show.
    std::function<bool(std::size_t a, std::size_t b, std::size_t column)> before;

    /// Whether a record is in the band that is marked at the left, such as "as good as the best".
    std::function<bool(std::size_t record)> marked;
  };

  Table(Frame& container, std::string name) : Control(ControlKind::Table, container, std::move(name)) {}

  [[nodiscard]] const std::vector<Column>& columns() const { return columns_; }

  /// Sets columns and contents. The table is unsorted and unfiltered then, without a current record.
  void setContents(std::vector<Column> columns, Contents contents);

  /// Shows only the records that pass; all without a filter. The current record stays if it passes.
  void setFilter(const std::function<bool(std::size_t record)>& passes);

  [[nodiscard]] std::size_t records() const { return contents_.records; }

  /// The number of lines on show.
  [[nodiscard]] std::size_t places() const { return order_.size(); }

  /// The record at a place; the place must exist.
  [[nodiscard]] std::size_t record(std::size_t place) const { return order_[place]; }

  /// The place of a record; nothing if it is filtered out.
  [[nodiscard]] std::optional<std::size_t> placeOf(std::size_t record) const;

  [[nodiscard]] Cell cell(std::size_t record, std::size_t column) const {
    return contents_.cell(record, column);
  }
  [[nodiscard]] bool isMarked(std::size_t record) const {
    return contents_.marked && contents_.marked(record);
  }

  /// Counts the changes of columns, contents and order, but not of the current record.
  [[nodiscard]] std::uint64_t revision() const { return revision_; }

  /// The column by which the table is sorted; nothing for the order of the records.
  [[nodiscard]] std::optional<std::size_t> sortColumn() const { return sortColumn_; }
  [[nodiscard]] bool sortsDown() const { return sortsDown_; }

  /// The chosen record; nothing if none is.
  [[nodiscard]] std::optional<std::size_t> current() const { return current_; }

  /// Chooses a record without an event.
  void setCurrent(std::optional<std::size_t> record);

  /// The lines on show, as a spreadsheet takes them: headings, tabs between columns, a line for each record.
  [[nodiscard]] std::string tabSeparated() const;

  /// User actions: choose the record at a place; click on a heading, which sorts upwards, then downwards,
  /// then not at all. A place or a column that does not exist is ignored.
  void choose(std::size_t place);
  void clickHeading(std::size_t column);

  /// The user chose a record.
  Event<std::size_t> onChoose;

 private:
  void arrange();
  void sort();

  std::vector<Column> columns_;
  Contents contents_;
  std::function<bool(std::size_t)> passes_;
  std::vector<std::size_t> order_;   ///< The records by place
  std::vector<std::size_t> places_;  ///< The places by record; `nowhere` for those filtered out
  std::uint64_t revision_ = 0;
  std::optional<std::size_t> sortColumn_;
  bool sortsDown_ = false;
  std::optional<std::size_t> current_;
};

}  // namespace verdalis
