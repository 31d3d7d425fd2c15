#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "model/inputCosts.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"

// Seeding rates by irrigation, and harvest costs.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

/// The seeding rate for `net` inches; at an efficiency of 100 %, gross and net are equal.
double rateAt(const std::string& cropType, double net, double own = 0) {
  inputCosts costs;
  costs.SeedOptimal = true;
  costs.SeedRate = own;
  double depth = net;
  (void)costs.getSeedCost(1, 0, cropType, depth);
  return costs.SeedRate;
}

class SeedRates : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{1};
};

struct SeedRow {
  const char* cropType;
  std::array<double, 6> rates;  ///< For 18, 15, 12, 9, 6 and 0 inches and above
};

TEST_F(SeedRates, FollowTheIrrigationBands) {
  const std::vector<SeedRow> rows = {
      {"Corn", {32000, 29000, 26000, 23000, 20000, 17000}},
      {"Soybeans", {200000, 185000, 170000, 155000, 140000, 125000}},
      {"Grain Sorghum", {7.81, 6.56, 5.31, 4.06, 2.81, 1.56}},
      {"Sunflower", {25500, 24000, 22500, 21000, 19500, 18000}},
      {"Wheat", {90, 90, 90, 90, 90, 90}},
      {"Alfalfa", {3, 3, 3, 3, 3, 3}},
  };
  const std::array<double, 6> bounds{18, 15, 12, 9, 6, 0};
  for (const SeedRow& row : rows) {
    SCOPED_TRACE(row.cropType);
    for (std::size_t band = 0; band < bounds.size(); ++band) {
      const double bound = bounds.at(band);
      EXPECT_EQ(rateAt(row.cropType, bound), row.rates.at(band)) << bound;
      EXPECT_EQ(rateAt(row.cropType, std::nextafter(bound, 100)), row.rates.at(band)) << "above " << bound;
      EXPECT_EQ(rateAt(row.cropType, bound + 2.9), row.rates.at(band)) << bound + 2.9;
      if (band + 1 < bounds.size()) {
        EXPECT_EQ(rateAt(row.cropType, std::nextafter(bound, 0)), row.rates.at(band + 1))
            << "below " << bound;
      }
    }
    EXPECT_EQ(rateAt(row.cropType, 1e6), row.rates[0]);
  }
}

TEST_F(SeedRates, AreUnchangedIfTheWaterIsNegativeOrTheCropHasNone) {
  EXPECT_EQ(rateAt("Corn", -0.001, 777), 777);
  for (const char* name : {"Oats", "Fallow", "corn", "SUNFLOWER", ""})
    EXPECT_EQ(rateAt(name, 12, 777), 777) << name;
}

TEST_F(SeedRates, AreUnchangedIfTheSwitchIsOff) {
  inputCosts costs;
  costs.SeedRate = 30000;
  costs.SeedCost = 2;
  double depth = 18;
  EXPECT_EQ(costs.getSeedCost(10, 0, "Corn", depth), 600);
  EXPECT_EQ(costs.SeedRate, 30000);
}

TEST(SeedCost, UsesTheNetDepthAndReturnsItInTheCallersVariable) {
  const ScopedEfficiency efficiency(0.5);
  inputCosts costs;
  costs.SeedOptimal = true;
  double depth = 24;
  (void)costs.getSeedCost(1, 0, "Corn", depth);
  EXPECT_EQ(depth, 12);
  EXPECT_EQ(costs.SeedRate, 26000);
}

TEST(SeedCost, IsPerPoundForThreeCropsAndPerThousandForOthers) {
  const ScopedEfficiency efficiency(1);
  for (const char* name :
       {"Grain Sorghum", "Wheat", "Alfalfa", "Corn", "Soybeans", "Sunflower", "Fallow", "Oats", "wheat"}) {
    const std::string crop = name;
    const bool byPound = crop == "Grain Sorghum" || crop == "Wheat" || crop == "Alfalfa";
    inputCosts costs;
    costs.SeedRate = 5000;
    costs.SeedCost = 3;
    double depth = 0;
    EXPECT_EQ(costs.getSeedCost(2, 0, crop, depth), byPound ? 30000 : 30) << name;
  }
}

TEST(SeedCost, DoesNotDependOnTheYield) {
  const ScopedEfficiency efficiency(1);
  inputCosts costs;
  costs.SeedRate = 26000;
  costs.SeedCost = 2.89;
  for (const double yield : {0.0, 200.0, -1e308}) {
    double depth = 12;
    EXPECT_EQ(costs.getSeedCost(1, yield, "Corn", depth), 26000.0 / 1000 * 2.89);
  }
}

TEST(SeedCost, RejectsACostThatIsTooLarge) {
  const ScopedEfficiency efficiency(1);
  inputCosts costs;
  costs.SeedRate = 1e300;
  costs.SeedCost = 1e300;
  double depth = 0;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)costs.getSeedCost(1, 0, "Corn", depth); }),
              HasSubstr("seed cost"));
}

/// The four charges of a custom harvest.
inputCosts harvester(double base, double exceed, double exceedRate, double hauling) {
  inputCosts costs;
  costs.HarvestBasePerAcre = base;
  costs.HarvestExceedBu = exceed;
  costs.HarvestExceedRate = exceedRate;
  costs.HarvestHauling = hauling;
  return costs;
}

TEST(HarvestCost, OfGrainIsBasePlusExtraPlusHauling) {
  const inputCosts costs = harvester(20, 100, 0.5, 0.25);
  for (const char* name :
       {"Corn", "Wheat", "Grain Sorghum", "Soybeans", "Oats", "Fallow", "alfalfa", "sunflower"}) {
    EXPECT_EQ(costs.getHarvestCost(10, 140, name), (20 + 0.5 * 40 + 0.25 * 140) * 10) << name;
  }
}

TEST(HarvestCost, HasNoLowerLimitForTheExtraCharge) {
  const inputCosts costs = harvester(20, 100, 0.5, 0);
  EXPECT_EQ(costs.getHarvestCost(1, 100, "Corn"), 20);
  EXPECT_EQ(costs.getHarvestCost(1, 90, "Corn"), 15);
  EXPECT_EQ(costs.getHarvestCost(10, 0, "Corn"), -300);
}

TEST(HarvestCost, OfCornBelowItsThresholdIsLessThanTheBaseCharge) {
  EXPECT_LT(cornCrop().inputCosts.getHarvestCost(1, 0, "Corn"), 28.58);
}

TEST(HarvestCost, UsesAFlatRateAbove0InsteadOfTheFourCharges) {
  inputCosts costs = harvester(20, 100, 0.5, 0.25);
  costs.HarvestFlatRate = 0.125;
  EXPECT_EQ(costs.getHarvestCost(10, 140, "Corn"), 0.125 * 140 * 10);
  EXPECT_EQ(costs.getHarvestCost(10, 140, "Sunflower"), 1.4 * 0.125 * 10);
  for (const double none : {0.0, -1.0}) {
    costs.HarvestFlatRate = none;
    EXPECT_EQ(costs.getHarvestCost(10, 140, "Corn"), 750) << none;
  }
}

TEST(HarvestCost, OfSunflowerIsPerHundredweight) {
  const inputCosts costs = harvester(20, 1000, 0.5, 0.25);
  EXPECT_EQ(costs.getHarvestCost(10, 3000, "Sunflower"), (20 + 10 + 7.5) * 10);
}

TEST(HarvestCost, OfSunflowerWithDefaultsIsAsComputedByHand) {
  const inputCosts costs = defaultCosts("Sunflower");
  EXPECT_NEAR(costs.getHarvestCost(1, 3000, "Sunflower"), 29.02 + 0.003 * 1700 / 100 + 0.003 * 30, 1e-12);
}

TEST(HarvestCost, OfAlfalfaIsPerTonOrByOperations) {
  inputCosts costs = harvester(20, 100, 0.5, 0.25);
  costs.HarvestFlatRate = 9;  // not used for Alfalfa
  costs.AlfalfaSwathing = 12.5;
  costs.AlfalfaSwathingNum = 4;
  costs.AlfalfaRaking = 4.5;
  costs.AlfalfaRakingNum = 2;
  costs.AlfalfaBaling = 16.5;
  costs.AlfalfaBalingNum = 6;
  EXPECT_EQ(costs.getHarvestCost(10, 8, "Alfalfa"), (50 + 9 + 99) * 10);
  EXPECT_EQ(costs.getHarvestCost(10, 1, "Alfalfa"), (50 + 9 + 99) * 10);  // independent of the yield
  costs.AlfalfaPerTon = 35;
  EXPECT_EQ(costs.getHarvestCost(10, 8, "Alfalfa"), 8 * 35 * 10);
  costs.AlfalfaPerTon = 0;
  EXPECT_EQ(costs.getHarvestCost(10, 8, "Alfalfa"), 1580);
  costs.AlfalfaPerTon = -1;
  EXPECT_EQ(costs.getHarvestCost(10, 8, "Alfalfa"), 1580);
}

TEST(HarvestCost, Is0IfNothingIsEntered) {
  for (const char* name : {"Corn", "Sunflower", "Alfalfa", "Oats"}) {
    EXPECT_EQ(inputCosts().getHarvestCost(10, 140, name), 0) << name;
  }
}

TEST(HarvestCost, RejectsACostThatIsTooLarge) {
  inputCosts costs;
  costs.HarvestFlatRate = 1e300;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)costs.getHarvestCost(1, 1e300, "Corn"); }),
              HasSubstr("harvest cost"));
}

}  // namespace
}  // namespace verdalis::testing
