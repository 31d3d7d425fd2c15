#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include "desktop/Binder.h"
#include "desktop/TableView.h"

namespace verdalis::testing {
namespace {

using desktop::Binder;
using desktop::TableView;

/// A window with a table of numbers and its widget.
class TableViews : public ::testing::Test {
 protected:
  TableViews() {
    window_.open();
    fill(1000);
    view_ = binder_.bind(table, new TableView, QStringLiteral("Numbers"));
    view_->resize(400, 300);
    view_->show();
    view_->activateWindow();
    QTest::qWait(0);
    table.onChoose.connect([this](std::size_t record) { chosen.push_back(record); });
  }
  ~TableViews() override { delete view_; }

  /// Records whose numbers go down: the first record has the largest.
  void fill(std::size_t records) {
    Table::Contents contents;
    contents.records = records;
    contents.cell = [this, records](std::size_t record, std::size_t column) {
      ++cellsMade;
      if (column == 0) return Table::Cell{std::to_string(records - record), {}, false};
      return Table::Cell{"record " + std::to_string(record), 0.5, record == 0};
    };
    contents.before = [](std::size_t a, std::size_t b, std::size_t) { return a > b; };
    contents.marked = [](std::size_t record) { return record < 3; };
    table.setContents({{"Number"}, {"Text", Table::Align::left, false}}, std::move(contents));
  }

  [[nodiscard]] QString shown(int row, int column) const {
    return view_->model()->index(row, column).data().toString();
  }

  void clickHeading(int column) {
    const QHeaderView* heads = view_->horizontalHeader();
    const QPoint at(heads->sectionViewportPosition(column) + heads->sectionSize(column) / 2,
                    heads->height() / 2);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, at);
  }

  void clickRow(int row) {
    const QRect cell = view_->visualRect(view_->model()->index(row, 0));
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, cell.center());
  }

  Desk desk_;
  Window window_{desk_, "frmMain", Frame::Scope::transparent};
  Table table{window_, "tblNumbers"};
  Binder binder_{desk_};
  TableView* view_ = nullptr;
  std::vector<std::size_t> chosen;
  int cellsMade = 0;
};

TEST_F(TableViews, ShowsColumnsAndRecords) {
  EXPECT_EQ(view_->objectName(), QStringLiteral("tblNumbers"));
  EXPECT_EQ(view_->model()->rowCount(), 1000);
  EXPECT_EQ(view_->model()->columnCount(), 2);
  EXPECT_EQ(view_->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Text"));
  EXPECT_EQ(shown(0, 0), QStringLiteral("1000"));
  EXPECT_EQ(shown(999, 1), QStringLiteral("record 999"));
  EXPECT_EQ(shown(1000, 0), QString());
}

TEST_F(TableViews, AsksOnlyForTheTextsThatItShows) {
  cellsMade = 0;
  fill(32767);
  static_cast<void>(view_->grab());
  EXPECT_LT(cellsMade, 2000);
}

TEST_F(TableViews, AClickOnAHeadingSortsAndTurnsTheIndicator) {
  const QHeaderView* heads = view_->horizontalHeader();
  EXPECT_FALSE(heads->isSortIndicatorShown());
  clickHeading(0);
  EXPECT_EQ(table.sortColumn(), 0U);
  EXPECT_EQ(shown(0, 0), QStringLiteral("1"));
  EXPECT_TRUE(heads->isSortIndicatorShown());
  EXPECT_EQ(heads->sortIndicatorOrder(), Qt::AscendingOrder);
  clickHeading(0);
  EXPECT_EQ(heads->sortIndicatorSection(), 0);
  EXPECT_EQ(heads->sortIndicatorOrder(), Qt::DescendingOrder);
  clickHeading(1);
  EXPECT_EQ(heads->sortIndicatorSection(), 0);
  EXPECT_TRUE(table.sortsDown());
  clickHeading(0);
  EXPECT_FALSE(heads->isSortIndicatorShown());
}

TEST_F(TableViews, AClickChoosesTheRecordOfTheRow) {
  clickRow(2);
  EXPECT_EQ(chosen, std::vector<std::size_t>{2});
  EXPECT_EQ(table.current(), 2U);
  EXPECT_EQ(desk_.focus(), &table);
  clickHeading(0);
  EXPECT_EQ(view_->currentIndex().row(), 997);
  EXPECT_TRUE(view_->viewport()->rect().intersects(view_->visualRect(view_->currentIndex())));
}

TEST_F(TableViews, KeysMoveAndChoose) {
  clickRow(0);
  chosen.clear();
  QTest::keyClick(view_, Qt::Key_Down);
  QTest::keyClick(view_, Qt::Key_Right);
  QTest::keyClick(view_, Qt::Key_Down);
  QTest::keyClick(view_, Qt::Key_Return);
  QTest::keyClick(view_, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(chosen, (std::vector<std::size_t>{1, 2, 2, 999}));
}

TEST_F(TableViews, TheProgramMovesTheCurrentRowWithoutAnEvent) {
  table.setCurrent(500);
  EXPECT_EQ(view_->currentIndex().row(), 500);
  EXPECT_TRUE(view_->viewport()->rect().intersects(view_->visualRect(view_->currentIndex())));
  table.setCurrent(std::nullopt);
  EXPECT_FALSE(view_->currentIndex().isValid());
  EXPECT_TRUE(chosen.empty());
}

TEST_F(TableViews, AFilterLeavesFewerRows) {
  table.setCurrent(7);
  table.setFilter([](std::size_t record) { return record % 2 == 1; });
  EXPECT_EQ(view_->model()->rowCount(), 500);
  EXPECT_EQ(view_->currentIndex().row(), 3);
  table.setFilter([](std::size_t) { return false; });
  EXPECT_EQ(view_->model()->rowCount(), 0);
  static_cast<void>(view_->grab());
  EXPECT_TRUE(chosen.empty());
}

TEST_F(TableViews, CopiesTheLinesOnShowWithHeadings) {
  table.setFilter([](std::size_t record) { return record < 2; });
  QTest::keyClick(view_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            QStringLiteral("Number\tText\n1000\trecord 0\n999\trecord 1\n"));
}

TEST_F(TableViews, TellsAScreenReaderItsNameAndCells) {
  QAccessibleInterface* shownTo = QAccessible::queryAccessibleInterface(view_);
  ASSERT_NE(shownTo, nullptr);
  EXPECT_EQ(shownTo->text(QAccessible::Name), QStringLiteral("Numbers"));
  ASSERT_NE(shownTo->tableInterface(), nullptr);
  EXPECT_EQ(shownTo->tableInterface()->rowCount(), 1000);
  EXPECT_EQ(shownTo->tableInterface()->cellAt(1, 1)->text(QAccessible::Name), QStringLiteral("record 1"));
}

TEST_F(TableViews, ColumnsFillTheWidth) {
  view_->resize(900, 300);
  QTest::qWait(0);
  EXPECT_EQ(view_->columnWidth(0) + view_->columnWidth(1), view_->viewport()->width());
  view_->resize(60, 300);
  QTest::qWait(0);
  EXPECT_GT(view_->columnWidth(0) + view_->columnWidth(1), view_->viewport()->width());
}

/// The paint of one cell, at a point of the picture.
TEST_F(TableViews, PaintsBarsAndTheMarkOfTheBand) {
  const QImage picture = view_->viewport()->grab().toImage();
  const auto colour = [&](int row, int column, int x) {
    const QRect cell = view_->visualRect(view_->model()->index(row, column));
    return picture.pixelColor(cell.left() + x, cell.center().y());
  };
  const QColor ground = colour(5, 0, 1);
  EXPECT_NE(colour(1, 0, 1), ground);
  EXPECT_NE(colour(5, 1, 12), ground);
}

}  // namespace
}  // namespace verdalis::testing
