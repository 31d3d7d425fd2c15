#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "screens/MainPane.h"
#include "screens/RunScenario.h"
#include "tests/support/Errors.h"
#include "tests/support/FakeServices.h"
#include "tests/support/Run.h"

// One evaluation from the texts to the ranked options.

namespace verdalis::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class Run : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0};
};

/// Fills the controls of a pane with the inputs of a farm.
void typeInto(MainPane& pane, const ScenarioInputs& inputs) {
  pane.txtArea.type(inputs.txtArea);
  pane.txtMax.type(inputs.txtMax);
  pane.txtAnnRain.type(inputs.txtAnnRain);
  pane.txtEff.type(inputs.txtEff);
  pane.currentSoil = inputs.currentSoil;
  for (std::size_t i = 0; i < inputs.Option1.size(); ++i)
    pane.Option1[i]->setChecked(inputs.Option1.at(i));
  for (std::size_t i = 0; i < inputs.cr.size(); ++i) {
    CropRecord& row = pane.row(i);
    row.chkCrop.setChecked(inputs.cr[i].isActive);
    row.txtPrice.type(inputs.cr[i].txtPrice);
    row.txtMaxYield.type(inputs.cr[i].txtMaxYield);
  }
}

TEST_F(Run, OnTheTypicalFarmPrices44Candidates) {
  const auto farm = cornAndWheatFarm();
  EXPECT_EQ(farm->inputs.lblVolume, "1,200");
  ASSERT_TRUE(ready(farm->inputs));
  BestMix best = farm->run();
  EXPECT_EQ(best.getSize(), 100);
  EXPECT_THAT(optionsOf(best), SizeIs(44));
  EXPECT_EQ(farm->state.waterSplits, 11U);
  EXPECT_EQ(farm->state.cropCombinations, 4U);
  EXPECT_EQ(EfficiencyFraction, 0.85);
  EXPECT_EQ(farm->state.cs.toString(), "Corn, Wheat");
  EXPECT_EQ(farm->state.cs.Item(1), farm->library.Item(1));
  EXPECT_THAT(farm->state.landSplit.getSplits(), ElementsAre(50, 50));
  EXPECT_FALSE(farm->state.CancelRequested);
}

TEST_F(Run, DividesTheNetVolumeOfTheFarm) {
  const auto farm = cornAndWheatFarm();
  std::set<double> depths;
  for (const auto& option : optionsOf(farm->run())) {
    EXPECT_NEAR(option->getVolume(), 1020, 1e-9);
    for (const auto& field : *option)
      depths.insert(field->Depth);
    EXPECT_EQ(option->Item(1)->annualRain, 16);
    EXPECT_EQ(option->Item(1)->acres, 50);
  }
  EXPECT_THAT(depths, SizeIs(11));
  EXPECT_THAT(depths, Contains(1020.0 / 50));
  EXPECT_THAT(depths, Contains(0));
}

TEST_F(Run, RanksByDescendingProfitAndKeepsDuplicates) {
  const auto farm = cornAndWheatFarm();
  BestMix best = farm->run();
  const auto options = optionsOf(best);
  for (std::size_t i = 0; i + 1 < options.size(); ++i)
    EXPECT_GE(options[i]->getProfit(), options[i + 1]->getProfit());
  EXPECT_LT(best.returnCollection(true)[43]->Count(), 1);  // mirrored splits of one crop are listed once
}

TEST_F(Run, ReadsTheRoundedVolumeFromItsText) {
  const auto farm = cornAndWheatFarm();
  farm->water("617.3", "2");
  ASSERT_EQ(farm->inputs.lblVolume, "1,235");
  for (const auto& option : optionsOf(farm->run()))
    EXPECT_NEAR(option->getVolume(), 1235 * 0.85, 1e-9);
  farm->inputs.lblVolume = "500";  // the text is the input, not the acres and inches
  for (const auto& option : optionsOf(farm->run()))
    EXPECT_NEAR(option->getVolume(), 425, 1e-9);
}

TEST_F(Run, ThreeThirdsLeaveOnePercentOfTheLandUnused) {
  const auto farm = cornAndWheatFarm();
  farm->divide(2);
  BestMix best = farm->run();
  EXPECT_EQ(farm->state.waterSplits, 66U);
  EXPECT_EQ(farm->state.cropCombinations, 8U);
  const auto option = optionsOf(best).front();
  ASSERT_EQ(option->Count(), 3);
  EXPECT_EQ(option->Item(1)->acres + option->Item(2)->acres + option->Item(3)->acres, 99);
}

TEST_F(Run, PricesTheExpectedNumberOfCandidates) {
  struct Row {
    std::size_t division;
    std::uint64_t splits;
    std::uint64_t withThreeCrops;
    std::uint64_t withSixCrops;
  };
  for (const Row& row :
       std::vector<Row>{{5, 1, 3, 6}, {0, 11, 99, 396}, {2, 66, 1782, 14'256}, {4, 286, 23'166, 370'656}}) {
    const auto farm = typicalFarm();
    farm->divide(row.division);
    farm->inputs.txtArraySize = "5";
    for (const char* name : {"A", "B", "C"})
      farm->add(steadyCrop(name, 5));
    (void)farm->run();
    EXPECT_EQ(farm->state.waterSplits * farm->state.cropCombinations, row.withThreeCrops);
    EXPECT_EQ(farm->hooks.updates, static_cast<int>(row.splits));
    for (const char* name : {"D", "E", "F"})
      farm->add(steadyCrop(name, 5));
    (void)farm->run();
    EXPECT_EQ(farm->state.waterSplits * farm->state.cropCombinations, row.withSixCrops);
  }
}

TEST_F(Run, ShowsItsProgressOncePerWaterSplit) {
  const auto farm = cornAndWheatFarm();
  int updatesAtClose = -1;
  farm->hooks.onClose = [&] { updatesAtClose = farm->hooks.updates; };
  (void)farm->run("3 evaluations left");
  EXPECT_THAT(farm->hooks.titles, ElementsAre("Evaluating Possible Combinations"));
  EXPECT_THAT(farm->hooks.steps, ElementsAre(11));
  EXPECT_THAT(farm->hooks.descriptions, ElementsAre("3 evaluations left"));
  EXPECT_EQ(updatesAtClose, 11);
  EXPECT_EQ(farm->hooks.closed, 1);
  EXPECT_GE(farm->hooks.pumps, 2);
}

TEST_F(Run, RoundsTheNumberOfOptionsHalvesToEven) {
  const std::vector<std::pair<const char*, int>> cases = {
      {"7", 7}, {"2.5", 2}, {"3.5", 4}, {"1", 1}, {"0.6", 1}, {"1.5", 2}, {"1,000", 1}, {"12 options", 12}};
  for (const auto& [text, size] : cases) {
    const auto farm = cornAndWheatFarm();
    farm->inputs.txtArraySize = text;
    BestMix best = farm->run();
    EXPECT_EQ(best.getSize(), size) << text;
    EXPECT_EQ(best.returnCollection(false).size(), static_cast<std::size_t>(size)) << text;
  }
}

TEST_F(Run, AShorterListKeepsTheBestOptions) {
  const auto farm = cornAndWheatFarm();
  auto all = describe(farm->run());
  farm->inputs.txtArraySize = "7";
  all.resize(7);
  EXPECT_EQ(describe(farm->run()), all);
}

TEST_F(Run, RanksTheLastSubmittedFirstAmongEquals) {
  const auto farm = typicalFarm();
  farm->plant->active = false;
  farm->add(steadyCrop("A", 5));
  farm->add(steadyCrop("B", 5));
  farm->state.FineFactor = 1;
  const auto options = optionsOf(farm->run());
  std::vector<std::string> order;
  for (const auto& option : options) {
    EXPECT_EQ(option->getProfit(), 500);
    order.push_back(cropsOf(*option) + (option->Item(1)->Depth > 0 ? " / first" : " / second"));
  }
  // Water splits outside, crops inside, both descending: the first submission is last.
  EXPECT_THAT(order, ElementsAre("A, A / second", "A, B / second", "B, A / second", "B, B / second",
                                 "A, A / first", "A, B / first", "B, A / first", "B, B / first"));
  farm->inputs.txtArraySize = "1";
  EXPECT_EQ(cropsOf(*optionsOf(farm->run()).front()), "A, A");
}

TEST_F(Run, GivesFallowNoWaterAndItsShareToNoOtherField) {
  const auto farm = typicalFarm();
  farm->add(cornCrop());
  farm->add(fallowCrop());
  std::set<double> cornDepths;
  for (const auto& option : optionsOf(farm->run())) {
    for (const auto& field : *option) {
      if (field->theCrop->cropType == "Fallow") {
        EXPECT_EQ(field->Depth, 0);
        EXPECT_EQ(field->theCrop->Yield, 0);
      }
    }
    if (cropsOf(*option) == "Corn, Fallow") cornDepths.insert(option->Item(1)->Depth);
    EXPECT_LE(option->getVolume(), 1020 + 1e-9);
  }
  EXPECT_THAT(cornDepths, SizeIs(11));  // also the splits that gave the fallow field most of the water
}

TEST_F(Run, RecognizesFallowByItsExactName) {
  const auto farm = typicalFarm();
  farm->add(steadyCrop("fallow", 5));
  for (const auto& option : optionsOf(farm->run()))
    EXPECT_NEAR(option->getVolume(), 1020, 1e-9);
}

TEST_F(Run, GivesAFieldWithoutWaterItsDryYield) {
  const auto farm = typicalFarm();
  farm->inputs.txtAnnRain = "21";
  farm->add(cornCrop());
  for (const auto& option : optionsOf(farm->run())) {
    if (option->Item(2)->Depth != 0) continue;
    EXPECT_NEAR(option->Item(2)->theCrop->Yield, 54 * 220 / 213.3, 1e-9);
    return;
  }
  FAIL() << "no option with a dry second field";
}

TEST_F(Run, LeavesADepthAboveTheTableOnTheField) {
  const auto farm = cornAndWheatFarm();
  farm->divide(1);
  double deepest = 0;
  double yield = 0;
  for (const auto& option : optionsOf(farm->run())) {
    if (option->Item(2)->theCrop->cropType != "Corn" || option->Item(2)->Depth < deepest) continue;
    deepest = option->Item(2)->Depth;
    yield = option->Item(2)->theCrop->Yield;
  }
  EXPECT_EQ(deepest, 1020.0 / 25);
  EXPECT_DOUBLE_EQ(yield, 220);
}

TEST_F(Run, WithoutAWaterSplitHasNoOptions) {
  const auto farm = cornAndWheatFarm();
  farm->divide(5);
  farm->state.FineFactor = 6;
  BestMix best = farm->run();
  EXPECT_EQ(best.getSize(), 100);
  EXPECT_THAT(optionsOf(best), SizeIs(0));
  EXPECT_THAT(farm->hooks.steps, ElementsAre(0));
  EXPECT_EQ(farm->hooks.updates, 0);
  EXPECT_EQ(farm->hooks.closed, 1);
}

TEST_F(Run, WithoutACropHasNoOptions) {
  const auto farm = typicalFarm();
  BestMix best = farm->run();
  EXPECT_THAT(optionsOf(best), SizeIs(0));
  EXPECT_EQ(farm->hooks.closed, 1);
}

TEST_F(Run, DoesNotChangeYieldAndSeedRateOfTheLibrary) {
  const auto farm = cornAndWheatFarm();
  const std::string before = farm->library.Item(1)->writeData();
  farm->plant->hours = 77;
  (void)farm->run();
  EXPECT_EQ(farm->library.Item(1)->writeData(), before);
  EXPECT_EQ(farm->library.Item(1)->Yield, 0);
  EXPECT_EQ(farm->library.Item(1)->inputCosts.NPerAcre, 0);
  EXPECT_EQ(farm->plant->hours, 77);
}

TEST_F(Run, ShowsThePumpingHoursOfThePlantOnADryField) {
  const auto farm = typicalFarm();
  farm->plant->hours = 77;
  farm->add(fallowCrop());
  for (const auto& option : optionsOf(farm->run())) {
    for (const auto& field : *option)
      EXPECT_EQ(field->irrigCosts->hours, 77);
  }
}

TEST_F(Run, OptionsShareNothingWithTheInputs) {
  const auto farm = cornAndWheatFarm();
  BestMix best = farm->run();
  const auto before = describe(best);
  farm->library.Item(1)->price = 0;
  farm->library.Item(1)->inputCosts.Herbicide = 1e6;
  farm->plant->cost = 1e6;
  farm->state.landSplit.splits[0] = 0;
  EXPECT_EQ(describe(best), before);
}

TEST_F(Run, IsRepeatable) {
  const auto farm = cornAndWheatFarm();
  const auto first = describe(farm->run());
  EXPECT_EQ(describe(farm->run()), first);
}

TEST_F(Run, IgnoresTheBoxForFallowLand) {
  const auto farm = cornAndWheatFarm();
  farm->add(fallowCrop());
  FakeServices fakes;
  Desk desk;
  Window window(desk, "frmMain", Frame::Scope::transparent);
  MainPane pane(window, fakes.services, farm->plant);
  typeInto(pane, farm->inputs);
  farm->inputs = pane.scenarioInputs();
  const auto first = describe(farm->run());
  pane.Check1.click();
  EXPECT_TRUE(pane.FallowNegatives);
  farm->inputs = pane.scenarioInputs();
  EXPECT_EQ(describe(farm->run()), first);
}

TEST_F(Run, AcceptsAFractionalRainfall) {
  const auto farm = cornAndWheatFarm();
  farm->inputs.txtAnnRain = "17.5";
  const auto option = optionsOf(farm->run()).front();
  EXPECT_EQ(option->Item(1)->annualRain, 17.5);
  farm->inputs.txtAnnRain = "18";
  EXPECT_EQ(optionsOf(farm->run()).front()->Item(1)->theCrop->Yield, option->Item(1)->theCrop->Yield);
}

TEST_F(Run, ReadsAnEmptyRainfallAs0) {
  const auto farm = cornAndWheatFarm();
  farm->inputs.txtAnnRain = "";
  for (const auto& option : optionsOf(farm->run()))
    EXPECT_EQ(option->Item(1)->theCrop->Yield, 0);
}

TEST_F(Run, ReadsTheAcresUpToAComma) {
  const auto farm = cornAndWheatFarm();
  farm->water("1,000", "12");
  const auto option = optionsOf(farm->run()).front();
  EXPECT_EQ(option->Item(1)->acres, 0.5);
  EXPECT_NEAR(option->getVolume(), 12 * 0.85, 1e-9);
}

}  // namespace
}  // namespace verdalis::testing
