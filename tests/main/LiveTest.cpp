#include <gtest/gtest.h>

#include "tests/main/RunningProgram.h"
#include "text/numbers.h"

namespace verdalis::testing {
namespace {

class LiveOnAFarm : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = start();

  frmMain& start() {
    frmMain& window = running.start();
    running.typeFarm();
    return window;
  }

  LivePane::Slider& slider(const std::string& label) {
    for (const auto& each : main.pneLive.sliders) {
      if (each->lblInput.caption() == label) return *each;
    }
    throw std::logic_error("no slider " + label);
  }

  [[nodiscard]] std::string valueOfSlider(const std::string& label) {
    return generalText(slider(label).value());
  }
  [[nodiscard]] std::string text(const std::string& name) { return running.control<TextBox>(name).text(); }
};

TEST_F(LiveOnAFarm, ValuesAreTakenOverInOneStep) {
  const FarmDocument before = main.keeper.document();
  const double plantCost = main.tempIrrigationCosts->cost;
  running.choose("mnuLive");
  EXPECT_EQ(running.history().back(), "pneLive");
  for (const char* label : {"Water", "Rain", "Irrigation efficiency", "Price of fuel", "Price of Corn"}) {
    LivePane::Slider& moved = slider(label);
    moved.bar.scroll(moved.mark + 1);
  }
  EXPECT_EQ(main.keeper.document(), before) << "nothing changes before the values are taken over";
  const std::string profit = main.pneLive.lblLiveProfit.caption();
  running.press("cmdTakeOver");
  EXPECT_EQ(running.history().back(), "pneMain");
  EXPECT_EQ(text("txtMax"), valueOfSlider("Water"));
  EXPECT_EQ(running.control<ComboBox>("txtAnnRain").text(), "17");
  EXPECT_EQ(text("txtEff"), "86");
  EXPECT_EQ(text("cr(1).txtPrice"), valueOfSlider("Price of Corn"));
  EXPECT_NE(main.tempIrrigationCosts->cost, plantCost);
  EXPECT_TRUE(running.fakes.messageBox.log.empty());

  running.press("Command1");
  EXPECT_EQ(main.theResults.lblTotalProfit.caption(), profit) << "the same plan as on the page";

  EXPECT_EQ(main.menus.mnuUndo.caption(), "Undo Values from Live");
  running.choose("mnuUndo");
  EXPECT_EQ(main.keeper.document().inputs, before.inputs);
  EXPECT_EQ(main.tempIrrigationCosts->cost, plantCost);
}

TEST_F(LiveOnAFarm, SaysWhatIsMissing) {
  running.control<TextBox>("txtArea").type("");
  running.choose("mnuLive");
  EXPECT_NE(main.pneLive.lblLiveFault.caption(), "");
  running.press("cmdLiveBack");
  EXPECT_EQ(running.history().back(), "pneMain");
}

TEST_F(LiveOnAFarm, OpensFromTheResultsAndLeadsBackThere) {
  running.press("Command1");
  running.choose("mnuLive");
  running.press("cmdLiveBack");
  EXPECT_EQ(running.history().back(), "pneResults");
}

}  // namespace
}  // namespace verdalis::testing
