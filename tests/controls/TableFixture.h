#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/Table.h"
#include "tests/controls/Fixture.h"

namespace verdalis::testing {

/// An empty table; the log tells when its view is notified, and which record was chosen.
class Tables : public ControlsFixture {
 protected:
  Tables() {
    table.onStateChange.connect(writes("watcher"));
    table.onChoose.connect([this](std::size_t record) { log.push_back("chose " + std::to_string(record)); });
  }

  /// Fills the table with rows of texts; without `before`, so that it sorts by the texts.
  void fill(const std::vector<std::vector<std::string>>& rows) {
    std::vector<Table::Column> columns;
    for (std::size_t column = 0; column < (rows.empty() ? 1 : rows.front().size()); ++column)
      columns.push_back({"Column " + std::to_string(column)});
    Table::Contents contents;
    contents.records = rows.size();
    contents.cell = [rows](std::size_t record, std::size_t column) {
      return Table::Cell{rows[record][column], {}, false};
    };
    table.setContents(std::move(columns), std::move(contents));
    static_cast<void>(take());
  }

  /// Fills the table with numbers, which it sorts by their size.
  void fillNumbers(const std::vector<int>& numbers) {
    Table::Contents contents;
    contents.records = numbers.size();
    contents.cell = [numbers](std::size_t record, std::size_t) {
      return Table::Cell{std::to_string(numbers[record]), {}, false};
    };
    contents.before = [numbers](std::size_t a, std::size_t b, std::size_t) {
      return numbers[a] < numbers[b];
    };
    table.setContents({{"Number"}}, std::move(contents));
    static_cast<void>(take());
  }

  [[nodiscard]] std::vector<std::size_t> onShow() const {
    std::vector<std::size_t> records;
    for (std::size_t place = 0; place < table.places(); ++place)
      records.push_back(table.record(place));
    return records;
  }

  using Records = std::vector<std::size_t>;

  Table table{window, "tblOptions"};
};

}  // namespace verdalis::testing
