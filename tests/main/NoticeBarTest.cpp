#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "main/NoticeBar.h"
#include "main/RecoveryBar.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

/// The bars in a window with one field.
class Bars : public ::testing::Test {
 protected:
  Bars() {
    desk.onRunTimeError = [this](const RunTimeError& error) { errors.emplace_back(error.what()); };
    window.open();
    recovery.onStandingChange.connect([this] { notices.setAside(recovery.standing()); });
  }

  /// A notice whose action counts its presses.
  Notice counting(const std::string& text) {
    return {.text = text, .actionCaption = "Restore", .action = [this] { ++actions; }};
  }

  void expectNoNotice() const {
    for (const Control* control : notices.controls())
      EXPECT_FALSE(control->visible()) << control->name();
    EXPECT_FALSE(notices.visible());
  }

  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Label before{window, "before"};
  NoticeBar notices{window};
  RecoveryBar recovery{window};
  std::vector<std::string> errors;
  int actions = 0;
};

TEST_F(Bars, AreInvisibleWithoutAnything) {
  expectNoNotice();
  EXPECT_FALSE(recovery.visible());
  for (const Control* control : recovery.controls())
    EXPECT_FALSE(control->visible()) << control->name();
}

TEST_F(Bars, ANoticeWithoutAnActionHasOnlyTheClosingButton) {
  notices.tell({.text = "The disk is full."});
  EXPECT_TRUE(notices.visible());
  EXPECT_EQ(notices.lblNotice.caption(), "The disk is full.");
  EXPECT_TRUE(notices.lblNotice.isShown());
  EXPECT_FALSE(notices.cmdNotice.visible());
  EXPECT_FALSE(notices.lblNoticeCount.visible());
  notices.cmdNoticeClose.click();
  EXPECT_EQ(notices.lblNotice.caption(), "");
  expectNoNotice();
}

TEST_F(Bars, TheNewestNoticeComesFirst) {
  notices.tell({.text = "one"});
  notices.tell({.text = "two"});
  notices.tell({.text = "three"});
  EXPECT_EQ(notices.lblNotice.caption(), "three");
  EXPECT_EQ(notices.lblNoticeCount.caption(), "1 of 3");
  EXPECT_TRUE(notices.lblNoticeCount.isShown());
  notices.cmdNoticeClose.click();
  EXPECT_EQ(notices.lblNotice.caption(), "two");
  EXPECT_EQ(notices.lblNoticeCount.caption(), "1 of 2");
  notices.cmdNoticeClose.click();
  EXPECT_EQ(notices.lblNotice.caption(), "one");
  EXPECT_FALSE(notices.lblNoticeCount.visible());
}

TEST_F(Bars, TheSameTextStandsOnlyOnce) {
  notices.tell({.text = "one"});
  notices.tell({.text = "two"});
  notices.tell(counting("one"));
  EXPECT_EQ(notices.lblNotice.caption(), "one");
  EXPECT_EQ(notices.lblNoticeCount.caption(), "1 of 2");
  EXPECT_TRUE(notices.cmdNotice.visible()) << "the newer notice holds";
}

TEST_F(Bars, ANoticeReplacesTheOneAboutTheSame) {
  notices.tell({.text = "one file", .about = "files"});
  notices.tell({.text = "other"});
  notices.tell({.text = "two files", .about = "files"});
  ASSERT_EQ(notices.all().size(), 2U);
  EXPECT_EQ(notices.lblNotice.caption(), "two files");
  notices.withdraw("files");
  EXPECT_EQ(notices.lblNotice.caption(), "other");
  notices.withdraw("files");
  EXPECT_EQ(notices.all().size(), 1U);
}

TEST_F(Bars, TheActionTakesTheNoticeAway) {
  notices.tell(counting("Gone."));
  EXPECT_EQ(notices.cmdNotice.caption(), "Restore");
  EXPECT_TRUE(notices.cmdNotice.isReachable());
  notices.cmdNotice.click();
  EXPECT_EQ(actions, 1);
  expectNoNotice();
}

TEST_F(Bars, AnActionThatFailsKeepsItsNotice) {
  notices.tell({.text = "Gone.", .actionCaption = "Restore", .action = [] {
                  throw RunTimeError(ErrorNumber::fileNotFound, "No file.");
                }});
  notices.cmdNotice.click();
  EXPECT_EQ(errors, std::vector<std::string>{"No file."});
  EXPECT_EQ(notices.lblNotice.caption(), "Gone.");
  EXPECT_TRUE(notices.cmdNotice.isReachable());
}

TEST_F(Bars, AnActionMayTellAnotherNotice) {
  notices.tell({.text = "Gone.", .actionCaption = "Restore", .action = [this] {
                  notices.tell({.text = "Still gone."});
                }});
  notices.cmdNotice.click();
  ASSERT_EQ(notices.all().size(), 1U);
  EXPECT_EQ(notices.lblNotice.caption(), "Still gone.");
}

TEST_F(Bars, NeitherTakesTheFocusWhenItAppears) {
  before.enter();
  notices.tell(counting("one"));
  recovery.offer("farm", {}, {});
  EXPECT_EQ(desk.focus(), &before);
  notices.dismiss();
  EXPECT_EQ(desk.focus(), &before);
}

TEST_F(Bars, RecoveryCopiesAreOfferedInTheirOrder) {
  std::vector<std::string> done;
  const auto offer = [&](const std::string& name) {
    recovery.offer(
        name, [&done, name] { done.push_back("restore " + name); },
        [&done, name] { done.push_back("discard " + name); });
  };
  offer("a");
  EXPECT_FALSE(recovery.lblRecoveryCount.visible());
  offer("b");
  offer("c");
  EXPECT_EQ(recovery.lblRecovery.caption(), "a");
  EXPECT_EQ(recovery.lblRecoveryCount.caption(), "1 of 3");
  recovery.cmdRestore.click();
  EXPECT_EQ(recovery.lblRecovery.caption(), "b");
  recovery.cmdDiscardRecovery.click();
  EXPECT_EQ(recovery.lblRecovery.caption(), "c");
  EXPECT_FALSE(recovery.lblRecoveryCount.visible());
  recovery.cmdDiscardRecovery.click();
  EXPECT_FALSE(recovery.visible());
  EXPECT_FALSE(recovery.cmdRestore.visible());
  EXPECT_EQ(done, (std::vector<std::string>{"restore a", "discard b", "discard c"}));
}

TEST_F(Bars, ACopyThatCannotBeRestoredStaysOnOffer) {
  recovery.offer("a", [] { throw RunTimeError(ErrorNumber::fileNotFound, "Damaged."); }, {});
  recovery.offer("b", {}, {});
  recovery.cmdRestore.click();
  EXPECT_EQ(errors, std::vector<std::string>{"Damaged."});
  EXPECT_EQ(recovery.lblRecovery.caption(), "a");
  EXPECT_EQ(recovery.lblRecoveryCount.caption(), "1 of 2");
}

TEST_F(Bars, OnlyOneOfTheTwoStands) {
  notices.tell(counting("one"));
  recovery.offer("farm", {}, {});
  EXPECT_TRUE(recovery.visible());
  expectNoNotice();
  notices.tell({.text = "two"});
  expectNoNotice();
  recovery.cmdDiscardRecovery.click();
  EXPECT_FALSE(recovery.visible());
  EXPECT_TRUE(notices.visible());
  EXPECT_EQ(notices.lblNotice.caption(), "two");
  EXPECT_EQ(notices.lblNoticeCount.caption(), "1 of 2");
}

}  // namespace
}  // namespace verdalis
