#include <gtest/gtest.h>

#include "tests/main/TrendWindow.h"

namespace verdalis::testing {
namespace {

class GoMenuOnAFarm : public TrendWindow {
 protected:
  [[nodiscard]] std::string goesTo() {
    std::string pages;
    for (MenuEntry* entry : {&main.menus.mnuGoMain, &main.menus.mnuGoResults, &main.menus.mnuGoTrend,
                             &main.menus.mnuGoSummary, &main.menus.mnuGoCompare})
      pages += entry->enabled() ? '1' : '0';
    return pages;
  }

  void evaluate() { running.press("Command1"); }
};

TEST_F(GoMenuOnAFarm, OffersWhatHasSomethingToShow) {
  EXPECT_EQ(goesTo(), "10000");
  evaluate();
  EXPECT_EQ(goesTo(), "11000");
  running.press("theResults.cmdSaveResult");
  EXPECT_EQ(goesTo(), "11011");
  runVariable(1, 0, "4, 5");
  EXPECT_EQ(goesTo(), "11111");
}

TEST_F(GoMenuOnAFarm, LeadsToTheResultsAndBackToTheMainPage) {
  evaluate();
  running.press("theResults.Command1");
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  running.choose("mnuGoResults");
  EXPECT_EQ(pane(), "pneResults");
  EXPECT_TRUE(main.menus.mnuPrint.enabled());
  running.choose("mnuGoMain");
  EXPECT_EQ(pane(), "pneMain");
  running.choose("mnuGoMain");
  EXPECT_EQ(running.history(), (std::vector<std::string>{"pneMain", "pneMain", "pneResults", "pneMain",
                                                         "pneResults", "pneMain"}));
}

TEST_F(GoMenuOnAFarm, LeadsOutOfASummaryTableThatWasOpenedTwice) {
  evaluate();
  running.press("theResults.cmdSaveResult");
  running.choose("mnuSummary");
  running.choose("mnuSummary");
  running.press("cmdCancel(2)");
  EXPECT_EQ(pane(), "pneSummary");
  running.choose("mnuGoResults");
  EXPECT_EQ(pane(), "pneResults");
  running.choose("mnuGoCompare");
  EXPECT_EQ(pane(), "pneCompare");
  running.choose("mnuGoSummary");
  EXPECT_EQ(pane(), "pneSummary");
}

TEST_F(GoMenuOnAFarm, EndsATrendOnTheWayOut) {
  evaluate();
  type("cr(1).txtPrice", "6.50");  // as the saved inputs bring it back
  const std::vector<std::string> before = live();
  for (const char* entry : {"mnuGoMain", "mnuGoResults"}) {
    runVariable(1, 0, "4, 5");
    EXPECT_NE(live(), before);
    running.choose(entry);
    EXPECT_EQ(live(), before) << entry;
    EXPECT_FALSE(running.program->state.TrendMode);
    EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
  }
  running.press("theResults.Command1");
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(GoMenuOnAFarm, ATrendOnShowStaysOneOnTheWayThroughTheSummary) {
  runVariable(1, 0, "4, 5");
  running.choose("mnuSummary");
  running.choose("mnuGoTrend");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  running.press(std::string(result) + ".Command1");
  EXPECT_EQ(pane(), "pneBatchSetup(0)");
}

TEST_F(GoMenuOnAFarm, TrendResultsCanBeLookedAtAfterTheTrend) {
  runVariable(1, 0, "4, 5");
  goBack();
  const std::vector<std::string> inputs = live();
  running.choose("mnuGoTrend");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  running.press(std::string(result) + ".rh(0).cmdDetails");
  EXPECT_EQ(pane(), "pneDetails");
  running.press("theDetails.Command3");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(live(), inputs);
  running.press(std::string(result) + ".Command1");
  EXPECT_EQ(pane(), "pneMain");
  evaluate();
  running.press("theResults.rh(0).cmdDetails");
  running.press("theDetails.Command3");
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(GoMenuOnAFarm, ResultsOfAnotherFarmAreNotOffered) {
  evaluate();
  runVariable(1, 0, "4, 5");
  running.choose("mnuNew");
  EXPECT_EQ(goesTo(), "10000");
}

TEST_F(GoMenuOnAFarm, NothingMovesDuringARun) {
  evaluate();
  running.press("theResults.Command1");
  running.fakes.eventPump.onPump = [this] {
    running.choose("mnuGoResults");
    EXPECT_EQ(pane(), "pneMain");
  };
  running.press("Command1");
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(GoMenuOnAFarm, EntriesThatLeadNowhereAreOff) {
  const MainMenus& menus = main.menus;
  evaluate();
  running.press("theResults.Command1");
  EXPECT_TRUE(menus.mnuWater.enabled());
  EXPECT_TRUE(menus.mnuGoResults.enabled());
  bool looked = false;
  running.fakes.eventPump.onPump = [&] {
    looked = true;
    EXPECT_FALSE(menus.mnuWater.enabled());
    EXPECT_FALSE(menus.mnuLive.enabled());
    EXPECT_FALSE(menus.mnuGoResults.enabled());
    EXPECT_FALSE(menus.mnuGoMain.enabled());
  };
  running.press("Command1");
  running.fakes.eventPump.onPump = nullptr;
  EXPECT_TRUE(looked);
  EXPECT_TRUE(menus.mnuWater.enabled());
  EXPECT_TRUE(menus.mnuGoMain.enabled());
  running.press("theResults.Command1");
  runVariable(1, 0, "4, 5");
  EXPECT_FALSE(menus.mnuWater.enabled());
  EXPECT_FALSE(menus.mnuLive.enabled());
  EXPECT_TRUE(menus.mnuGoMain.enabled());
  running.choose("mnuGoMain");
  EXPECT_TRUE(menus.mnuWater.enabled());
}

}  // namespace
}  // namespace verdalis::testing
