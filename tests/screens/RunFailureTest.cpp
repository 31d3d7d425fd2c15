#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/Errors.h"
#include "tests/support/Run.h"

// Runs that fail: each ends with an error that names the wrong value, and nothing is shown.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

class RunFailure : public ::testing::Test {
 protected:
  /// The text of the error of a typical farm that `spoil` has changed.
  template <class Spoil>
  static std::string failureOf(ErrorNumber number, Spoil spoil) {
    const auto farm = cornAndWheatFarm();
    spoil(*farm);
    std::string text = errorText(number, [&] { (void)farm->run(); });
    EXPECT_EQ(farm->hooks.titles.size(), 1U);
    EXPECT_EQ(farm->hooks.closed, 0) << "the progress window stays open for whoever tells the error";
    return text;
  }

 private:
  ScopedEfficiency efficiency_{0};
};

TEST_F(RunFailure, NamesAVolumeThatIsNoNumber) {
  for (const char* text : {"lots", "1.200.000"}) {
    EXPECT_THAT(failureOf(ErrorNumber::typeMismatch, [&](FarmRun& farm) { farm.inputs.lblVolume = text; }),
                AllOf(HasSubstr("Gross Water Volume:"), HasSubstr('"' + std::string(text) + '"')));
  }
  EXPECT_THAT(failureOf(ErrorNumber::typeMismatch, [](FarmRun& farm) { farm.inputs.lblVolume = ""; }),
              AllOf(HasSubstr("Gross Water Volume:"), HasSubstr("empty")));
}

TEST_F(RunFailure, NamesAcresThatAreNoNumber) {
  EXPECT_THAT(failureOf(ErrorNumber::typeMismatch, [](FarmRun& farm) { farm.inputs.txtArea = "100 acres"; }),
              AllOf(HasSubstr("Total Acres:"), HasSubstr("\"100 acres\"")));
  EXPECT_THAT(failureOf(ErrorNumber::typeMismatch, [](FarmRun& farm) { farm.inputs.txtArea = ""; }),
              AllOf(HasSubstr("Total Acres:"), HasSubstr("empty")));
}

TEST_F(RunFailure, NamesAFarmOf0Acres) {
  EXPECT_THAT(failureOf(ErrorNumber::divisionByZero, [](FarmRun& farm) { farm.inputs.txtArea = "0"; }),
              AllOf(HasSubstr("0 acres"), HasSubstr("Total Acres:")));
}

TEST_F(RunFailure, NamesAnUndividedFarmOf0AcresWithoutWaterSplits) {
  const std::string text = [&] {
    const auto farm = cornAndWheatFarm();
    farm->divide(5);
    farm->state.FineFactor = 6;
    farm->inputs.chkNoSplit = true;
    farm->inputs.txtArea = "0";
    return errorText(ErrorNumber::divisionByZero, [&] { (void)farm->run(); });
  }();
  EXPECT_THAT(text, AllOf(HasSubstr("0 acres"), HasSubstr("Total Acres:")));
}

TEST_F(RunFailure, NamesAnEfficiencyOf0) {
  for (const char* text : {"0", "", "none"}) {
    EXPECT_THAT(failureOf(ErrorNumber::divisionByZero, [&](FarmRun& farm) { farm.inputs.txtEff = text; }),
                AllOf(HasSubstr("efficiency is 0"), HasSubstr("Irrigation Efficiency %")));
  }
}

TEST_F(RunFailure, NamesAnInvalidNumberOfOptions) {
  const std::vector<std::pair<const char*, const char*>> tooSmall = {
      {"0", "0"}, {"", "0"}, {"0.5", "0"}, {"-3", "-3"}, {"many", "0"}};
  for (const auto& each : tooSmall) {
    EXPECT_THAT(
        failureOf(ErrorNumber::subscript, [&](FarmRun& farm) { farm.inputs.txtArraySize = each.first; }),
        AllOf(HasSubstr("number of options to keep is " + std::string(each.second)), HasSubstr("1 or more")));
  }
  for (const char* typed : {"32768", "1e9", "-40000"}) {
    EXPECT_THAT(failureOf(ErrorNumber::overflow, [&](FarmRun& farm) { farm.inputs.txtArraySize = typed; }),
                HasSubstr("number of options to keep"));
  }
}

TEST_F(RunFailure, NamesAnIterationFactorOf0) {
  EXPECT_THAT(failureOf(ErrorNumber::divisionByZero, [](FarmRun& farm) { farm.state.FineFactor = 0; }),
              HasSubstr("iteration factor is 0"));
}

TEST_F(RunFailure, AsksForALandSplit) {
  EXPECT_THAT(failureOf(ErrorNumber::invalidCall, [](FarmRun& farm) { farm.inputs.Option1 = {}; }),
              HasSubstr("Land Split:"));
}

TEST_F(RunFailure, NamesARainfallOutsideTheTable) {
  for (const char* rain : {"25", "22", "21.5"}) {
    EXPECT_THAT(failureOf(ErrorNumber::subscript, [&](FarmRun& farm) { farm.inputs.txtAnnRain = rain; }),
                AllOf(HasSubstr("Annual rainfall " + std::string(rain)), HasSubstr("(11 to 21 inches)")));
  }
}

TEST_F(RunFailure, NamesTheCropWhoseTableLacksTheRainfall) {
  const auto farm = typicalFarm();
  farm->inputs.txtAnnRain = "14";
  farm->add(cornCrop());
  Crop oats = namedCrop("Oats");
  oats.setYieldTable(tableOf(11, {{1, 2}, {3, 4}}));
  farm->add(oats);
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)farm->run(); }),
              AllOf(HasSubstr("rainfall 14"), HasSubstr("Oats"), HasSubstr("11 to 12 inches")));
}

TEST_F(RunFailure, NamesACropWithoutATable) {
  EXPECT_THAT(failureOf(ErrorNumber::subscript, [](FarmRun& farm) { farm.add(namedCrop("Oats")); }),
              HasSubstr("Oats"));
}

TEST_F(RunFailure, NamesATooLargeText) {
  for (std::string ScenarioInputs::*field : {&ScenarioInputs::txtArea, &ScenarioInputs::txtEff,
                                             &ScenarioInputs::txtAnnRain, &ScenarioInputs::txtArraySize}) {
    const auto farm = cornAndWheatFarm();
    farm->inputs.*field = "1e400";
    EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)farm->run(); }), HasSubstr("1e400"));
  }
  EXPECT_THAT(failureOf(ErrorNumber::overflow, [](FarmRun& farm) { farm.inputs.lblVolume = "1e400"; }),
              HasSubstr("1e400"));
}

TEST_F(RunFailure, NamesATooLargeResult) {
  EXPECT_THAT(failureOf(ErrorNumber::overflow,
                        [](FarmRun& farm) {
                          farm.inputs.lblVolume = "1e308";
                          farm.inputs.txtEff = "1e308";
                        }),
              HasSubstr("net water volume"));
  EXPECT_THAT(failureOf(ErrorNumber::overflow, [](FarmRun& farm) { farm.inputs.cr[0].txtPrice = "1e308"; }),
              HasSubstr("return"));
}

TEST_F(RunFailure, NamesANegativeDepth) {
  EXPECT_THAT(failureOf(ErrorNumber::subscript, [](FarmRun& farm) { farm.inputs.txtEff = "-85"; }),
              AllOf(HasSubstr("net irrigation of -"), HasSubstr("efficiency")));
}

TEST_F(RunFailure, DoesNotAffectTheNextRun) {
  const auto expected = describe(cornAndWheatFarm()->run());
  const auto farm = cornAndWheatFarm();
  farm->inputs.txtAnnRain = "25";
  errorText(ErrorNumber::subscript, [&] { (void)farm->run(); });
  farm->inputs.txtAnnRain = "16";
  EXPECT_EQ(describe(farm->run()), expected);
}

TEST_F(RunFailure, AFallowFarmRunsWithAnyRainfall) {
  const auto farm = typicalFarm();
  farm->add(fallowCrop());
  farm->inputs.txtAnnRain = "99";
  EXPECT_EQ(optionsOf(farm->run()).size(), 11U);
}

}  // namespace
}  // namespace verdalis::testing
