#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include "desktop/TableView.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

class AllOptionsOnScreen : public RunningDesktop {
 protected:
  /// Evaluates the farm of typeFarm() with a land split.
  void evaluate(const char* split = "Option1(0)") {
    start();
    typeFarm();
    tick(split);
    press("Command1");
    ASSERT_EQ(pane(), "pneResults");
  }

  [[nodiscard]] desktop::TableView* table() { return widget<desktop::TableView>("theResults.tblOptions"); }

  void clickRow(int row) {
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                      table()->visualRect(table()->model()->index(row, 1)).center());
  }

  [[nodiscard]] std::string counter() {
    return widget<QLabel>("theResults.lblCounter")->text().toStdString();
  }
};

TEST_F(AllOptionsOnScreen, ARowShowsItsOptionAndPagingMovesTheRow) {
  evaluate();
  EXPECT_EQ(table()->currentIndex().row(), 0);
  clickRow(2);
  const QString rank = table()->model()->index(2, 0).data().toString();
  EXPECT_EQ(counter(), "Option " + rank.toStdString());
  press("theResults.cmdPrevious");
  EXPECT_EQ(counter(), "Option " + std::to_string(rank.toInt() - 1));
  QTest::keyClick(table(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(counter(), "Option 1");
}

TEST_F(AllOptionsOnScreen, ThePageFitsOnASmallScreen) {
  evaluate("Option1(4)");
  ASSERT_EQ(program().main().theResults.FieldCollection.front()->Count(), 4);
  window()->resize(1366, 768);
  EXPECT_TRUE(comes([&] { return table()->viewport()->height() > 0; }));
  QTest::qWait(50);
  auto* page = widget("theResults")->findChild<QScrollArea*>();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(table()->horizontalScrollBar()->maximum(), 0);
  EXPECT_GE(table()->viewport()->height(), 3 * table()->rowHeight(0));
}

TEST_F(AllOptionsOnScreen, CopiesBothWays) {
  evaluate();
  QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
  const QString byKey = QApplication::clipboard()->text();
  EXPECT_TRUE(byKey.startsWith(QLatin1String("Rank\tCrops and acres\t50 ac, gross in.")));
  QApplication::clipboard()->clear();
  press("theResults.cmdCopyOptions");
  EXPECT_EQ(QApplication::clipboard()->text(), byKey);
}

TEST_F(AllOptionsOnScreen, OneLinePerMixComesWithoutWaitingForIt) {
  evaluate();
  const int options = table()->model()->rowCount();
  tick("theResults.chkMixes");
  EXPECT_TRUE(comes([&] { return table()->model()->rowCount() < options; }));
  tick("theResults.chkMixes");
  EXPECT_TRUE(comes([&] { return table()->model()->rowCount() == options; }));
}

class SummaryOnScreen : public AllOptionsOnScreen {
 protected:
  /// Saves the best option several times.
  void save(int times) {
    evaluate();
    for (int i = 0; i < times; ++i) {
      expectBox();
      press("theResults.cmdSaveResult");
    }
    pressKey(Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(comes([&] { return pane() == "pneSummary"; }));
    QTest::qWait(0);
    boxes.clear();
  }

  [[nodiscard]] QTableWidget* table() { return widget<QTableWidget>("fgsummary"); }
};

TEST_F(SummaryOnScreen, WhatAQuestionIsAboutIsMarkedAndInView) {
  save(9);
  table()->horizontalScrollBar()->setValue(0);
  bool marked = false;
  bool inView = false;
  program().main().pneSummary.onAsk.connect([&] {
    const auto option = program().main().pneSummary.asksAbout();
    if (!option) return;
    const auto columns = program().main().pneSummary.columnsOf(*option);
    marked = table()->item(1, columns.first)->background().style() != Qt::NoBrush;
    const int left = table()->columnViewportPosition(columns.first);
    inView = left >= 0 && left + table()->columnWidth(columns.first) <= table()->viewport()->width();
  });
  expectAnswer(QMessageBox::No);
  program().main().pneSummary.fgsummary.clickCell(1, 12);
  EXPECT_TRUE(marked);
  EXPECT_TRUE(inView);
  ASSERT_EQ(boxes.size(), 1U);
  for (int column = 1; column < table()->columnCount(); ++column)
    EXPECT_EQ(table()->item(1, column)->background().style(), Qt::NoBrush);
}

TEST_F(SummaryOnScreen, TheContextMenuRemovesTheOptionOfTheCell) {
  save(3);
  const auto& saved = program().main().summaryResults;
  ASSERT_EQ(saved.size(), 3U);
  QTimer::singleShot(0, qApp, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().constFirst()->text().startsWith(QLatin1String("Remove Saved Option #2: ")));
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  expectAnswer(QMessageBox::Yes);
  const QPoint place = table()->visualItemRect(table()->item(4, 3)).center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, table()->viewport()->mapToGlobal(place));
  QApplication::sendEvent(table()->viewport(), &event);
  EXPECT_EQ(saved.size(), 2U);
}

}  // namespace
}  // namespace verdalis::testing
