#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/LandDivision.h"
#include "screens/MainPane.h"
#include "screens/ScenarioInputs.h"
#include "screens/readScenario.h"
#include "tests/support/Errors.h"
#include "tests/support/FakeServices.h"
#include "tests/support/Run.h"

// The texts that a run starts from: whether they are complete, and the resulting volume.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

/// The caption of the volume for these texts.
std::string volumeOf(const std::string& acres, const std::string& inches) {
  ScenarioInputs inputs;
  inputs.txtArea = acres;
  inputs.txtMax = inches;
  getVolume(inputs);
  return inputs.lblVolume;
}

TEST(LandDivisions, AreChosenByTheCheckedButton) {
  for (std::size_t i = 0; i < 6; ++i) {
    LandSplitButtons buttons{};
    buttons.at(i) = true;
    EXPECT_EQ(getLandSplit(buttons).getSplits(), landDivisions().at(i).percentages) << i;
  }
}

TEST(LandDivisions, MustBeChosen) {
  EXPECT_THAT(errorText(ErrorNumber::invalidCall, [] { (void)getLandSplit({}); }),
              AllOf(HasSubstr("land split"), HasSubstr("Land Split:")));
}

TEST(GrossVolume, IsShownInWholeAcreInchesWithThousandsCommas) {
  EXPECT_EQ(volumeOf("100", "12"), "1,200");
  EXPECT_EQ(volumeOf("10", "1.4"), "14");
  EXPECT_EQ(volumeOf("617.3", "2"), "1,235");  // 1,234.6
  EXPECT_EQ(volumeOf("12345", "100"), "1,234,500");
  EXPECT_EQ(volumeOf("1", "0.5"), "1");  // halves away from zero
}

TEST(GrossVolume, IsAnEmptyTextIfItRoundsTo0) {
  EXPECT_EQ(volumeOf("10", "0.04"), "");
  EXPECT_EQ(volumeOf("", "12"), "");
  EXPECT_EQ(volumeOf("100", ""), "");
  EXPECT_EQ(volumeOf("0", "12"), "");
  EXPECT_EQ(volumeOf("abc", "12"), "");
}

TEST(GrossVolume, ReadsItsInputsUpToAComma) {
  EXPECT_EQ(volumeOf("1,000", "12"), "12");
  EXPECT_EQ(volumeOf("100 acres", "12 in"), "1,200");
}

TEST(GrossVolume, ReportsATooLargeVolume) {
  EXPECT_THAT(errorText(ErrorNumber::overflow, [] { (void)volumeOf("1e200", "1e200"); }),
              HasSubstr("gross water volume"));
  EXPECT_THAT(errorText(ErrorNumber::overflow, [] { (void)volumeOf("1e400", "1"); }), HasSubstr("1e400"));
}

ScenarioInputs goodInputs() {
  return cornAndWheatFarm()->inputs;
}

TEST(Ready, WithEverythingEntered) {
  EXPECT_TRUE(ready(goodInputs()));
}

TEST(Ready, NeedsAcresInchesAndAVolume) {
  for (std::string ScenarioInputs::*text :
       {&ScenarioInputs::txtArea, &ScenarioInputs::txtMax, &ScenarioInputs::lblVolume}) {
    ScenarioInputs inputs = goodInputs();
    inputs.*text = "";
    EXPECT_FALSE(ready(inputs));
    inputs.*text = " ";  // any text counts
    EXPECT_TRUE(ready(inputs));
  }
}

TEST(Ready, NeedsARainfallThatIsANumber) {
  const std::vector<std::pair<const char*, bool>> cases = {{"", false},   {"dry", false}, {"16 in", false},
                                                           {"16", true},  {"16.5", true}, {" 16 ", true},
                                                           {"1,6", true}, {"-3", true}};
  for (const auto& [text, good] : cases) {
    ScenarioInputs inputs = goodInputs();
    inputs.txtAnnRain = text;
    EXPECT_EQ(ready(inputs), good) << text;
  }
}

TEST(Ready, NeedsATickedCrop) {
  ScenarioInputs inputs = goodInputs();
  inputs.cr[0].isActive = false;
  EXPECT_TRUE(ready(inputs));
  inputs.cr[1].isActive = false;
  EXPECT_FALSE(ready(inputs));
  inputs.cr.clear();
  EXPECT_FALSE(ready(inputs));
}

TEST(Ready, AcceptsAPriceOf0) {
  ScenarioInputs inputs = goodInputs();
  for (CropRowInput& row : inputs.cr)
    row.txtPrice = "0";
  EXPECT_TRUE(ready(inputs));
}

TEST(Ready, RefusesAVolumeThatRoundsTo0) {
  ScenarioInputs inputs = goodInputs();
  inputs.txtArea = "10";
  inputs.txtMax = "0.04";
  getVolume(inputs);
  EXPECT_FALSE(ready(inputs));
}

TEST(Ready, DoesNotAskForTheLandDivisionOrTheEfficiency) {
  ScenarioInputs inputs = goodInputs();
  inputs.Option1 = {};
  inputs.txtEff = "";
  EXPECT_TRUE(ready(inputs));
}

TEST(CropRowInput, ReadsTheLeadingNumberOfItsTexts) {
  const CropRowInput row{true, " 6.52 $", "1,200"};
  EXPECT_EQ(row.getPrice(), 6.52);
  EXPECT_EQ(row.getMaxYield(), 1);
  EXPECT_EQ(CropRowInput().getPrice(), 0);
  EXPECT_EQ(CropRowInput().getMaxYield(), 0);
}

TEST(ScenarioInputs, StartWithTheDefaultsOfTheWindow) {
  const ScenarioInputs inputs;
  EXPECT_EQ(inputs.txtEff, "85");
  EXPECT_EQ(inputs.txtArraySize, "100");
  EXPECT_EQ(inputs.currentSoil, "Silt Loam");
  EXPECT_FALSE(inputs.chkNoSplit);
  EXPECT_FALSE(ready(inputs));
}

TEST(ProgramState, StartsWithTheDefaultsOfTheProgram) {
  const ProgramState state;
  EXPECT_EQ(state.FineFactor, 10);
  EXPECT_FALSE(state.CancelRequested);
  EXPECT_FALSE(state.TrendMode);
  EXPECT_FALSE(state.TrendCancelled);
  EXPECT_EQ(state.splitCounter, 0);
}

TEST(MainPane, StartsWithFallowNegativesOff) {
  FakeServices fakes;
  Desk desk;
  Window window(desk, "frmMain", Frame::Scope::transparent);
  const MainPane pane(window, fakes.services, std::make_shared<IrrigationCosts>());
  EXPECT_FALSE(pane.FallowNegatives);
}

}  // namespace
}  // namespace verdalis::testing
