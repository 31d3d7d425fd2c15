#include <gtest/gtest.h>

#include "cli/script/controlState.h"
#include "controls/Table.h"

namespace verdalis::testing {
namespace {

class TableState : public ::testing::Test {
 protected:
  TableState() {
    Table::Contents contents;
    contents.records = 300;
    contents.cell = [](std::size_t record, std::size_t column) {
      return Table::Cell{std::to_string(record * 10 + column), {}, false};
    };
    contents.before = [](std::size_t a, std::size_t b, std::size_t) { return a < b; };
    contents.marked = [](std::size_t record) { return record < 2; };
    table.setContents({{"a"}, {"b"}}, std::move(contents));
  }

  [[nodiscard]] nlohmann::ordered_json state() { return controlState(table, "tblNumbers"); }

  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Table table{window, "tblNumbers"};
};

TEST_F(TableState, TellsTheLinesOnShow) {
  table.setFilter([](std::size_t record) { return record < 2; });
  EXPECT_EQ(state().dump(),
            R"({"control":"tblNumbers","kind":"Table","visible":true,"enabled":true,"columns":["a","b"],)"
            R"("records":300,"places":2,"rows":[["0","1"],["10","11"]],"marked":[0,1],"current":null,)"
            R"("sort":null})");
}

TEST_F(TableState, CurrentRowAndMarksArePlaces) {
  table.clickHeading(1);
  table.clickHeading(1);
  table.setCurrent(298);
  table.setFilter([](std::size_t record) { return record == 0 || record > 297; });
  const nlohmann::ordered_json told = state();
  EXPECT_EQ(told["rows"][0][0], "2990");
  EXPECT_EQ(told["current"], 1);
  EXPECT_EQ(told["marked"].dump(), "[2]");
  EXPECT_EQ(told["sort"].dump(), R"({"column":1,"down":true})");
}

TEST_F(TableState, OfALongTableTheFirst200) {
  const nlohmann::ordered_json told = state();
  EXPECT_EQ(told["places"], 300);
  EXPECT_EQ(told["rows"].size(), 200U);
}

}  // namespace
}  // namespace verdalis::testing
