#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/PlainFarm.h"
#include "tests/support/Run.h"

// The candidates of the undivided farm, which share the crops of the library and the plant.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class NoSplit : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0};
};

std::unique_ptr<FarmRun> undivided(const std::vector<Crop>& crops) {
  auto farm = typicalFarm();
  farm->inputs.chkNoSplit = true;
  for (const Crop& crop : crops)
    farm->add(crop);
  return farm;
}

std::vector<BestMix::Option> singleFieldsOf(const BestMix& best) {
  std::vector<BestMix::Option> singles;
  for (const auto& option : optionsOf(best)) {
    if (option->Count() == 1) singles.push_back(option);
  }
  return singles;
}

TEST_F(NoSplit, AddsOneCandidateForEachCrop) {
  const auto farm = undivided({cornCrop(), wheatCrop()});
  const BestMix best = farm->run();
  EXPECT_THAT(optionsOf(best), SizeIs(46));
  EXPECT_THAT(singleFieldsOf(best), SizeIs(2));
  farm->inputs.chkNoSplit = false;
  EXPECT_THAT(singleFieldsOf(farm->run()), SizeIs(0));
}

TEST_F(NoSplit, GivesTheWholeNetVolumeToTheWholeFarm) {
  const auto farm = undivided({cornCrop(), fallowCrop()});
  farm->water("130", "11.3");  // 1,469 acre-inches
  for (const auto& option : singleFieldsOf(farm->run())) {
    const Field& field = *option->Item(1);
    EXPECT_EQ(field.acres, 130);
    EXPECT_EQ(field.annualRain, 16);
    EXPECT_EQ(field.Depth, field.theCrop->cropType == "Fallow" ? 0 : 1469 * 0.85 / 130);
  }
}

TEST_F(NoSplit, LeavesADepthAboveTheTableOnTheField) {
  const auto farm = undivided({cornCrop()});
  farm->water("100", "40");
  const auto option = singleFieldsOf(farm->run()).front();
  EXPECT_EQ(option->Item(1)->Depth, 34);
  EXPECT_DOUBLE_EQ(option->Item(1)->theCrop->Yield, 220);
}

TEST_F(NoSplit, ComesAfterTheSearchInTheOrderOfTheRows) {
  const auto farm = undivided({steadyCrop("A", 5), steadyCrop("B", 5)});
  farm->plant->active = false;
  farm->divide(5);
  std::vector<std::string> order;
  for (const auto& option : optionsOf(farm->run()))
    order.push_back(cropsOf(*option));
  // All earn the same, so the last submitted is first: B and A undivided, then A and B of the search.
  EXPECT_THAT(order, ElementsAre("B", "A", "A", "B"));
}

TEST_F(NoSplit, OnTheUndividedFarmIsADuplicateOfTheSearch) {
  const auto farm = undivided({cornCrop(), wheatCrop()});
  farm->divide(5);
  BestMix best = farm->run();
  ASSERT_THAT(optionsOf(best), SizeIs(4));
  EXPECT_EQ(describe(best)[0], describe(best)[1]);
  EXPECT_EQ(describe(best)[2], describe(best)[3]);
  (void)best.returnCollection(true);
  EXPECT_THAT(optionsOf(best), SizeIs(2));
}

TEST_F(NoSplit, WorksWithoutAWaterSplit) {
  const auto farm = undivided({cornCrop(), wheatCrop()});
  farm->divide(5);
  farm->state.FineFactor = 6;
  EXPECT_THAT(optionsOf(farm->run()), SizeIs(2));
}

TEST_F(NoSplit, EarnsTheProfitOfTheFormulas) {
  const auto farm = undivided({cornCrop(), wheatCrop(), alfalfaCrop(), fallowCrop()});
  farm->inputs.txtArraySize = "1000";
  const auto singles = singleFieldsOf(farm->run());
  ASSERT_THAT(singles, SizeIs(4));
  for (const auto& option : singles) {
    const Field& field = *option->Item(1);
    const Crop& crop = *field.theCrop;
    EXPECT_EQ(crop.Yield, plainYield(crop, field.Depth, 16));
    EXPECT_EQ(option->getProfit(),
              plainReturn(crop, 100) - plainCosts(crop, defaultPlant(), 100, field.Depth, 0.85));
  }
}

TEST_F(NoSplit, LeavesYieldAndRatesOnTheCropOfTheLibrary) {
  const auto farm = undivided({cornCrop()});
  (void)farm->run();
  const Crop& corn = *farm->library.Item(1);
  EXPECT_EQ(corn.Yield, plainYield(corn, 10.2, 16));
  EXPECT_EQ(corn.inputCosts.SeedRate, 23000);  // 10.2 net inches
  EXPECT_EQ(corn.inputCosts.NPerAcre, 1.35 * corn.Yield);
  EXPECT_EQ(corn.inputCosts.PPerAcre, 0.43 * corn.Yield);
}

TEST_F(NoSplit, ChangesTheSavedSeedingRate) {
  const auto farm = undivided({cornCrop(), wheatCrop()});
  EXPECT_THAT(farm->library.Item(1)->writeData(), HasSubstr("\r\n2.89\r\n0\r\nTrue\r\n"));
  (void)farm->run();
  EXPECT_THAT(farm->library.Item(1)->writeData(), HasSubstr("\r\n2.89\r\n23000\r\nTrue\r\n"));
  EXPECT_THAT(farm->library.Item(2)->writeData(), HasSubstr("\r\n0.16\r\n90\r\nTrue\r\n"));
}

TEST_F(NoSplit, KeepsATypedSeedingRate) {
  Crop corn = cornCrop();
  corn.inputCosts.SeedOptimal = false;
  corn.inputCosts.SeedRate = 31000;
  const auto farm = undivided({corn});
  (void)farm->run();
  EXPECT_EQ(farm->library.Item(1)->inputCosts.SeedRate, 31000);
}

TEST_F(NoSplit, SetsALifeOfStandThatWasNeverEntered) {
  Crop alfalfa = alfalfaCrop();
  alfalfa.inputCosts.AlfalfaStand.clear();
  const auto farm = undivided({alfalfa});
  farm->inputs.chkNoSplit = false;
  (void)farm->run();
  EXPECT_TRUE(farm->library.Item(1)->inputCosts.AlfalfaStand.isEmpty());  // the search works on copies
  farm->inputs.chkNoSplit = true;
  (void)farm->run();
  EXPECT_EQ(farm->library.Item(1)->inputCosts.AlfalfaStand.text(), "1");
  EXPECT_THAT(farm->library.Item(1)->writeData(), EndsWith("\r\n1\r\n0\r\n5.12"));
}

TEST_F(NoSplit, LeavesThePumpingHoursInThePlant) {
  const auto farm = undivided({cornCrop()});
  (void)farm->run();
  IrrigationCosts plant = defaultPlant();
  EfficiencyFraction = 0.85;
  (void)plant.getCosts(10.2, 100);
  EXPECT_EQ(farm->plant->hours, plant.hours);
  EXPECT_NEAR(farm->plant->hours, 720, 1e-9);
}

TEST_F(NoSplit, ShowsThePumpingHoursOfThePreviousCropOnADryField) {
  const auto farm = undivided({fallowCrop(), cornCrop(), fallowCrop()});
  farm->plant->hours = 77;
  std::vector<double> fallowHours;
  for (const auto& option : singleFieldsOf(farm->run())) {
    if (option->Item(1)->theCrop->cropType == "Fallow")
      fallowHours.push_back(option->Item(1)->irrigCosts->hours);
  }
  // Equal profits: the later candidate, priced after the corn, is first.
  EXPECT_THAT(fallowHours, ElementsAre(::testing::DoubleNear(720, 1e-9), 77));
  EXPECT_NEAR(farm->plant->hours, 720, 1e-9);
}

TEST_F(NoSplit, DoesNotChangeTheInputsOfThePlant) {
  const auto farm = undivided({cornCrop(), fallowCrop()});
  const std::string before = farm->plant->writeData();
  (void)farm->run();
  EXPECT_EQ(farm->plant->writeData(), before);
}

TEST_F(NoSplit, OptionsAreCopiesOfTheLibrary) {
  const auto farm = undivided({cornCrop()});
  BestMix best = farm->run();
  const auto before = describe(best);
  farm->library.Item(1)->Yield = 0;
  farm->library.Item(1)->price = 0;
  EXPECT_EQ(describe(best), before);
}

TEST_F(NoSplit, UsesTheTrendCostsOfCropAndPlant) {
  const auto farm = undivided({cornCrop()});
  farm->library.Item(1)->inputCosts.UseBatch = true;
  farm->library.Item(1)->inputCosts.BatchGeneralCosts = 300;
  farm->plant->UseBatch = true;
  farm->plant->BatchIrrigationCosts = 4;
  const auto option = singleFieldsOf(farm->run()).front();
  EXPECT_EQ(option->getCosts(), 4 * 100 * option->Item(1)->Depth + 30000);
  EXPECT_EQ(farm->library.Item(1)->inputCosts.SeedRate, 0);  // nothing was calculated
}

TEST_F(NoSplit, IsSkippedAfterACancel) {
  const auto farm = undivided({cornCrop()});
  farm->hooks.onUpdate = [&](int) { farm->state.CancelRequested = true; };
  EXPECT_EQ(farm->run().getSize(), 0);
  EXPECT_EQ(farm->library.Item(1)->Yield, 0);
}

}  // namespace
}  // namespace verdalis::testing
