// The menu Explore, and its pages in the main window.

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "explore/water.h"
#include "questions/planText.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

struct Questions : RunningProgram, ::testing::Test {
  [[nodiscard]] QuestionPanes& pages() const { return program->main().questions; }
};

constexpr std::array<std::pair<const char*, const char*>, 5> quickPages{{{"mnuMixes", "pneMixes"},
                                                                         {"mnuWater", "pneWater"},
                                                                         {"mnuSwitch", "pneSwitch"},
                                                                         {"mnuSeasons", "pneSeasons"},
                                                                         {"mnuInputs", "pneInputs"}}};

TEST_F(Questions, EachEntryOpensItsPageAndBackLeadsBack) {
  start();
  typeFarm();
  const std::vector<std::string> before = history();
  for (const auto& [entry, pane] : quickPages) {
    choose(entry);
    std::vector<std::string> with = before;
    with.emplace_back(pane);
    EXPECT_EQ(history(), with);
    EXPECT_EQ(control<Label>(std::string(pane) + ".lblFault").caption(), "");
    EXPECT_TRUE(control<ChartBox>(std::string(pane) + ".chart").chart().has_value());
  }
  press("pneInputs.cmdBack");
  EXPECT_EQ(history(), before);
}

TEST_F(Questions, BackFromAQuestionLeadsToTheResults) {
  start();
  typeFarm();
  press("Command1");
  choose("mnuWater");
  choose("mnuMixes");
  press("pneMixes.cmdBack");
  EXPECT_EQ(history().back(), "pneResults");
}

TEST_F(Questions, TellTheNumbersOfTheFarmOnScreen) {
  frmMain& main = start();
  typeFarm();
  choose("mnuWater");
  Farm farm = main.farmToExplore();
  ProgramState state;
  RunHooks hooks;
  const auto expected = exploreWater(farm, usualAmounts(farm), state, hooks);
  ASSERT_EQ(pages().water.table.records(), expected->points.size());
  for (std::size_t i = 0; i < expected->points.size(); ++i)
    EXPECT_EQ(pages().water.table.cell(i, 1).text, dollarsText(expected->points[i].best.profit));
  press("pneWater.cmdBack");
  press("Command1");
  EXPECT_EQ(main.theResults.FieldCollection.front()->getProfit(), expected->now.best.profit);
}

TEST_F(Questions, AFarmThatIsNotCompleteIsToldInPlace) {
  start();
  choose("mnuWater");
  EXPECT_EQ(history().back(), "pneWater");
  EXPECT_TRUE(pages().water.lblFault.caption().starts_with("The farm is not complete."));
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(Questions, AnAnswerIsOutdatedWhileTheFarmIsAnother) {
  frmMain& main = start();
  typeFarm();
  control<TextBox>("txtArea").type("120");
  control<TextBox>("txtMax").enter();
  choose("mnuWater");
  EXPECT_FALSE(pages().water.lblOutdated.visible());
  choose("mnuUndo");
  choose("mnuWater");
  EXPECT_FALSE(pages().water.lblOutdated.visible());
  main.keeper.redo();
  EXPECT_TRUE(pages().water.lblOutdated.visible());
  main.keeper.undo();
  EXPECT_FALSE(pages().water.lblOutdated.visible());
  main.keeper.redo();
  pages().water.cmdUpdate.click();
  EXPECT_FALSE(pages().water.lblOutdated.visible());
  EXPECT_EQ(pages().water.lblFault.caption(), "");
}

TEST_F(Questions, ChangeNothingInTheFarm) {
  frmMain& main = start();
  typeFarm();
  press("Command1");
  const FarmDocument before = main.keeper.document();
  const std::string undo = main.keeper.undoName().value_or("");
  for (const auto& [entry, pane] : quickPages)
    choose(entry);
  pages().seasons.cmdAddSeason.click();
  pages().switches.cboInput.setIndex(1);
  EXPECT_TRUE(main.keeper.document() == before);
  EXPECT_EQ(main.keeper.undoName().value_or(""), undo);
}

TEST_F(Questions, ObeyTheWishesAndTellOnesThatDoNotFit) {
  frmMain& main = start();
  typeFarm();
  main.pneMain.wishes = {{Wish::Kind::fieldIs, "Wheat", 1, 0}, {Wish::Kind::fieldIs, "Wheat", 2, 0}};
  choose("mnuWater");
  for (std::size_t i = 0; i < pages().water.table.records(); ++i)
    EXPECT_EQ(pages().water.table.cell(i, 2).text, "Wheat, Wheat");
  main.pneMain.wishes = {{Wish::Kind::fieldIs, "Alfalfa", 1, 0}};
  choose("mnuWater");
  EXPECT_EQ(pages().water.lblFault.caption(),
            "The wish \"field 1 is Alfalfa\": The crop \"Alfalfa\" is not chosen, so no plan can have it.");
}

TEST_F(Questions, WaitForTheEndOfATrend) {
  frmMain& main = start();
  typeFarm();
  main.TrendNoticeShown = true;
  choose("mnuEnableBatch");
  choose("mnuFallBatch");
  choose("mnuWater");
  EXPECT_TRUE(pages().water.lblFault.caption().starts_with("A trend tries values"))
      << pages().water.lblFault.caption();
  press("pneWater.cmdBack");
  EXPECT_EQ(history().back(), "pneBatchSetup(0)");
  choose("mnuGoMain");
  choose("mnuWater");
  EXPECT_EQ(pages().water.lblFault.caption(), "");
}

TEST_F(Questions, OpenNothingDuringARun) {
  start();
  typeFarm();
  bool clicked = false;
  fakes.eventPump.onPump = [&] {
    if (!std::exchange(clicked, true)) choose("mnuWater");
  };
  press("Command1");
  EXPECT_TRUE(clicked);
  EXPECT_EQ(history().back(), "pneResults");
}

TEST_F(Questions, UseTheSeasonsOfTheFarm) {
  frmMain& main = start();
  typeFarm();
  main.keeper.change([](FarmDocument& farm) { farm.seasons = {{"poor", 12, 1, {}}, {"good", 18, 2, {}}}; });
  choose("mnuSeasons");
  EXPECT_EQ(pages().seasons.lines[1]->txtSeason.text(), "good");
  EXPECT_EQ(pages().seasons.lblFault.caption(), "");
}

}  // namespace
}  // namespace verdalis::testing
