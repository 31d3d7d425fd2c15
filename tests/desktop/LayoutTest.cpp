#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <vector>

#include "desktop/Theme.h"
#include "tests/desktop/RunningDesktop.h"
#include "tests/support/SavedOptions.h"

namespace verdalis::testing {
namespace {

/// Tests whether the contents of the panes fit, in the smallest window and with a large font.
class Layout : public RunningDesktop {
 protected:
  /// Shows each pane in typical use and calls `look` with its name.
  void forEachPane(QSize size, const std::function<void(const std::string&)>& look) {
    const auto shown = [&](const std::string& name) {
      settle(window());
      ASSERT_EQ(pane(), name);
      look(name);
    };
    start();
    window()->resize(size);
    typeFarm();
    tick("Option1(4)");
    tick("cr(2).chkCrop");
    shown("pneMain");
    press("cr(1).cmdInputCosts");
    shown("pneInputCosts");
    press("Command6");
    tick("cr(0).chkCrop");
    press("cr(0).cmdInputCosts");
    shown("pneInputCosts");
    press("Command6");
    press("Command8");
    shown("pneIrrigCosts");
    press("Command9");
    press("Command1");
    shown("pneResults");
    press("theResults.rh(0).cmdDetails");
    shown("pneDetails");
    press("theDetails.Command3");
    expectBox();
    press("theResults.cmdSaveResult");
    saved_ = {};
    for (int i = 0; i < 8; ++i) {
      saved_.add(
          savedEarning(100 * i, savedInputs(), i == 3 ? "An option with a name that is rather long" : ""));
    }
    program().main().savedForCompare = [this]() -> const SharedList<SavedOption>& { return saved_; };
    program().main().pneSummary.showSummary();
    shown("pneSummary");
    press("cmdCompare");
    shown("pneCompare");
    choose(program().main().menus.mnuCustomCrop);
    control<ComboBox>("cboCustomGrid(5)").pick(0);
    shown("pneCustomCrop");
    press("cmdCustomGrid(5)");
    typeFarm();
    program().main().TrendNoticeShown = true;
    choose(program().main().menus.mnuEnableBatch);
    choose(program().main().menus.mnuFallBatch);
    type("txtBatchList", "4,5,6");
    shown("pneBatchSetup(0)");
    press("cmdBatchIt");
    shown("pneBatchSetup(1)");
    press("theBatchResults.theResults.cmdBatchThis");
    type("txtBatchList", "4,5,6");
    shown("pneBatchSetup(0)");
    control<ComboBox>("cboCrops").pick(0);
    press("cmdBatchIt");
    shown("pneBatchSetup(1)");
  }

  /// Waits until the layout has come to rest: a busy machine takes several turns for it.
  static void settle(const QWidget* shownWindow) {
    constexpr int turn = 20;  // ms
    const auto places = [&] {
      std::vector<QRect> result;
      for (const QWidget* child : shownWindow->findChildren<QWidget*>())
        result.push_back(child->geometry());
      return result;
    };
    QTest::qWait(turn);
    EXPECT_TRUE(comes([&] {
      const std::vector<QRect> before = places();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
      QTest::qWait(turn);
      return places() == before;
    }));
  }

  /// Requires that every text has enough room.
  void expectRoom(const std::string& pane) { expectRoomIn(window(), pane); }

  static void expectRoomIn(const QWidget* shownWindow, const std::string& pane) {
    for (QWidget* child : shownWindow->findChildren<QWidget*>()) {
      if (!child->isVisible() || child->objectName().startsWith(QLatin1String("qt_"))) continue;
      const std::string name =
          pane + ": " + child->objectName().toStdString() + " (" + child->metaObject()->className() + ")";
      if (const auto* label = qobject_cast<QLabel*>(child)) {
        if (label->text().isEmpty()) continue;
        if (label->wordWrap()) {
          EXPECT_GE(label->height(), label->heightForWidth(label->width()))
              << name << ' ' << label->text().toStdString();
        } else {
          EXPECT_GE(label->width(), label->sizeHint().width()) << name << ' ' << label->text().toStdString();
          EXPECT_GE(label->height(), label->sizeHint().height())
              << name << ' ' << label->text().toStdString();
        }
      } else if (const auto* button = qobject_cast<QAbstractButton*>(child)) {
        if (button->text().isEmpty()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << name << ' ' << button->text().toStdString();
        EXPECT_GE(button->height(), button->sizeHint().height()) << name;
      } else if (const auto* field = qobject_cast<QLineEdit*>(child)) {
        if (qobject_cast<QComboBox*>(field->parentWidget()) != nullptr) continue;
        const int shown = field->fontMetrics().horizontalAdvance(field->text());
        EXPECT_GE(field->width(), shown + 8) << name << ' ' << field->text().toStdString();
        EXPECT_GE(field->height(), field->sizeHint().height()) << name;
      } else if (const auto* list = qobject_cast<QComboBox*>(child)) {
        const int shown = list->fontMetrics().horizontalAdvance(list->currentText());
        EXPECT_GE(list->width(), shown + 30) << name << ' ' << list->currentText().toStdString();
      }
    }
  }

  /// Requires that no page scrolls sideways.
  void expectNoSidewaysScrolling(const std::string& pane) {
    for (QScrollArea* area : window()->findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << pane;
    }
    EXPECT_EQ(window()->size(), window()->minimumSize()) << pane;
  }

 private:
  SharedList<SavedOption> saved_;
};

TEST_F(Layout, TabStopsOnlyAtControls) {
  forEachPane({1180, 820}, [this](const std::string& pane) {
    const QWidget* page = desktop().mainWindow()->currentPage();
    int stops = 0;
    for (const QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
      if (!page->isAncestorOf(next) || !next->isVisible() || (next->focusPolicy() & Qt::TabFocus) == 0 ||
          next->focusProxy() != nullptr) {
        continue;
      }
      ++stops;
      EXPECT_FALSE(next->objectName().isEmpty()) << pane << ' ' << next->metaObject()->className();
    }
    EXPECT_GT(stops, 2) << pane;
  });
}

TEST_F(Layout, EverythingFitsInTheSmallestWindow) {
  forEachPane({1, 1}, [this](const std::string& pane) {
    EXPECT_LE(window()->width(), 1024);
    EXPECT_LE(window()->height(), 700);
    expectRoom(pane);
    expectNoSidewaysScrolling(pane);
  });
}

/// The same with a large font, as used by people with poor eyesight.
class LargeFont : public Layout {
 protected:
  LargeFont() {
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    QApplication::setFont(large);
    desktop::applyTheme(*qApp, desktop::Scheme::light);
    restart();
  }

 private:
  const QScopeGuard<std::function<void()>> restore_{[before = QApplication::font()] {
    QApplication::setFont(before);
    desktop::applyTheme(*qApp, desktop::Scheme::light);
  }};
};

TEST_F(LargeFont, EverythingFitsInTheSmallWindows) {
  start();
  program().windows.help();
  showHelpNote(program().windows.help(), "A note that is so long that it takes more than one line.", "A",
               1725);
  for (const char* name : {"frmOptions", "frmAbout", "frmHelp", "frmNotes"}) {
    if (name == std::string("frmOptions")) choose(program().main().menus.mnuOptions);
    if (name == std::string("frmAbout")) choose(program().main().menus.mnuAboutVDL);
    if (name == std::string("frmNotes")) choose(program().main().menus.mnuNotes);
    settle(widget(name));
    expectRoomIn(widget(name), name);
  }
}

TEST_F(LargeFont, NothingIsClipped) {
  forEachPane({1280, 800}, [this](const std::string& pane) { expectRoom(pane); });
}

}  // namespace
}  // namespace verdalis::testing
