#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests the bars above the page.
class Notices : public RunningDesktop {
 protected:
  [[nodiscard]] NoticeBar& notices() { return program().main().notices; }
  [[nodiscard]] RecoveryBar& recovery() { return program().main().recovery; }

  void tell(const std::string& text) {
    notices().tell({.text = text});
    QTest::qWait(0);
  }

  void tellWithAction(const std::string& text) {
    notices().tell({.text = text, .actionCaption = "Restore", .action = [this] { ++actions; }});
    QTest::qWait(0);
  }

  /// Where the page begins, below the bars.
  [[nodiscard]] int pageTop() {
    QTest::qWait(20);
    const QWidget* page = desktop().mainWindow()->currentPage();
    return page->mapTo(window(), QPoint()).y();
  }

  [[nodiscard]] bool isShown(const std::string& name) { return widget(name)->isVisible(); }

  int actions = 0;
};

TEST_F(Notices, TakeNoRoomWithoutAny) {
  start();
  const int top = pageTop();
  EXPECT_FALSE(isShown("noticeBar"));
  EXPECT_FALSE(isShown("recoveryBar"));
  tell("The disk is full.");
  EXPECT_TRUE(isShown("noticeBar"));
  EXPECT_GT(pageTop(), top);
  press("cmdNoticeClose");
  EXPECT_FALSE(isShown("noticeBar"));
  EXPECT_EQ(pageTop(), top);
}

TEST_F(Notices, ShowTheNewestWithItsButton) {
  start();
  tell("one");
  tellWithAction("two");
  EXPECT_EQ(widget<QLabel>("lblNotice")->text(), QStringLiteral("two"));
  EXPECT_EQ(widget<QLabel>("lblNoticeCount")->text(), QStringLiteral("1 of 2"));
  EXPECT_EQ(widget<QPushButton>("cmdNotice")->text(), QStringLiteral("Restore"));
  EXPECT_TRUE(isShown("cmdNotice"));
  press("cmdNotice");
  EXPECT_EQ(actions, 1);
  EXPECT_EQ(widget<QLabel>("lblNotice")->text(), QStringLiteral("one"));
  EXPECT_FALSE(isShown("cmdNotice"));
  EXPECT_FALSE(isShown("lblNoticeCount"));
}

TEST_F(Notices, LeaveTheFocusWhereItIs) {
  start();
  widget("txtMax")->setFocus();
  tellWithAction("one");
  recovery().offer("farm", {}, {});
  QTest::qWait(0);
  EXPECT_TRUE(widget("txtMax")->hasFocus());
  QTest::keyClicks(widget("txtMax"), QStringLiteral("12"));
  EXPECT_EQ(control<TextBox>("txtMax").text(), "12");
}

TEST_F(Notices, EscapeClosesThemOnTheMainPage) {
  start();
  widget("txtArea")->setFocus();
  tell("one");
  tell("two");
  pressKey(Qt::Key_Escape);
  EXPECT_EQ(notices().all().size(), 1U);
  pressKey(Qt::Key_Escape);
  EXPECT_FALSE(isShown("noticeBar"));
  EXPECT_TRUE(widget("txtArea")->hasFocus());
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Notices, EscapeLeadsBackFromAnotherPage) {
  start();
  press("Command8");
  ASSERT_EQ(pane(), "pneIrrigCosts");
  tell("one");
  pressKey(Qt::Key_Escape);
  EXPECT_TRUE(comes([&] { return pane() == "pneMain"; }));
  EXPECT_TRUE(isShown("noticeBar"));
}

TEST_F(Notices, EscapeInTheBarClosesTheNoticeOnEveryPage) {
  start();
  press("Command8");
  widget("txtLift")->setFocus();
  tellWithAction("one");
  pressKey(Qt::Key_F6);
  EXPECT_TRUE(widget("cmdNotice")->hasFocus());
  pressKey(Qt::Key_Escape);
  EXPECT_FALSE(isShown("noticeBar"));
  EXPECT_EQ(pane(), "pneIrrigCosts");
  EXPECT_TRUE(widget("txtLift")->hasFocus()) << "back where it was";
  EXPECT_EQ(actions, 0);
}

TEST_F(Notices, EscapeCancelsARunFirst) {
  start();
  typeFarm();
  program().windows.updating();
  tell("one");
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() == 3) QTest::keyClick(window(), Qt::Key_Escape);
  });
  QTest::keyClick(window(), Qt::Key_F5);
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_TRUE(isShown("noticeBar"));
}

TEST_F(Notices, AButtonOfTheBarGivesTheFocusBack) {
  start();
  widget("txtMax")->setFocus();
  tellWithAction("one");
  tell("two");
  press("cmdNoticeClose");
  pressKey(Qt::Key_F6);
  EXPECT_TRUE(widget("cmdNotice")->hasFocus());
  pressKey(Qt::Key_Space);
  EXPECT_EQ(actions, 1);
  EXPECT_TRUE(widget("txtMax")->hasFocus());
}

TEST_F(Notices, KeysOfTheBarsDoNothingWithoutThem) {
  start();
  widget("txtMax")->setFocus();
  pressKey(Qt::Key_F6);
  pressKey(Qt::Key_Escape);
  EXPECT_TRUE(widget("txtMax")->hasFocus());
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Notices, RecoveryCopiesComeFirst) {
  start();
  tell("one");
  int restored = 0;
  recovery().offer("The farm Home Place of May 6", [&] { ++restored; }, {});
  QTest::qWait(0);
  EXPECT_FALSE(isShown("noticeBar"));
  EXPECT_TRUE(isShown("recoveryBar"));
  EXPECT_EQ(widget<QLabel>("lblRecovery")->text(), QStringLiteral("The farm Home Place of May 6"));
  pressKey(Qt::Key_Escape);
  EXPECT_TRUE(isShown("recoveryBar")) << "only its buttons end an offer";
  pressKey(Qt::Key_F6);
  EXPECT_TRUE(widget("cmdRestore")->hasFocus());
  press("cmdRestore");
  EXPECT_EQ(restored, 1);
  EXPECT_FALSE(isShown("recoveryBar"));
  EXPECT_TRUE(isShown("noticeBar"));
}

TEST_F(Notices, HaveAccessibleNames) {
  start();
  tellWithAction("one");
  EXPECT_EQ(widget("cmdNotice")->accessibleName(), QStringLiteral("Restore"));
  EXPECT_EQ(widget("cmdNoticeClose")->accessibleName(), QStringLiteral("Close this notice"));
  EXPECT_EQ(widget("noticeBar")->accessibleName(), QStringLiteral("Notices"));
  EXPECT_EQ(widget("recoveryBar")->accessibleName(), QStringLiteral("Recovery copies"));
  EXPECT_FALSE(widget("cmdNotice")->accessibleDescription().isEmpty()) << "its key";
}

TEST_F(Notices, ALongTextIsCutAndLeavesTheWindowAsItIs) {
  start();
  window()->resize(window()->minimumSize());
  const QSize before = window()->size();
  tell("The file /" + std::string(5000, 'x') + "/crops cannot be read.");
  const int height = widget("noticeBar")->height();
  EXPECT_EQ(window()->size(), before);
  EXPECT_LE(height, 6 * widget("lblNotice")->fontMetrics().height());
  EXPECT_GE(widget("cmdNoticeClose")->width(), widget("cmdNoticeClose")->sizeHint().width());
  EXPECT_LE(widget("cmdNoticeClose")->mapTo(window(), QPoint(widget("cmdNoticeClose")->width(), 0)).x(),
            window()->width());
  QHelpEvent tip(QEvent::ToolTip, QPoint(5, 5), widget("lblNotice")->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(widget("lblNotice"), &tip);
  EXPECT_TRUE(widget("lblNotice")->toolTip().contains(QLatin1String("cannot be read")));
  tell("Short.");
  QApplication::sendEvent(widget("lblNotice"), &tip);
  EXPECT_TRUE(widget("lblNotice")->toolTip().isEmpty());
}

TEST_F(Notices, ATextOfTwoLinesIsShownWhole) {
  start();
  window()->resize(window()->minimumSize());
  tell(
      "The crop file /home/farmer/.local/share/verdalis/crops/custom/winter oats.txt could not be read, so "
      "its "
      "crop is not in the list. A line of a crop file has no \"=\".");
  QTest::qWait(50);
  auto* text = widget<QLabel>("lblNotice");
  EXPECT_GE(text->height(), 2 * text->fontMetrics().height());
  EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

}  // namespace
}  // namespace verdalis::testing
