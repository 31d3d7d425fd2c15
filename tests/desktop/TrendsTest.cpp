#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <fstream>
#include <iterator>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests trends with the mouse, the keyboard and the file choosers.
class Trends : public RunningDesktop {
 protected:
  [[nodiscard]] BatchSetupPane& setup() { return program().main().trends.pneBatchSetup0; }
  [[nodiscard]] BatchResults& results() { return program().main().trends.pneBatchSetup1.theBatchResults; }

  /// Enters a farm and enables trends.
  void startWithTrends() {
    start();
    typeFarm();
    expectBox();
    choose(program().main().menus.mnuEnableBatch);
    ASSERT_EQ(boxes.size(), 1U);
    boxes.clear();
  }

  void openVariableTrend() {
    startWithTrends();
    choose(program().main().menus.mnuFallBatch);
    ASSERT_EQ(pane(), setup().name());
  }

  /// Evaluates and opens the setup of a fixed trend for the best option.
  void openFixedTrend() {
    startWithTrends();
    press("Command1");
    ASSERT_EQ(pane(), "pneResults");
    QTest::qWait(0);
    press("theResults.cmdBatchThis");
    ASSERT_EQ(pane(), setup().name());
    QTest::qWait(0);
  }

  /// Selects a list entry by its text, with the arrow keys.
  void pick(ComboBox& list, const char* text) {
    auto* shown = widget<QComboBox>(list.path());
    shown->setFocus(Qt::TabFocusReason);
    QTest::qWait(0);
    QTest::keyClick(shown, Qt::Key_Up);
    for (int i = 0; i < shown->count() && shown->currentText() != QLatin1String(text); ++i)
      QTest::keyClick(shown, Qt::Key_Down);
    ASSERT_EQ(list.text(), text);
  }

  [[nodiscard]] std::string text(const Label& label) {
    return widget<QLabel>(label.path())->text().toStdString();
  }

  [[nodiscard]] static std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  void write(const char* name, const char* bytes) { std::ofstream(home() / name) << bytes; }
};

TEST_F(Trends, ValuesCanBeTypedAsAList) {
  openVariableTrend();
  type(setup().txtBatchList.path(), "4, 5.5,x,6");
  EXPECT_TRUE(setup().optBatchOption[2]->checked());
  EXPECT_EQ(text(setup().lblBatchPreview), "4, 5.5, 6");
  press(setup().cmdBatchIt.path());
  ASSERT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(text(results().lblBatchDescription1), "Step 1 of 3");
  EXPECT_EQ(text(results().lblFreeBatchDescription), "Corn Crop Price: $4.00 / bu.");
}

TEST_F(Trends, ValuesCanBeReadFromAFile) {
  write("prices.txt", "3,4.5,\r\n6");
  openVariableTrend();
  expectChooser(QString::fromStdString((home() / "prices.txt").string()));
  press(setup().cmdOpenBatch.path());
  ASSERT_EQ(titles.size(), 1U);
  EXPECT_EQ(titles[0], "Select a file with trend values");
  EXPECT_EQ(text(setup().lblBatchFile), (home() / "prices.txt").string());
  EXPECT_TRUE(setup().optBatchOption[1]->checked());
  EXPECT_EQ(text(setup().lblBatchPreview), "3, 4.5, 6");
  press(setup().cmdBatchIt.path());
  ASSERT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(text(results().lblBatchDescription1), "Step 1 of 3");
  // Then another file, and one without numbers.
  pressKey(Qt::Key_Escape);
  ASSERT_EQ(pane(), setup().name());
  expectChooser({});
  press(setup().cmdOpenBatch.path());
  EXPECT_EQ(text(setup().lblBatchFile), (home() / "prices.txt").string());
  write("words.txt", "3,four");
  expectChooser(QString::fromStdString((home() / "words.txt").string()));
  press(setup().cmdOpenBatch.path());
  expectBox();
  press(setup().cmdBatchIt.path());
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].substr(0, boxes[0].find('|')), "Invalid value");
  EXPECT_NE(boxes[0].find("four"), std::string::npos) << boxes[0];
  EXPECT_EQ(pane(), setup().name());
}

TEST_F(Trends, UnitsAndPreviewFollowTheSelectionImmediately) {
  openVariableTrend();
  EXPECT_EQ(text(setup().lblgeneric24), "($ / bu.)");
  tick(setup().optBatchVariable[5]->path());
  EXPECT_EQ(text(setup().lblgeneric24), "(inches)");
  EXPECT_EQ(text(setup().lblgeneric25), "(inches)");
  type(setup().txtBatchMinimum[0].path(), "12");
  type(setup().txtBatchMinimum[1].path(), "16");
  pick(setup().cboBatchSteps, "3");
  EXPECT_EQ(text(setup().lblBatchPreview), "12, 14, 16");
  type(setup().txtBatchMinimum[0].path(), "10");
  EXPECT_EQ(text(setup().lblBatchPreview),
            "Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.");
  expectBox();
  press(setup().cmdBatchIt.path());
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(
      boxes[0],
      "Please try again|Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.");
}

TEST_F(Trends, AFixedTrendOverTwoVariablesCanBeExportedToASpreadsheet) {
  openFixedTrend();
  EXPECT_TRUE(widget(setup().frmBatches.path())->isVisible());
  EXPECT_FALSE(widget(setup().cmdDeleteBatch.path())->isEnabled());
  pick(setup().cboCrops, "Corn");
  type(setup().txtBatchList.path(), "5,6,7");
  press(setup().cmdAddBatchProcess.path());
  ASSERT_EQ(widget<QComboBox>(setup().cboBatches.path())->count(), 2);
  EXPECT_FALSE(widget(setup().cmdAddBatchProcess.path())->isEnabled());
  EXPECT_TRUE(widget(setup().check[0]->path())->isVisible());
  EXPECT_FALSE(widget(setup().check[3]->path())->isVisible());
  tick(setup().optBatchVariable[3]->path());
  type(setup().txtBatchMinimum[0].path(), "80");
  type(setup().txtBatchMinimum[1].path(), "90");
  type(setup().cboBatchSteps.path(), "2");
  EXPECT_EQ(text(setup().lblBatchPreview), "80, 90");

  // To the first process and back: the typed values are kept.
  pick(setup().cboBatches, "1");
  EXPECT_EQ(widget<QLineEdit>(setup().txtBatchList.path())->text(), QStringLiteral("5,6,7"));
  pick(setup().cboBatches, "2");
  EXPECT_EQ(widget<QLineEdit>(setup().txtBatchMinimum[1].path())->text(), QStringLiteral("90"));
  EXPECT_TRUE(setup().optBatchVariable[3]->checked());

  press(setup().cmdBatchIt.path());
  ASSERT_EQ(pane(), "pneBatchSetup(1)");
  QTest::qWait(0);
  EXPECT_EQ(text(program().main().trends.pneBatchSetup1.batchTitle), "Fixed Trend Results");
  EXPECT_FALSE(widget(results().pnlBatchSteps.path())->isVisible());
  Results& options = results().theResults;
  // The best combination is the highest corn price with the most water on corn.
  EXPECT_EQ(text(options.lblBatchDescriptions[0]), "Crop Price - Corn : $7.00 / bu.");
  EXPECT_EQ(text(options.lblBatchDescriptions[1]), "Irrigation System Efficiency : 90.00 %");
  pressKey(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(text(options.lblCounter), "Option 2");

  const std::filesystem::path file = home() / "trend.xls";
  expectChooser(QString::fromStdString(file.string()));
  QTimer::singleShot(100, qApp, [this] { expectAnswer(QMessageBox::No); });  // do not open the file
  press(options.cmdExcel.path());
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Export Complete|The Microsoft Excel worksheet '" + file.string() +
                          "' has been created successfully!\nDo you want to open this file now?");
  const std::string page = contents(file);
  EXPECT_NE(page.find("Table of Net-Returns Across the Fixed Trend Variable"), std::string::npos);
  EXPECT_NE(page.find("<tr><td>7.00</td></tr>\r\n"), std::string::npos);
  EXPECT_NE(page.find("<td>90.00</td>\r\n"), std::string::npos);

  press(options.Command1.path());
  EXPECT_EQ(pane(), setup().name());
  press(setup().Command10.path());
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(Trends, AProcessIsDeletedAfterAQuestion) {
  openFixedTrend();
  pick(setup().cboCrops, "Corn");
  type(setup().txtBatchList.path(), "5,6");
  press(setup().cmdAddBatchProcess.path());
  ASSERT_TRUE(widget(setup().cmdDeleteBatch.path())->isEnabled());
  type(setup().txtBatchList.path(), "7,8");
  expectAnswer(QMessageBox::No);
  press(setup().cmdDeleteBatch.path());
  EXPECT_EQ(widget<QComboBox>(setup().cboBatches.path())->count(), 2);
  expectAnswer(QMessageBox::Yes);
  press(setup().cmdDeleteBatch.path());
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[1], "Delete|Delete this trend process?");
  EXPECT_EQ(widget<QComboBox>(setup().cboBatches.path())->count(), 1);
  EXPECT_EQ(widget<QLineEdit>(setup().txtBatchList.path())->text(), QStringLiteral("5,6"));
  EXPECT_TRUE(widget(setup().cmdAddBatchProcess.path())->isEnabled());
}

TEST_F(Trends, CancellingATrendStaysOnTheSetup) {
  openVariableTrend();
  type(setup().txtBatchList.path(), "4,5,6");
  program().windows.updating();
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  int runs = 0;
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() == 1 && ++runs == 2) QTest::keyClick(window(), Qt::Key_Escape);
  });
  press(setup().cmdBatchIt.path());
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(pane(), setup().name());
  EXPECT_FALSE(program().windows.updating().isOpen());
  EXPECT_EQ(widget<QLineEdit>(setup().txtBatchList.path())->text(), QStringLiteral("4,5,6"));
  pressKey(Qt::Key_Escape);
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Trends, EscapeGoesBackAfterACancelledFixedTrendLeavesItsWindowOpen) {
  openFixedTrend();
  pick(setup().cboCrops, "Corn");
  type(setup().txtBatchList.path(), "5,6,7,8");
  program().windows.updating();
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() == 2) QTest::keyClick(window(), Qt::Key_Escape);
  });
  press(setup().cmdBatchIt.path());
  EXPECT_EQ(pane(), setup().name());
  EXPECT_TRUE(program().windows.updating().isOpen());
  EXPECT_TRUE(program().state.CancelRequested);
  pressKey(Qt::Key_Escape);
  EXPECT_EQ(pane(), "pneResults");
}

}  // namespace
}  // namespace verdalis::testing
