#include <memory>
#include <string>

#include "tests/controls/TableFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(Tables, ANewTableIsEmpty) {
  EXPECT_EQ(table.kind(), ControlKind::Table);
  EXPECT_EQ(kindName(table.kind()), "Table");
  EXPECT_EQ(table.records(), 0U);
  EXPECT_EQ(table.places(), 0U);
  EXPECT_TRUE(table.columns().empty());
  EXPECT_EQ(table.current(), std::nullopt);
  EXPECT_EQ(table.placeOf(0), std::nullopt);
  table.choose(0);
  table.clickHeading(0);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(table.tabSeparated(), "\n");
}

TEST_F(Tables, RecordsStandInTheirOrder) {
  fill({{"b"}, {"a"}, {"c"}});
  EXPECT_EQ(onShow(), (Records{0, 1, 2}));
  EXPECT_EQ(table.cell(1, 0).text, "a");
  EXPECT_EQ(table.placeOf(2), 2U);
  EXPECT_EQ(table.placeOf(3), std::nullopt);
  EXPECT_FALSE(table.isMarked(0));
}

TEST_F(Tables, AHeadingSortsUpwardsThenDownwardsThenNotAtAll) {
  fill({{"b", "1"}, {"a", "1"}, {"c", "0"}});
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{1, 0, 2}));
  EXPECT_EQ(table.sortColumn(), 0U);
  EXPECT_FALSE(table.sortsDown());
  EXPECT_EQ(take(), Log{"watcher"});
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{2, 0, 1}));
  EXPECT_TRUE(table.sortsDown());
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{0, 1, 2}));
  EXPECT_EQ(table.sortColumn(), std::nullopt);
  EXPECT_FALSE(table.sortsDown());
  table.clickHeading(0);
  table.clickHeading(1);
  EXPECT_EQ(onShow(), (Records{2, 0, 1}));
  EXPECT_EQ(table.sortColumn(), 1U);
  EXPECT_FALSE(table.sortsDown());
}

TEST_F(Tables, EqualRecordsKeepTheirOrderInBothDirections) {
  fill({{"x"}, {"x"}, {"a"}, {"x"}});
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{2, 0, 1, 3}));
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{0, 1, 3, 2}));
}

TEST_F(Tables, TheOwnerSaysWhichRecordStandsBefore) {
  fillNumbers({100, 9, 20});
  table.clickHeading(0);
  EXPECT_EQ(onShow(), (Records{1, 2, 0}));
}

TEST_F(Tables, AColumnThatDoesNotSortIgnoresTheClick) {
  Table::Contents contents;
  contents.records = 2;
  contents.cell = [](std::size_t, std::size_t) { return Table::Cell(); };
  table.setContents({{"Crops", Table::Align::left, false}}, contents);
  static_cast<void>(take());
  table.clickHeading(0);
  table.clickHeading(1);
  EXPECT_EQ(table.sortColumn(), std::nullopt);
  EXPECT_TRUE(take().empty());
}

TEST_F(Tables, AFilterHidesRecordsAndKeepsTheOrder) {
  fillNumbers({5, 4, 3, 2, 1});
  table.clickHeading(0);
  table.setFilter([](std::size_t record) { return record % 2 == 0; });
  EXPECT_EQ(onShow(), (Records{4, 2, 0}));
  EXPECT_EQ(table.records(), 5U);
  EXPECT_EQ(table.placeOf(4), 0U);
  EXPECT_EQ(table.placeOf(3), std::nullopt);
  EXPECT_EQ(table.sortColumn(), 0U);
  table.setFilter(nullptr);
  EXPECT_EQ(onShow(), (Records{4, 3, 2, 1, 0}));
}

TEST_F(Tables, TheCurrentRecordStaysWhileItIsOnShow) {
  fillNumbers({3, 2, 1});
  table.setCurrent(2);
  EXPECT_EQ(take(), Log{"watcher"});
  table.clickHeading(0);
  EXPECT_EQ(table.current(), 2U);
  table.setFilter([](std::size_t record) { return record > 0; });
  EXPECT_EQ(table.current(), 2U);
  table.setFilter([](std::size_t record) { return record == 0; });
  EXPECT_EQ(table.current(), std::nullopt);
}

TEST_F(Tables, OnlyARecordCanBeCurrent) {
  fillNumbers({3, 2});
  table.setCurrent(1);
  table.setCurrent(2);
  EXPECT_EQ(table.current(), std::nullopt);
  static_cast<void>(take());
  table.setCurrent(std::nullopt);
  EXPECT_TRUE(take().empty());
}

TEST_F(Tables, ChoosingTellsTheRecordAtThePlace) {
  fillNumbers({3, 2, 1});
  table.clickHeading(0);
  static_cast<void>(take());
  table.choose(0);
  EXPECT_EQ(take(), (Log{"watcher", "chose 2"}));
  EXPECT_EQ(table.current(), 2U);
  EXPECT_EQ(desk.focus(), &table);
  table.choose(0);
  EXPECT_EQ(take(), Log{"chose 2"});
  table.choose(3);
  EXPECT_TRUE(take().empty());
}

TEST_F(Tables, SetCurrentRaisesNoEvent) {
  fillNumbers({3, 2, 1});
  table.setCurrent(1);
  EXPECT_EQ(take(), Log{"watcher"});
}

TEST_F(Tables, NewContentsForgetSortFilterAndCurrentRecord) {
  fillNumbers({3, 2, 1});
  table.clickHeading(0);
  table.setFilter([](std::size_t record) { return record > 0; });
  table.setCurrent(1);
  fillNumbers({7, 8});
  EXPECT_EQ(onShow(), (Records{0, 1}));
  EXPECT_EQ(table.sortColumn(), std::nullopt);
  EXPECT_EQ(table.current(), std::nullopt);
}

TEST_F(Tables, TheRevisionCountsWhatTheViewMustReadAnew) {
  const std::uint64_t empty = table.revision();
  fillNumbers({3, 2, 1});
  const std::uint64_t filled = table.revision();
  EXPECT_NE(filled, empty);
  table.setCurrent(1);
  EXPECT_EQ(table.revision(), filled);
  table.clickHeading(0);
  EXPECT_NE(table.revision(), filled);
  const std::uint64_t sorted = table.revision();
  table.setFilter(nullptr);
  EXPECT_NE(table.revision(), sorted);
}

TEST_F(Tables, TheBandIsWhatTheOwnerMarks) {
  Table::Contents contents;
  contents.records = 3;
  contents.cell = [](std::size_t, std::size_t) { return Table::Cell(); };
  contents.marked = [](std::size_t record) { return record < 2; };
  table.setContents({{"Rank"}}, contents);
  EXPECT_TRUE(table.isMarked(1));
  EXPECT_FALSE(table.isMarked(2));
}

TEST_F(Tables, TheTextForASpreadsheetHasHeadingsAndTheLinesOnShow) {
  fill({{"b", "1\t2"}, {"a", "3\n4"}, {"c", "5"}});
  table.clickHeading(0);
  table.setFilter([](std::size_t record) { return record != 2; });
  EXPECT_EQ(table.tabSeparated(), "Column 0\tColumn 1\na\t3 4\nb\t1 2\n");
}

TEST_F(Tables, AListenerMayEndTheTable) {
  auto inner = std::make_unique<Table>(window, "tblInner");
  Table::Contents contents;
  contents.records = 1;
  contents.cell = [](std::size_t, std::size_t) { return Table::Cell(); };
  inner->setContents({{"x"}}, contents);
  inner->onChoose.connect([&inner](std::size_t) { inner.reset(); });
  inner->choose(0);
  EXPECT_EQ(inner, nullptr);
}

}  // namespace
}  // namespace verdalis::testing
