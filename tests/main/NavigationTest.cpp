#include <gtest/gtest.h>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

class Navigation : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = running.start();

  /// The panes shown since the start.
  [[nodiscard]] Strings shown() const {
    const Strings all = running.history();
    return {all.begin() + 2, all.end()};
  }
};

TEST_F(Navigation, OnlyOnePaneIsShown) {
  running.press("Command8");
  for (const Frame* pane : main.panes.panes())
    EXPECT_EQ(pane->visible(), pane->name() == "pneIrrigCosts");
}

TEST_F(Navigation, IrrigationCostsGoBackAndApplyToTheMainPane) {
  running.press("Command8");
  main.SetMainInfo("another text");
  running.press("cmdCancel(0)");
  EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
  running.press("Command8");
  running.press("Command9");
  EXPECT_EQ(shown(), (Strings{"pneIrrigCosts", "pneMain", "pneIrrigCosts", "pneMain"}));
}

TEST_F(Navigation, ProductionCostsOpenOnlyFromAnActiveRow) {
  EXPECT_FALSE(running.control<Button>("cr(1).cmdInputCosts").isReachable());
  running.control<CheckBox>("cr(1).chkCrop").click();
  running.press("cr(1).cmdInputCosts");
  EXPECT_EQ(main.pneInputCosts.lblHeader.caption(), "Production Costs for Corn");
  running.press("cmdCancel(1)");
  running.press("cr(1).cmdInputCosts");
  running.press("Command6");
  EXPECT_EQ(shown(), (Strings{"pneInputCosts", "pneMain", "pneInputCosts", "pneMain"}));
}

TEST_F(Navigation, ARunLeadsToTheResultsAndBackHome) {
  running.typeFarm();
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  running.press("Command1");
  EXPECT_EQ(shown(), (Strings{"pneResults"}));
  EXPECT_TRUE(main.menus.mnuPrint.enabled());
  main.SetMainInfo("another text");
  running.press("theResults.Command1");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneMain"}));
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
}

TEST_F(Navigation, TheHistoryNeverShrinks) {
  running.typeFarm();
  running.press("Command1");
  running.choose("mnuSummary");
  running.press("cmdCancel(2)");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneSummary", "pneResults"}));
}

TEST_F(Navigation, BackFromASummaryOpenedTwiceShowsTheSummary) {
  running.choose("mnuSummary");
  running.choose("mnuSummary");
  running.press("cmdCancel(2)");
  running.press("cmdCancel(2)");
  EXPECT_EQ(shown(), (Strings{"pneSummary", "pneSummary", "pneSummary", "pneSummary"}));
}

TEST_F(Navigation, BackFromASummaryLeadsToTheTrendSetup) {
  running.choose("mnuEnableBatch");
  running.typeFarm();
  running.choose("mnuFallBatch");
  EXPECT_NE(main.lblMainInfo.caption(), main.strMainInfo);
  running.choose("mnuSummary");
  EXPECT_FALSE(running.control<Frame>("pneBatchSetup(0)").isShown());
  running.press("cmdCancel(2)");
  EXPECT_EQ(shown(), (Strings{"pneBatchSetup(0)", "pneSummary", "pneBatchSetup(0)"}));
  EXPECT_TRUE(running.control<Button>("cmdBatchIt").isReachable());
  for (const Frame* pane : main.panes.panes())
    EXPECT_EQ(pane->isShown(), pane->name() == "pneBatchSetup(0)") << pane->name();
  // The band has the main pane's text, although the trend setup had put its own there.
  EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
}

TEST_F(Navigation, TurningTrendsOffShowsTheMainPane) {
  running.choose("mnuEnableBatch");
  running.typeFarm();
  running.press("Command1");
  running.choose("mnuEnableBatch");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneMain"}));
  EXPECT_FALSE(main.menus.mnuFallBatch.enabled());
  EXPECT_FALSE(main.pneMain.pnlBatchInstructions.visible());
}

TEST_F(Navigation, TheTrendNoticeIsShownOnce) {
  running.choose("mnuEnableBatch");
  running.choose("mnuEnableBatch");
  running.choose("mnuEnableBatch");
  EXPECT_EQ(running.fakes.messageBox.log.size(), 1U);
}

TEST_F(Navigation, MenusHaveTheirOrderAndTheirStates) {
  Strings entries;
  for (const Control* control : main.controls()) {
    const auto* entry = dynamic_cast<const MenuEntry*>(control);
    if (entry == nullptr) continue;
    entries.push_back(std::string(entry->menu() == nullptr ? "" : "  ") + entry->name() + " \"" +
                      entry->caption() + "\"" + (entry->checked() ? " checked" : "") +
                      (entry->enabled() ? "" : " disabled"));
  }
  EXPECT_EQ(entries, (Strings{"mnuTools(0) \"File\"",
                              "  mnuNew \"New\"",
                              "  mnuOpen \"Open...\"",
                              "  mnuOpenRecent \"Open Recent\" disabled",
                              "  mnuRecent(0) \"\"",
                              "  mnuRecent(1) \"\"",
                              "  mnuRecent(2) \"\"",
                              "  mnuRecent(3) \"\"",
                              "  mnuRecent(4) \"\"",
                              "  mnuRecent(5) \"\"",
                              "  mnuRecent(6) \"\"",
                              "  mnuRecent(7) \"\"",
                              "  mnuRecent(8) \"\"",
                              "  mnuSave \"Save\"",
                              "  mnuSaveAs \"Save As...\"",
                              "  mnuNotes \"Farm Name and Notes...\"",
                              "  mnuPrint \"Print\" disabled",
                              "  mnuReport \"Report...\"",
                              "  mnuExit \"Exit\"",
                              "mnuLocation \"Location\"",
                              "  mnuPrairia \"Prairia\" checked",
                              "  mnuTexas \"Texas\" disabled",
                              "mnuSummary \"Summary Table\"",
                              "mnuTools(1) \"Edit\"",
                              "  mnuUndo \"Undo\" disabled",
                              "  mnuRedo \"Redo\" disabled",
                              "  mnuOptions \"Options\"",
                              "mnuTools(2) \"Tools\"",
                              "  mnuCustomCrop \"Manage Custom Crops\"",
                              "  mnuEnableBatch \"Enable Trend Processing\"",
                              "  mnuFallBatch \"Run a variable trend process\" disabled",
                              "mnuExplore \"Explore\"",
                              "  mnuMixes \"Mixes\"",
                              "  mnuWater \"Value of Water\"",
                              "  mnuSwitch \"Switch Prices\"",
                              "  mnuSeasons \"Seasons\"",
                              "  mnuInputs \"What Matters\"",
                              "  mnuMap \"Map\"",
                              "  mnuLive \"Live\"",
                              "mnuGo \"Go\"",
                              "  mnuGoMain \"Main page\"",
                              "  mnuGoResults \"Results\" disabled",
                              "  mnuGoTrend \"Trend results\" disabled",
                              "  mnuGoSummary \"Summary table\" disabled",
                              "  mnuGoCompare \"Compare\" disabled",
                              "mnuAbout \"Help\"",
                              "  mnuHelp \"Help\"",
                              "  mnuAboutVDL \"About Verdalis...\""}));
}

TEST_F(Navigation, TheLocationMenuDoesNothing) {
  running.choose("mnuPrairia");
  EXPECT_TRUE(main.menus.mnuPrairia.checked());
  EXPECT_TRUE(shown().empty());
}

TEST_F(Navigation, HelpButtonsOpenTheirTopicsAndNotes) {
  for (const auto& [button, topic] :
       std::vector<std::pair<std::string, std::string>>{{"cmdHelp(0)", "mainInput.htm#TotalAcres"},
                                                        {"cmdHelp(1)", "irrigationCosts.htm"},
                                                        {"cmdHelp(2)", "maininput.htm#efficiency"},
                                                        {"cmdHelp(3)", "mainInput.htm#Rainfall"},
                                                        {"cmdHelp(4)", "maininput.htm#seasonalirrig"},
                                                        {"cmdHelp(5)", "maininput.htm#GrossWater"},
                                                        {"cmdHelp(6)", "maininput.htm#landsplit"},
                                                        {"cmdHelp(9)", "maininput.htm#maxyield"},
                                                        {"cmdHelp(10)", "maininput.htm#priceperunit"},
                                                        {"cmdHelp(28)", "inputcosts.htm#general"}}) {
    running.fakes.help.topics.clear();
    running.press(button);
    EXPECT_EQ(running.fakes.help.topics, Strings{topic}) << button;
  }
  running.fakes.help.topics.clear();
  running.press("cmdHelp(29)");
  EXPECT_TRUE(running.fakes.help.topics.empty());
}

TEST_F(Navigation, TheHelpMenuOpensTheIndex) {
  running.choose("mnuHelp");
  EXPECT_EQ(running.fakes.help.topics, Strings{"index.htm"});
}

TEST_F(Navigation, ExitClosesEverything) {
  running.choose("mnuExit");
  EXPECT_TRUE(running.program->ended());
}

TEST_F(Navigation, ClosingTheMainWindowEndsTheProgram) {
  main.closeByUser();
  EXPECT_TRUE(running.program->ended());
}

TEST_F(Navigation, TheNoteWindowClosesWhenItIsDeactivated) {
  showHelpNote(running.program->windows.help(), "A text", "A title", 1725);
  frmHelp& note = running.program->windows.help();
  EXPECT_TRUE(note.isOpen());
  EXPECT_EQ(note.caption(), "Help - A title");
  EXPECT_EQ(note.lblOutput.caption(), "A text");
  EXPECT_EQ(note.height, 1725);
  EXPECT_EQ(note.buttonTop, 725);
  main.pneMain.txtArea.type("1");
  EXPECT_FALSE(note.isOpen());
}

}  // namespace
}  // namespace verdalis::testing
