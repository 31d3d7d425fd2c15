#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <algorithm>
#include <fstream>
#include <iterator>

#include "desktop/SchemeWatcher.h"
#include "desktop/Theme.h"
#include "desktop/posix/PortalListener.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests the custom crop editor with the mouse, the keyboard and the real clipboard.
class CustomCrop : public RunningDesktop {
 protected:
  [[nodiscard]] CustomCropPane& editor() { return program().main().pneCustomCrop; }
  [[nodiscard]] QTableWidget* grid() { return widget<QTableWidget>("dgCustom"); }
  [[nodiscard]] std::filesystem::path folder() const { return home() / "crops/custom"; }

  void open() {
    start();
    choose(program().main().menus.mnuCustomCrop);
    ASSERT_EQ(pane(), "pneCustomCrop");
    QTest::qWait(0);
  }

  /// Selects a list entry by its text, with the arrow keys.
  void pick(int list, const char* text) {
    auto* shown = widget<QComboBox>("cboCustomGrid(" + std::to_string(list) + ")");
    shown->setFocus(Qt::TabFocusReason);
    QTest::qWait(0);
    QTest::keyClick(shown, Qt::Key_Home);
    for (int i = 0; i < shown->count() && shown->currentText() != QLatin1String(text); ++i)
      QTest::keyClick(shown, Qt::Key_Down);
    ASSERT_EQ(shown->currentText(), QLatin1String(text));
  }

  /// Selects a list entry directly by its first letter.
  void pickByLetter(int list, Qt::Key letter, const char* text) {
    auto* shown = widget<QComboBox>("cboCustomGrid(" + std::to_string(list) + ")");
    shown->setFocus(Qt::TabFocusReason);
    QTest::qWait(0);
    QTest::keyClick(shown, letter);
    ASSERT_EQ(shown->currentText(), QLatin1String(text));
  }

  void clickCell(int row, int column) {
    grid()->setFocus();
    const QRect place = grid()->visualItemRect(grid()->item(row, column));
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, place.center());
  }

  [[nodiscard]] std::string cell(int row, int column) { return editor().dgCustom.cell(row, column); }

  [[nodiscard]] static std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  [[nodiscard]] std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  /// The row of a crop on the main pane; empty if there is none.
  [[nodiscard]] std::string rowOf(const std::string& crop) {
    for (const auto& row : program().main().pneMain.cr) {
      if (row->GetCrop() == crop) return row->path();
    }
    return {};
  }
};

TEST_F(CustomCrop, ACropCanBeCreatedUsedRenamedAndDeleted) {
  // Create: name it, set its size, paste from a spreadsheet, correct one cell by hand.
  open();
  type("txtCustom(0)", "Oats/new");
  pick(1, "11");
  pick(2, "12");
  pick(3, "2");
  pick(4, "pounds/acre");
  press("cmdCustomGrid(0)");
  EXPECT_EQ(grid()->rowCount(), 4);
  EXPECT_EQ(grid()->columnCount(), 3);
  QApplication::clipboard()->setText(QStringLiteral("1000\t1100\r\n2000\t2200\r\n3000\t330\r\n"));
  press("cmdCustomGrid(4)");
  EXPECT_EQ(cell(3, 2), "330");
  clickCell(3, 2);
  QTest::keyClicks(grid(), QStringLiteral("0"));
  EXPECT_EQ(cell(3, 2), "3300");
  expectBox();
  press("cmdCustomGrid(2)");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Saved|The custom crop has been saved.");
  EXPECT_EQ(files(), std::vector<std::string>{"Oatsnew.txt"});
  EXPECT_EQ(contents(folder() / "Oatsnew.txt"),
            "CROP=Oats/new\r\n\r\nUNITS=lb,pounds\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1,2\r\n\r\n"
            "YIELD_VALUES=1000,1100,2000,2200,3000,3300\r\n");

  // Use: it has a row on the main pane and takes part in an evaluation.
  press("cmdCustomGrid(5)");
  ASSERT_EQ(pane(), "pneMain");
  type("txtArea", "100");
  type("txtMax", "2");
  type("txtAnnRain", "11");
  tick("Option1(5)");
  press("Command7");
  QTest::qWait(0);
  const std::string row = rowOf("Oats/new");
  ASSERT_FALSE(row.empty());
  tick(row + ".chkCrop");
  type(row + ".txtPrice", "0.2");
  type(row + ".txtMaxYield", "3300");
  press("Command1");
  ASSERT_EQ(pane(), "pneResults");
  EXPECT_EQ(widget<QLabel>("theResults.rh(0).lblCrop")->text(), QStringLiteral("Oats/new"));
  pressKey(Qt::Key_Escape);
  ASSERT_EQ(pane(), "pneMain");

  // Rename: the answer No keeps the old file and writes the new name into it.
  choose(program().main().menus.mnuCustomCrop);
  QTest::qWait(0);
  EXPECT_FALSE(widget("cmdCustomGrid(6)")->isVisible());
  pick(0, "Oats/new");
  EXPECT_TRUE(widget("cmdCustomGrid(6)")->isVisible());
  EXPECT_EQ(cell(3, 2), "3300");
  type("txtCustom(0)", "Rye");
  pick(4, "pounds/acre");
  boxes.clear();
  expectAnswer(QMessageBox::No);
  QTimer::singleShot(150, qApp, [this] { expectBox(); });
  press("cmdCustomGrid(2)");
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(
      boxes[0],
      "Save as new?|Do you want to save this as a new custom crop?  Selecting YES will create a new custom "
      "crop.");
  EXPECT_EQ(files(), std::vector<std::string>{"Oatsnew.txt"});
  EXPECT_EQ(contents(folder() / "Oatsnew.txt").substr(0, 10), "CROP=Rye\r\n");

  // Delete: the first question is answered with No.
  choose(program().main().menus.mnuCustomCrop);
  QTest::qWait(0);
  pick(0, "Rye");
  boxes.clear();
  expectAnswer(QMessageBox::No);
  press("cmdCustomGrid(6)");
  EXPECT_EQ(files().size(), 1U);
  expectAnswer(QMessageBox::Yes);
  QTimer::singleShot(150, qApp, [this] { expectBox(); });
  press("cmdCustomGrid(6)");
  ASSERT_EQ(boxes.size(), 3U);
  EXPECT_EQ(boxes[1], "Delete crop?|Delete Rye");
  EXPECT_EQ(boxes[2], "Crop deleted|Custom crop deleted");
  EXPECT_TRUE(files().empty());
  EXPECT_FALSE(rowOf("Rye").empty()) << "the row stays until the way home";
  press("cmdCustomGrid(5)");
  EXPECT_TRUE(rowOf("Rye").empty());
}

TEST_F(CustomCrop, ATypedNameIsNotLostWithoutAQuestion) {
  open();
  type("txtCustom(0)", "Oats");
  expectAnswer(QMessageBox::No);
  press("cmdCustomGrid(5)");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Are you sure?|Are you sure?  Any unsaved changes to this custom crop will be lost.");
  EXPECT_EQ(pane(), "pneCustomCrop");
  expectAnswer(QMessageBox::Yes);
  pressKey(Qt::Key_Escape);
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(CustomCrop, TheCopiedGridHasHeadsAndCannotBePastedBack) {
  open();
  pickByLetter(5, Qt::Key_A, "Alfalfa");
  EXPECT_EQ(grid()->rowCount(), 24);
  EXPECT_EQ(cell(1, 1), "1.391");
  EXPECT_EQ(widget<QComboBox>("cboCustomGrid(4)")->currentText(), QStringLiteral("tons/acre"));
  expectBox();
  press("cmdCustomGrid(3)");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0],
            "Ready to Paste|Your grid has been copied to your clipboard and can now be pasted into Excel");
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.contains(QStringLiteral("\t11 in.\t12 in."))) << copied.left(60).toStdString();
  EXPECT_EQ(copied.count(QLatin1Char('\n')), 23);
  // A pasted text that includes row and column heads is not a table of numbers.
  boxes.clear();
  expectBox();
  press("cmdCustomGrid(4)");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].substr(0, boxes[0].find('|')), "Try again");
  EXPECT_EQ(cell(1, 1), "1.391");
}

TEST_F(CustomCrop, CellShadesFollowTheYieldsInBothSchemes) {
  open();
  pickByLetter(5, Qt::Key_C, "Corn");
  const auto ground = [&](int row, int column) { return grid()->item(row, column)->background().color(); };
  std::vector<QColor> low;
  desktop::SchemeWatcher watcher(*qApp, desktop::Scheme::light);
  desktop::PortalListener portal([&](auto preference) { watcher.preferenceChanged(preference); });
  const auto prefer = [&](unsigned value) {
    portal.settingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                          QDBusVariant(value));
    QTest::qWait(0);
  };
  for (const auto scheme : {desktop::Scheme::light, desktop::Scheme::dark}) {
    prefer(scheme == desktop::Scheme::dark ? 1 : 2);
    EXPECT_EQ(desktop::schemeOf(QApplication::palette()), scheme);
    low.push_back(ground(1, 1));
    EXPECT_NE(ground(1, 1), ground(25, 11));
    EXPECT_NE(ground(10, 5), ground(25, 11));
    EXPECT_EQ(ground(0, 3), ground(3, 0)) << "the heads";
    EXPECT_NE(ground(0, 3), ground(1, 3));
  }
  prefer(0);
  EXPECT_EQ(desktop::schemeOf(QApplication::palette()), desktop::Scheme::light) << "no preference";
  EXPECT_LT(low[1].lightness() + 100, low[0].lightness()) << "the shades of the dark scheme are dark";
}

TEST_F(CustomCrop, ALargePasteIsFast) {
  open();
  pick(1, "9");
  pick(2, "32");
  pick(3, "32");
  press("cmdCustomGrid(0)");
  ASSERT_EQ(grid()->rowCount(), 34);
  ASSERT_EQ(grid()->columnCount(), 25);
  QString text;
  for (int row = 0; row < 400; ++row) {
    for (int column = 0; column < 100; ++column)
      text += QString::number(row * 100 + column) + QLatin1Char('\t');
    text += QStringLiteral("\r\n");
  }
  QApplication::clipboard()->setText(text);
  int updates = 0;
  desktop().binder().alsoWatch(editor().dgCustom, [&] { ++updates; });
  updates = 0;
  press("cmdCustomGrid(4)");
  EXPECT_EQ(cell(33, 24), "3223");
  EXPECT_EQ(grid()->item(33, 24)->text(), QStringLiteral("3223"));
  EXPECT_LE(updates, 3) << "the table is drawn once, not once a cell";
}

TEST_F(CustomCrop, ACharacterOfTwoUtf16UnitsIsOneCharacter) {
  open();
  clickCell(1, 1);
  QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("🌽"));
  QApplication::sendEvent(grid(), &press);
  EXPECT_EQ(cell(1, 1), "🌽");
  QTest::keyClick(grid(), Qt::Key_Backspace);
  EXPECT_EQ(cell(1, 1), "");
}

}  // namespace
}  // namespace verdalis::testing
