#include <QLineEdit>

#include "data/farmFile.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests when recovery copies are written and offered.
class Recovery : public RunningDesktop {
 protected:
  Recovery() {
    remembers = true;
    restart();
  }

  [[nodiscard]] frmMain& main() { return program().main(); }

  [[nodiscard]] std::vector<std::filesystem::path> copies() const {
    std::vector<std::filesystem::path> found;
    if (!std::filesystem::exists(home() / "recovery")) return found;
    for (const auto& entry : std::filesystem::directory_iterator(home() / "recovery")) {
      if (entry.path().extension() == farmFileExtension) found.push_back(entry.path());
    }
    return found;
  }

  /// Whether one of the copies holds a text.
  [[nodiscard]] bool isCopied(const std::string& text) const {
    for (const auto& copy : copies()) {
      if (readFarmFile(copy).text.find(text) != std::string::npos) return true;
    }
    return false;
  }
};

TEST_F(Recovery, AChangeIsCopiedSoonAndWithoutLeavingTheField) {
  start();
  QTest::qWait(900);
  EXPECT_TRUE(copies().empty()) << "nothing has changed";
  type("txtArea", "321");
  EXPECT_TRUE(comes([&] { return isCopied("\"txtArea\": \"321\""); }));
  QTest::keyClicks(widget("txtArea"), QStringLiteral("5"));
  EXPECT_TRUE(comes([&] { return isCopied("\"txtArea\": \"3215\""); }));
  EXPECT_EQ(copies().size(), 1U);
}

TEST_F(Recovery, ChangesThatGoOnAreCopiedMeanwhile) {
  start();
  widget("txtArea")->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  bool copied = false;
  for (int i = 0; i < 200 && !copied; ++i) {  // each key comes sooner than a copy
    QTest::keyClick(widget("txtArea"), i % 2 == 0 ? Qt::Key_7 : Qt::Key_Backspace);
    QTest::qWait(50);
    copied = !copies().empty();
  }
  EXPECT_TRUE(copied);
}

TEST_F(Recovery, ACopyIsOfferedAtTheNextStartAndRestored) {
  start();
  type("txtArea", "321");
  ASSERT_TRUE(comes([&] { return isCopied("\"txtArea\": \"321\""); }));
  restart();
  start();
  EXPECT_TRUE(main().recovery.standing());
  EXPECT_EQ(widget<QLineEdit>("txtArea")->text(), QString());
  main().recovery.cmdRestore.click();
  EXPECT_EQ(widget<QLineEdit>("txtArea")->text(), QStringLiteral("321"));
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("Verdalis*"));
  EXPECT_FALSE(main().recovery.standing());
}

TEST_F(Recovery, AnotherRunningProgramKeepsItsCopy) {
  start();
  type("txtArea", "321");
  ASSERT_TRUE(comes([&] { return isCopied("\"txtArea\": \"321\""); }));
  const auto other = anotherDesktop();
  other->program().welcome.Command1.click();
  EXPECT_FALSE(other->program().main().recovery.standing());
  other->program().main().pneMain.txtArea.type("654");
  ASSERT_TRUE(comes([&] { return isCopied("\"txtArea\": \"654\""); }));
  EXPECT_EQ(copies().size(), 2U);
  EXPECT_TRUE(isCopied("\"txtArea\": \"321\""));
}

TEST_F(Recovery, ASavedFarmLeavesNoCopy) {
  start();
  type("txtArea", "321");
  ASSERT_TRUE(comes([&] { return !copies().empty(); }));
  expectChooser(desktop::qText((home() / "river.verdalis").string()));
  desktop().binder().action(main().menus.mnuSaveAs)->trigger();
  EXPECT_TRUE(copies().empty());
  EXPECT_TRUE(window()->close());
  EXPECT_TRUE(copies().empty());
}

TEST_F(Recovery, AtTheEndOfTheSessionTheCopyIsWrittenAndNothingIsAsked) {
  start();
  expectChooser(desktop::qText((home() / "river.verdalis").string()));
  desktop().binder().action(main().menus.mnuSaveAs)->trigger();
  type("txtArea", "321");
  desktop().endSession();
  EXPECT_TRUE(isCopied("\"txtArea\": \"321\""));
  QTest::keyClicks(widget("txtArea"), QStringLiteral("5"));
  QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(boxes.empty());
  EXPECT_TRUE(isCopied("\"txtArea\": \"3215\""));
}

}  // namespace
}  // namespace verdalis::testing
