#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSettings>
#include <QTableWidget>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests the menus, the small windows, the yield grid and trends, with the mouse and the keyboard.
class Windows : public RunningDesktop {
 protected:
  [[nodiscard]] QTableWidget* grid() { return widget<QTableWidget>("dgCustom"); }
  [[nodiscard]] std::string cell(int row, int column) {
    return program().main().pneCustomCrop.dgCustom.cell(row, column);
  }
  void key(Qt::Key wanted, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(grid(), wanted, with);
  }

  void openGrid() {
    start();
    choose(program().main().menus.mnuCustomCrop);
    ASSERT_EQ(pane(), "pneCustomCrop");
    program().main().pneCustomCrop.dgCustom.setSize(4, 4);
    QTest::qWait(0);
    const QTableWidgetItem* first = grid()->item(1, 1);
    ASSERT_NE(first, nullptr);
    grid()->setFocus();
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, grid()->visualItemRect(first).center());
  }
};

TEST_F(Windows, TheOptionsAcceptAFactorAndWarnAboutALargeOne) {
  start();
  choose(program().main().menus.mnuOptions);
  EXPECT_TRUE(widget("frmOptions")->isVisible());
  EXPECT_EQ(widget<QLineEdit>("frmOptions.txtFineFactor")->text(), QStringLiteral("10"));
  type("frmOptions.txtFineFactor", "11");
  expectBox();
  press("frmOptions.cmdApply");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].substr(0, 8), "Caution|");
  EXPECT_EQ(program().state.FineFactor, 11);
  EXPECT_FALSE(widget("frmOptions")->isVisible());
}

TEST_F(Windows, TheOptionsRejectAnInvalidFactorAndStayOpen) {
  start();
  choose(program().main().menus.mnuOptions);
  type("frmOptions.txtFineFactor", "x");
  expectBox();
  press("frmOptions.cmdApply");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Error|Please enter a valid number");
  EXPECT_EQ(program().state.FineFactor, 10);
  EXPECT_TRUE(widget("frmOptions")->isVisible());
}

TEST_F(Windows, EscapeClosesTheOptionsWithoutChanges) {
  start();
  choose(program().main().menus.mnuOptions);
  type("frmOptions.txtFineFactor", "5");
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget("frmOptions")));
  QTest::keyClick(widget("frmOptions.txtFineFactor"), Qt::Key_Escape);
  ASSERT_TRUE(comes([&] { return !widget("frmOptions")->isVisible(); }));
  EXPECT_EQ(program().state.FineFactor, 10);
}

TEST_F(Windows, AClickAnywhereClosesTheAboutWindow) {
  start();
  choose(program().main().menus.mnuAboutVDL);
  QWidget* about = widget("frmAbout");
  ASSERT_TRUE(about->isVisible());
  EXPECT_TRUE(widget<QLabel>("frmAbout.lblVersion")->text().startsWith(QLatin1String("Version ")));
  QTest::mouseClick(about, Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_FALSE(about->isVisible());
  EXPECT_TRUE(window()->isVisible());
  choose(program().main().menus.mnuAboutVDL);
  ASSERT_TRUE(about->isVisible());
  QTest::mouseClick(about->childAt(widget("frmAbout.lblVersion")->geometry().center()), Qt::LeftButton);
  EXPECT_FALSE(about->isVisible());
}

TEST_F(Windows, ANoteIsOpenedByItsButtonAndClosedByEscape) {
  start();
  choose(program().main().menus.mnuCustomCrop);
  press(program().main().pneCustomCrop.cmdHelp.buttons().front()->path());
  QWidget* note = widget("frmHelp");
  ASSERT_TRUE(note->isVisible());
  EXPECT_TRUE(
      widget<QLabel>("frmHelp.lblOutput")->text().startsWith(QLatin1String("Yield data may be entered")));
  ASSERT_TRUE(QTest::qWaitForWindowActive(note));
  QTest::keyClick(note, Qt::Key_Escape);
  ASSERT_TRUE(comes([&] { return !note->isVisible(); }));
}

TEST_F(Windows, TheSummaryShowsItsHeadsAndAsksWhenOneIsClicked) {
  start();
  typeFarm();
  press("Command1");
  expectBox();
  press("theResults.cmdSaveResult");
  pressKey(Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(comes([&] { return pane() == "pneSummary"; }));
  QTest::qWait(0);
  auto* table = widget<QTableWidget>("fgsummary");
  EXPECT_EQ(table->horizontalHeaderItem(2)->text().remove(QLatin1Char('\n')).toStdString(),
            "Saved Option #1 -Field #2");
  EXPECT_EQ(table->verticalHeaderItem(11)->text(), QStringLiteral("Net Return"));
  EXPECT_TRUE(table->isRowHidden(0));
  boxes.clear();
  const auto click = [&](QHeaderView* heads, int section) {
    expectAnswer(QMessageBox::No);
    const int middle = heads->sectionViewportPosition(section) + heads->sectionSize(section) / 2;
    const QPoint place = heads->orientation() == Qt::Horizontal ? QPoint(middle, heads->height() / 2)
                                                                : QPoint(heads->width() / 2, middle);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, place);
  };
  click(table->horizontalHeader(), 1);
  click(table->verticalHeader(), 3);
  expectAnswer(QMessageBox::Yes);
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(4, 2)).center());
  ASSERT_EQ(boxes.size(), 3U);
  for (const std::string& box : boxes)
    EXPECT_EQ(box, "Delete?|Do you want to delete this saved result?");
  EXPECT_FALSE(table->isVisible()) << "the only option is gone";
}

TEST_F(Windows, ASavedOptionCanBeRemovedByKeyboard) {
  start();
  typeFarm();
  press("Command1");
  expectBox();
  press("theResults.cmdSaveResult");
  pressKey(Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(comes([&] { return pane() == "pneSummary"; }));
  auto* table = widget<QTableWidget>("fgsummary");
  table->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  boxes.clear();
  pressKey(Qt::Key_Left);
  expectAnswer(QMessageBox::No);
  pressKey(Qt::Key_Space);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_TRUE(table->isVisible());
  expectAnswer(QMessageBox::Yes);
  pressKey(Qt::Key_Delete);
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_FALSE(table->isVisible());
}

TEST_F(Windows, TheWindowRemembersItsSize) {
  const QScopeGuard forget([] { QSettings().clear(); });
  start();
  window()->resize(1100, 720);
  choose(program().main().menus.mnuExit);
  EXPECT_FALSE(window()->isVisible());
  desktop::Desktop again(home(), QStringLiteral(VERDALIS_SOURCE_DIR "/help/HTML"));
  again.program().welcome.Command1.click();
  EXPECT_EQ(again.mainWindow()->size(), QSize(1100, 720));
  again.mainWindow()->close();
}

TEST_F(Windows, ANoteIsShownCompletely) {
  start();
  choose(program().main().menus.mnuCustomCrop);
  press(program().main().pneCustomCrop.cmdHelp.buttons().front()->path());
  auto* text = widget<QLabel>("frmHelp.lblOutput");
  EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

TEST_F(Windows, TheProgramEndsWithItsLastWindow) {
  start();
  choose(program().main().menus.mnuExit);
  EXPECT_FALSE(window()->isVisible());
  EXPECT_TRUE(program().ended());
}

TEST_F(Windows, TheProgramEndsWhenItsWindowIsClosedByItsFrame) {
  start();
  choose(program().main().menus.mnuOptions);
  EXPECT_TRUE(window()->close());
  EXPECT_FALSE(window()->isVisible());
  EXPECT_TRUE(program().ended());
}

TEST_F(Windows, TheYieldGridAcceptsCharactersReturnAndBackspace) {
  openGrid();
  QTest::keyClicks(grid(), QStringLiteral("12.5"));
  EXPECT_EQ(cell(1, 1), "12.5");
  EXPECT_EQ(grid()->item(1, 1)->text(), QStringLiteral("12.5"));
  key(Qt::Key_Backspace);
  EXPECT_EQ(cell(1, 1), "12.");
  key(Qt::Key_Return);
  QTest::keyClicks(grid(), QStringLiteral("7"));
  EXPECT_EQ(cell(1, 2), "7");
  key(Qt::Key_Delete);
  EXPECT_EQ(cell(1, 2), "");
}

TEST_F(Windows, ArrowsMoveTheCurrentCellOfTheYieldGrid) {
  openGrid();
  key(Qt::Key_Down);
  key(Qt::Key_Right);
  QTest::keyClicks(grid(), QStringLiteral("3"));
  EXPECT_EQ(cell(2, 2), "3");
  key(Qt::Key_Up);
  key(Qt::Key_Left);
  QTest::keyClicks(grid(), QStringLiteral("4"));
  EXPECT_EQ(cell(1, 1), "4");
  for (int i = 0; i < 9; ++i)
    key(Qt::Key_Down);
  EXPECT_EQ(program().main().pneCustomCrop.dgCustom.row(), 3);
}

TEST_F(Windows, TheYieldGridSupportsCopyCutAndPaste) {
  openGrid();
  QTest::keyClicks(grid(), QStringLiteral("88"));
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("88"));
  key(Qt::Key_Right);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(cell(1, 2), "88");
  key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(cell(1, 2), "");
  EXPECT_EQ(cell(1, 1), "88");
}

TEST_F(Windows, AVariableTrendLeadsFromTheToolsMenuToItsSecondStepAndBack) {
  start();
  typeFarm();
  MainMenus& menus = program().main().menus;
  expectBox();
  choose(menus.mnuEnableBatch);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].substr(0, boxes[0].find('|')), "Trend processing enabled");
  choose(menus.mnuFallBatch);
  BatchSetupPane& setup = program().main().trends.pneBatchSetup0;
  ASSERT_EQ(pane(), setup.name());
  tick(setup.optBatchVariable[3]->path());
  EXPECT_TRUE(setup.optBatchVariable[3]->checked());
  tick(setup.optBatchOption[0]->path());
  type(setup.txtBatchMinimum[0].path(), "8");
  type(setup.txtBatchMinimum[1].path(), "12");
  press(setup.cmdBatchIt.path());
  BatchResultsPane& results = program().main().trends.pneBatchSetup1;
  ASSERT_EQ(pane(), results.name());
  BatchResults& steps = results.theBatchResults;
  auto* step = widget<QLabel>(steps.lblBatchDescription1.path());
  auto* value = widget<QLabel>(steps.lblFreeBatchDescription.path());
  EXPECT_TRUE(step->text().startsWith(QLatin1String("Step 1 of "))) << step->text().toStdString();
  const QString first = value->text();
  window()->activateWindow();
  QTest::qWait(0);  // lets the pane be laid out
  press(steps.cmdBatchStep[0].path());
  EXPECT_TRUE(step->text().startsWith(QLatin1String("Step 2 of "))) << step->text().toStdString();
  EXPECT_NE(value->text(), first);
  press(steps.cmdBatchStep[1].path());
  EXPECT_TRUE(step->text().startsWith(QLatin1String("Step 1 of ")));
  EXPECT_EQ(value->text(), first);
  widget(steps.cmdBatchStep[0].path())->setFocus();  // the keys also work from there
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_EQ(pane(), setup.name());
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_EQ(pane(), "pneMain");
}

}  // namespace
}  // namespace verdalis::testing
