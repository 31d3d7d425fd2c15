#include <QScopeGuard>

#include "desktop/Theme.h"
#include "tests/desktop/EachPane.h"

namespace verdalis::testing {
namespace {

/// Tests whether the contents of the panes fit, in the smallest window and with a large font.
using Layout = EachPane;

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

TEST_F(Layout, NoPageScrollsOnASmallLaptop) {
  forEachPane({1366, 768}, [this](const std::string& pane) {
    expectRoom(pane);
    const auto* page = desktop().mainWindow()->currentPage();
    for (const QScrollArea* area : page->findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << pane;
      if (area->objectName() == QLatin1String("cropFrameHolder")) continue;  // as many crops as there are
      EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << pane;
    }
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

TEST_F(LargeFont, NoWindowNeedsMoreThanAScreen) {
  forEachPane({1, 1}, [this](const std::string& pane) {
    EXPECT_LE(window()->width(), 1920) << pane;
    EXPECT_LE(window()->height(), 1080) << pane;
  });
}

TEST_F(LargeFont, NothingIsClipped) {
  forEachPane({1280, 800}, [this](const std::string& pane) { expectRoom(pane); });
}

}  // namespace
}  // namespace verdalis::testing
