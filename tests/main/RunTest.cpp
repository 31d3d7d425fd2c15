#include <gtest/gtest.h>

#include "data/readFile.h"
#include "model/EfficiencyFraction.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

class Run : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = running.start();

  [[nodiscard]] bool onResults() const { return main.panes.top().name() == "pneResults"; }
};

TEST_F(Run, IncompleteInputsAreReportedAndNothingIsSaved) {
  running.press("Command1");
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  const Message& box = running.fakes.messageBox.log[0];
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.text, "Please enter all of the necessary information before continuing!");
  EXPECT_EQ(box.icon, MessageIcon::exclamation);
  EXPECT_EQ(box.buttons, MessageButtons::ok);
  EXPECT_FALSE(onResults());
  EXPECT_FALSE(std::filesystem::exists(running.home() / "inputs.txt"));
}

TEST_F(Run, SavesTheInputsAndShowsTheOptions) {
  running.typeFarm();
  running.press("Command1");
  EXPECT_TRUE(onResults());
  EXPECT_EQ(main.theResults.lblCounter.caption(), "Option 1");
  EXPECT_EQ(readFile(running.home() / "inputs.txt").substr(0, 21), "0\r\n100\r\n12\r\n85\r\n16\r\n7");
}

TEST_F(Run, TheTypicalFarmHas44Candidates) {
  running.typeFarm();
  EXPECT_EQ(main.pneMain.lblVolume.caption(), "1,200");
  running.press("Command1");
  EXPECT_EQ(running.program->state.waterSplits, 11U);
  EXPECT_EQ(running.program->state.cropCombinations, 4U);
}

TEST_F(Run, TheTimeLabelShowsTheSecondsSinceMidnight) {
  running.typeFarm();
  running.fakes.clock.time = {2024, 5, 6, 14, 0, 0};
  running.press("Command1");
  EXPECT_EQ(main.pneMain.lblNumber.caption(), "This took 50400 seconds");
}

TEST_F(Run, ACancelledRunStaysOnTheMainPaneWithTheInputsSaved) {
  running.typeFarm();
  running.fakes.eventPump.onPump = [&] { running.program->windows.updating().Command1.click(); };
  running.press("Command1");
  EXPECT_FALSE(onResults());
  EXPECT_EQ(main.pneMain.lblNumber.caption(), "");
  EXPECT_FALSE(running.program->windows.updating().isOpen());
  EXPECT_TRUE(running.program->state.CancelRequested);
  EXPECT_TRUE(std::filesystem::exists(running.home() / "inputs.txt"));
}

TEST_F(Run, TheProgressWindowShowsTheSteps) {
  running.typeFarm();
  running.press("Command1");
  frmUpdating& progress = running.program->windows.updating();
  EXPECT_FALSE(progress.isOpen());
  EXPECT_EQ(progress.lblTitle0.caption(), "Evaluating Possible Combinations");
  EXPECT_EQ(progress.ProgressBar.maximum(), 11);
  EXPECT_EQ(progress.ProgressBar.value(), 11);
  EXPECT_EQ(progress.Command1.caption(), "Cancel");
}

TEST_F(Run, ARunTimeErrorIsReportedAndTypedTextsAreKept) {
  running.typeFarm();
  running.control<ComboBox>("txtAnnRain").type("25");
  running.press("Command1");
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  const Message& box = running.fakes.messageBox.log[0];
  EXPECT_EQ(box.title, "Verdalis");
  EXPECT_EQ(box.icon, MessageIcon::critical);
  EXPECT_NE(box.text.find("25"), std::string::npos);
  EXPECT_NE(box.text.find("11 to 21"), std::string::npos);
  EXPECT_FALSE(onResults());
  EXPECT_FALSE(running.program->windows.updating().isOpen());
  EXPECT_EQ(main.pneMain.txtArea.text(), "100");
  running.control<ComboBox>("txtAnnRain").type("16");
  running.press("Command1");
  EXPECT_TRUE(onResults());
}

TEST_F(Run, WithoutALandSplitTheMessageNamesIt) {
  running.typeFarm();
  main.pneMain.landSplits.select(-1);
  running.press("Command1");
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  EXPECT_NE(running.fakes.messageBox.log[0].text.find("land split"), std::string::npos);
}

TEST_F(Run, ANestedRunAndTheOuterRunEndAndTheOuterOneIsShownLast) {
  running.typeFarm();
  bool pressed = false;
  running.fakes.eventPump.onPump = [&] {
    if (pressed) return;
    pressed = true;
    running.control<TextBox>("txtEff").type("50");
    running.press("Command1");
    EXPECT_TRUE(onResults());
    main.showPane(main.pneMain);
  };
  running.press("Command1");
  EXPECT_TRUE(onResults());
  EXPECT_EQ(EfficiencyFraction, 0.85);
}

TEST_F(Run, ClosingTheWindowCancelsTheRun) {
  running.typeFarm();
  running.fakes.eventPump.onPump = [&] { main.closeByUser(); };
  running.press("Command1");
  EXPECT_TRUE(running.program->ended());
  EXPECT_FALSE(onResults());
}

TEST_F(Run, TheNextStartShowsTheSamePricesAndCosts) {
  running.typeFarm();
  running.control<TextBox>("cr(1).txtPrice").type("4.75");
  running.press("Command1");
  RunningProgram next;
  std::filesystem::copy_file(running.home() / "inputs.txt", next.home() / "inputs.txt");
  frmMain& again = next.start();
  EXPECT_EQ(again.pneMain.cr[1]->txtPrice.text(), "4.75");
  EXPECT_EQ(again.pneMain.cr[1]->Crop->inputCosts.writeData(),
            main.pneMain.cr[1]->Crop->inputCosts.writeData());
  EXPECT_EQ(again.pneMain.txtArea.text(), "100");
}

TEST_F(Run, DefaultValuesFillRowsPlantAndCosts) {
  running.press("Command7");
  const MainPane& pane = main.pneMain;
  EXPECT_EQ(pane.cr[0]->txtPrice.text(), "85.00");
  EXPECT_EQ(pane.cr[0]->txtMaxYield.text(), "10");
  EXPECT_EQ(pane.cr[4]->txtPrice.text(), "0.20");
  EXPECT_EQ(pane.cr[4]->txtMaxYield.text(), "3500");
  EXPECT_EQ(pane.cr[6]->txtPrice.text(), "");
  EXPECT_EQ(pane.cr[6]->Crop->inputCosts.Tillage, 25);
  EXPECT_TRUE(pane.cr[6]->Crop->inputCosts.SeedOptimal);
  EXPECT_EQ(pane.cr[1]->Crop->inputCosts.HarvestExceedRate, 0.214);
  EXPECT_TRUE(main.tempIrrigationCosts->active);
  EXPECT_EQ(main.tempIrrigationCosts->NPC, 61.7);
  EXPECT_EQ(main.pneIrrigCosts.txtGPM.text(), "750");
  EXPECT_EQ(main.pneIrrigCosts.cboFuelType.text(), "Natural Gas");
}

TEST_F(Run, TheBoxForFallowLandChangesOnlyItsFlag) {
  running.typeFarm();
  running.press("Command1");
  const std::string before = main.theResults.lblTotalProfit.caption();
  running.press("theResults.Command1");
  running.control<CheckBox>("Check1").click();
  EXPECT_TRUE(main.pneMain.FallowNegatives);
  running.press("Command1");
  EXPECT_EQ(main.theResults.lblTotalProfit.caption(), before);
  running.control<CheckBox>("Check1").click();
  EXPECT_FALSE(main.pneMain.FallowNegatives);
}

TEST_F(Run, TheCurrentSoilIsTheTextOfItsField) {
  running.control<ComboBox>("txtSoil").pick(1);
  EXPECT_EQ(main.pneMain.currentSoil, "Fine Sand");
  running.control<ComboBox>("txtSoil").type("Valent");
  EXPECT_EQ(main.pneMain.currentSoil, "Valent");
}

}  // namespace
}  // namespace verdalis::testing
