// What all question pages have in common.

#include "questions/QuestionPane.h"
#include "questions/WaterPane.h"
#include "tests/questions/QuestionsTest.h"

namespace verdalis::testing {
namespace {

using QuestionPaneTest = QuestionTest<WaterPane>;

TEST_F(QuestionPaneTest, ShowsItselfAndAnswers) {
  open();
  EXPECT_TRUE(isAnswered());
  EXPECT_EQ(fault(), "");
  EXPECT_FALSE(pane().isRunning());
  EXPECT_FALSE(pane().lblOutdated.visible());
  EXPECT_FALSE(pane().cmdUpdate.visible());
  EXPECT_TRUE(pane().cmdCopy.enabled());
}

TEST_F(QuestionPaneTest, AsksAgainWhenAFieldChanges) {
  open();
  int asked = 0;
  pane().onAsked.connect([&] { ++asked; });
  pane().txtPoints.type("3");
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(pane().table.records(), 3U);
}

TEST_F(QuestionPaneTest, TellsInWordsThatTheFarmIsNotComplete) {
  incomplete = "Enter the acres.";
  open();
  EXPECT_EQ(fault(), "Enter the acres.");
  EXPECT_FALSE(isAnswered());
  EXPECT_FALSE(pane().cmdCopy.enabled());
  incomplete.clear();
  pane().ask();
  EXPECT_EQ(fault(), "");
  EXPECT_TRUE(isAnswered());
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(QuestionPaneTest, ARefusedFieldTakesTheAnswerAway) {
  open();
  pane().txtPoints.type("1");
  EXPECT_FALSE(isAnswered());
  EXPECT_EQ(pane().table.records(), 0U);
  EXPECT_EQ(amount("Net return now"), "none");
  pane().txtPoints.type("4");
  EXPECT_EQ(pane().table.records(), 4U);
}

TEST_F(QuestionPaneTest, TellsWhatToGiveUpIfNoPlanMeetsTheWishes) {
  farm.wishes = {{Wish::Kind::fieldIs, "Corn", 1, 0}, {Wish::Kind::fieldIs, "Wheat", 1, 0}};
  open();
  EXPECT_FALSE(isAnswered());
  EXPECT_TRUE(fault().starts_with("No plan meets all wishes.")) << fault();
  EXPECT_NE(fault().find("Without \"field 1 is Wheat\" the best net return is $"), std::string::npos)
      << fault();
}

TEST_F(QuestionPaneTest, IsOutdatedUntilItIsAskedAgain) {
  open();
  pane().setOutdated(true);
  EXPECT_TRUE(pane().lblOutdated.visible());
  ASSERT_TRUE(pane().cmdUpdate.visible());
  pane().cmdUpdate.click();
  EXPECT_FALSE(pane().lblOutdated.visible());
  EXPECT_FALSE(pane().cmdUpdate.visible());
  EXPECT_TRUE(isAnswered());
}

TEST_F(QuestionPaneTest, ShowsProgressOfWhatTakesLonger) {
  slow.holds = true;
  open();
  EXPECT_TRUE(pane().isRunning());
  EXPECT_FALSE(pane().prgQuestion.visible());
  pane().tick();
  EXPECT_TRUE(pane().prgQuestion.visible());
  EXPECT_TRUE(pane().cmdCancel.visible());
  slow.finish(0);
  EXPECT_FALSE(pane().isRunning());
  EXPECT_FALSE(pane().prgQuestion.visible());
  EXPECT_FALSE(pane().cmdCancel.visible());
  EXPECT_TRUE(isAnswered());
  pane().tick();
  EXPECT_FALSE(pane().prgQuestion.visible());
}

TEST_F(QuestionPaneTest, DropsTheAnswerToASupersededQuestion) {
  slow.holds = true;
  open();
  pane().txtPoints.type("3");
  ASSERT_EQ(slow.held.size(), 2U);
  slow.finish(1);
  EXPECT_EQ(pane().table.records(), 3U);
  slow.finish(0);
  EXPECT_EQ(pane().table.records(), 3U);
  pane().txtPoints.type("4");
  pane().txtPoints.type("5");
  slow.finish(2);
  EXPECT_EQ(pane().table.records(), 3U);
  EXPECT_TRUE(pane().isRunning());
  slow.finish(3);
  EXPECT_EQ(pane().table.records(), 5U);
}

TEST_F(QuestionPaneTest, CancelDropsTheAnswerAndUpdateAsksAgain) {
  slow.holds = true;
  open();
  pane().tick();
  pane().cmdCancel.click();
  EXPECT_FALSE(pane().isRunning());
  EXPECT_EQ(fault(), "Cancelled. Update asks again.");
  slow.finish(0);
  EXPECT_FALSE(isAnswered());
  pane().cmdUpdate.click();
  slow.finish(1);
  EXPECT_TRUE(isAnswered());
  EXPECT_EQ(fault(), "");
}

TEST_F(QuestionPaneTest, BackCancels) {
  slow.holds = true;
  open();
  int back = 0;
  pane().onBack.connect([&] { ++back; });
  pane().cmdBack.click();
  EXPECT_EQ(back, 1);
  EXPECT_FALSE(pane().isRunning());
}

TEST_F(QuestionPaneTest, MayGoWhileItsWorkGoesOn) {
  slow.holds = true;
  open();
  close();
  slow.finish(0);
}

TEST_F(QuestionPaneTest, CopiesTheTable) {
  open();
  pane().txtPoints.type("2");
  pane().cmdCopy.click();
  EXPECT_EQ(fakes.clipboard.contents, pane().table.tabSeparated());
  EXPECT_TRUE(fakes.clipboard.contents.starts_with("in.\tNet return\tCrops\n")) << fakes.clipboard.contents;
}

TEST_F(QuestionPaneTest, FieldsFollowTheFarmUntilTheUserChangesThem) {
  open();
  EXPECT_EQ(pane().txtTo.text(), "24");
  pane().txtFrom.type("5");
  farm.takeWater(20);
  pane().open();
  EXPECT_EQ(pane().txtTo.text(), "40");
  EXPECT_EQ(pane().txtFrom.text(), "5");
}

TEST_F(QuestionPaneTest, AsksNothingWhileItIsNotOnShow) {
  open();
  int asked = 0;
  pane().onAsked.connect([&] { ++asked; });
  pane().setVisible(false);
  pane().txtPoints.setText("7");
  EXPECT_EQ(asked, 0);
}

}  // namespace
}  // namespace verdalis::testing
