#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "engine/Farm.h"
#include "engine/Split.h"
#include "selfcheck/SelfCheck.h"
#include "selfcheck/fingerprint.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

Scenario smallFarm(double cornPrice = 6.52) {
  Farm farm;
  farm.acres = 100;
  farm.division = Split{50, 50};
  farm.efficiency = 85;
  farm.plant = testing::defaultPlant();
  farm.factor = 10;
  farm.size = 5;
  for (Crop crop : {testing::namedCrop("Corn"), testing::namedCrop("Wheat")}) {
    crop.setYieldTable(crop.cropType == "Corn" ? testing::cornTable() : testing::wheatTable());
    crop.maxYield = crop.cropType == "Corn" ? 220 : 75;
    crop.price = crop.cropType == "Corn" ? cornPrice : 6.2;
    farm.crops.Add(std::make_shared<Crop>(std::move(crop)));
  }
  farm.takeWater(12);
  farm.takeRain(16);
  return scenarioOf(farm);
}

/// The fingerprint with which a farm passes, from the message without it.
std::uint64_t fingerprintOf(const Scenario& scenario) {
  SelfCheck check;
  check.check("The farm", scenario, 0);
  const std::string start = "The farm: the answers have the fingerprint ";
  EXPECT_THAT(check.faults(), ElementsAre(HasSubstr(start)));
  return std::stoull(check.faults().at(0).substr(start.size(), 16), nullptr, 16);
}

TEST(SelfCheck, FindsNothingOnThisMachine) {
  SelfCheck check;
  check.checkMadeUpFarms();
  EXPECT_THAT(check.faults(), ElementsAre());
  EXPECT_EQ(check.farms(), 294U);
  EXPECT_GT(check.plans(), 1'000'000U);
}

TEST(SelfCheck, AFarmPassesWithItsOwnFingerprint) {
  SelfCheck check;
  check.check("The farm", smallFarm(), fingerprintOf(smallFarm()));
  EXPECT_THAT(check.faults(), ElementsAre());
  EXPECT_EQ(check.farms(), 1U);
  EXPECT_EQ(check.plans(), 11U * 4U) << "eleven ways to share the water, two crops on two fields";
}

TEST(SelfCheck, OneBitOfAPriceGivesAnotherFingerprint) {
  const double next = std::nextafter(6.52, std::numeric_limits<double>::infinity());
  EXPECT_NE(fingerprintOf(smallFarm(next)), fingerprintOf(smallFarm()));
}

TEST(SelfCheck, ReportsAnotherFingerprint) {
  const std::uint64_t right = fingerprintOf(smallFarm());
  SelfCheck check;
  check.check("The farm", smallFarm(), right + 1);
  EXPECT_THAT(check.faults(), ElementsAre(HasSubstr("The farm: the answers have the fingerprint ")));
}

TEST(SelfCheck, ReportsASearchThatPricesOneBitHigher) {
  const double next = std::nextafter(6.52, std::numeric_limits<double>::infinity());
  SelfCheck check([&](const Scenario&) { return evaluateFast(smallFarm(next)); });
  check.check("The farm", smallFarm(), fingerprintOf(smallFarm(next)));
  EXPECT_THAT(check.faults(),
              ElementsAre("The farm: the fast search and the plain one list different plans."));
}

TEST(SelfCheck, ReportsASearchThatLosesAPlan) {
  SelfCheck check([](const Scenario& scenario) {
    auto best = evaluateFast(scenario);
    auto options = best->returnCollection(true, scenario.efficiency);
    options.erase(options.begin());
    best->SetBestArray(options);
    return best;
  });
  check.checkMadeUpFarms();
  EXPECT_GE(check.faults().size(), 294U);
}

TEST(SelfCheck, ReportsASearchThatFailsOrGivesNothing) {
  SelfCheck failing([](const Scenario&) -> std::optional<BestMix> {
    throw RunTimeError(ErrorNumber::overflow, "Too much.");
  });
  failing.check("The farm", smallFarm(), noFingerprint);
  EXPECT_THAT(failing.faults(), ElementsAre("The farm: the evaluation fails. Too much."));

  SelfCheck silent([](const Scenario&) { return std::nullopt; });
  silent.check("The farm", smallFarm(), noFingerprint);
  EXPECT_THAT(silent.faults(), ElementsAre("The farm: the fast search gives no answer."));
}

TEST(SelfCheck, ReportsAMachineThatRoundsWrongly) {
  for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    SelfCheck check;
    ASSERT_EQ(std::fesetround(mode), 0);
    check.checkMadeUpFarms();
    std::fesetround(FE_TONEAREST);
    EXPECT_THAT(check.faults(), ::testing::Contains(HasSubstr("fingerprint"))) << mode;
  }
}

}  // namespace
}  // namespace verdalis
