#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include "desktop/Theme.h"
#include "tests/desktop/RunningDesktop.h"
#include "tests/support/SavedOptions.h"

namespace verdalis::testing {
namespace {

const char* const longName =
    "An option with a name that is so long that neither a tick box nor a column has room for it";

class CompareWindow : public RunningDesktop {
 protected:
  void open(int count) {
    start();
    FarmInputs other = savedInputs();
    other.farm.txtMax = "10";
    for (int i = 0; i < count; ++i) {
      saved_.add(savedOption(
          {savedField("Corn", 60, 8, 50000 + 100 * i, 20000), savedField("Wheat", 40, 4, 12000, 8000)},
          i == 0 ? savedInputs() : other, i == 1 ? longName : ""));
    }
    frmMain& main = program().main();
    main.savedForCompare = [this]() -> const SharedList<SavedOption>& { return saved_; };
    main.pneCompare.open();
    ASSERT_EQ(pane(), "pneCompare");
    QTest::qWait(0);
  }

  [[nodiscard]] QTableWidget* table() { return widget<QTableWidget>("fgCompare"); }

 private:
  SharedList<SavedOption> saved_;
};

TEST_F(CompareWindow, EveryOptionHasATickBoxAndAColumn) {
  open(2);
  EXPECT_EQ(desktop().mainWindow()->currentPage(), widget("pneCompare"));
  EXPECT_TRUE(table()->isVisible());
  EXPECT_EQ(table()->horizontalHeaderItem(1)->text(), QStringLiteral("Saved Option #1"));
  EXPECT_EQ(table()->verticalHeaderItem(1)->text(), QStringLiteral("Net return of the farm"));
  EXPECT_TRUE(table()->isRowHidden(0));
  EXPECT_TRUE(table()->isColumnHidden(0));
  EXPECT_EQ(table()->item(2, 2)->text(), QStringLiteral("best"));
  tick("chkCompare(1)");
  EXPECT_EQ(table()->columnCount(), 2);
  tick("chkCompare(0)");
  EXPECT_FALSE(table()->isVisible());
}

TEST_F(CompareWindow, LongNamesAreShortenedAndStandInTheToolTip) {
  open(2);
  auto* box = widget<QCheckBox>("chkCompare(1)");
  EXPECT_LT(box->text().size(), QString::fromUtf8(longName).size());
  EXPECT_EQ(box->toolTip(), QString::fromUtf8(longName));
  EXPECT_EQ(box->accessibleName(), QString::fromUtf8(longName));
  EXPECT_EQ(table()->horizontalHeaderItem(2)->toolTip(), QString::fromUtf8(longName));
  EXPECT_LT(table()->columnWidth(2), 400);
  EXPECT_LT(QFontMetrics(table()->font()).horizontalAdvance(table()->horizontalHeaderItem(2)->text()),
            table()->columnWidth(2));
  EXPECT_TRUE(widget("chkCompare(0)")->toolTip().isEmpty());
}

TEST_F(CompareWindow, ASectionGoesAcrossAllColumns) {
  open(3);
  int sections = 0;
  for (int row = 1; row < table()->rowCount(); ++row) {
    const bool section = program().main().pneCompare.isSection(row);
    EXPECT_EQ(table()->columnSpan(row, 1), section ? 3 : 1) << row;
    EXPECT_EQ(table()->verticalHeaderItem(row)->font().bold(), section) << row;
    sections += section ? 1 : 0;
  }
  EXPECT_EQ(sections, 3);
}

TEST_F(CompareWindow, ManyColumnsScrollAndTheWindowKeepsItsSize) {
  open(20);
  window()->resize(window()->minimumSize());
  for (int i = 0; i < 14; ++i)
    control<CheckBox>("chkCompare(" + std::to_string(i) + ")").click();
  QTest::qWait(0);
  EXPECT_EQ(table()->columnCount(), 21);
  EXPECT_GT(table()->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(window()->size(), window()->minimumSize());
  EXPECT_TRUE(comes([&] { return table()->height() > 200; }));
}

TEST_F(CompareWindow, TheBestIsMarkedInAColourThatFollowsTheScheme) {
  open(2);
  EXPECT_EQ(table()->item(1, 2)->foreground().color(), QColor(0x008000));
  EXPECT_TRUE(table()->item(1, 2)->font().bold());
  EXPECT_FALSE(table()->item(1, 1)->font().bold());
  desktop::applyTheme(*qApp, desktop::Scheme::dark);
  EXPECT_TRUE(comes([&] { return table()->item(1, 2)->foreground().color().lightness() > 128; }));
  desktop::applyTheme(*qApp, desktop::Scheme::light);
}

TEST_F(CompareWindow, TheKeyboardReachesEverything) {
  open(3);
  QWidget* page = desktop().mainWindow()->currentPage();
  EXPECT_EQ(window()->focusWidget(), widget("chkCompare(0)")) << "the first tick box";
  for (const char* next : {"chkCompare(1)", "chkCompare(2)", "fgCompare"}) {
    QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window()->focusWidget(), widget(next)) << next;
  }
  ASSERT_TRUE(page->isAncestorOf(window()->focusWidget()));
  widget("chkCompare(0)")->setFocus();
  pressKey(Qt::Key_Space);
  EXPECT_FALSE(control<CheckBox>("chkCompare(0)").checked());
  pressKey(Qt::Key_Right);
  EXPECT_EQ(window()->focusWidget(), widget("chkCompare(1)"));
  press("cmdCopy");
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QLatin1String("Net return of the farm\t")));
  pressKey(Qt::Key_Escape);
  EXPECT_TRUE(comes([&] { return pane() == "pneMain"; }));
}

}  // namespace
}  // namespace verdalis::testing
