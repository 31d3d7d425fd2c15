#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "model/IrrigationCosts.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"

// The cost of pumping, and the capacity of a plant.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

class IrrigationCost : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

TEST_F(IrrigationCost, OfTheDefaultPlantOn100AcresIsAsComputedByHand) {
  IrrigationCosts plant = defaultPlant();
  EXPECT_NEAR(plant.getCosts(8.5, 100), 2716.575, 5e-4);
  EXPECT_NEAR(plant.hours, 600, 1e-9);
  const double whp = (plant.PSI * feetPerPsi + plant.Lift) * plant.GPM / gallonFeetPerHorsepower;
  EXPECT_NEAR(whp, 38.03977, 5e-6);
  const double labourAndRepairs = 500 + 330;
  EXPECT_NEAR(plant.getCosts(8.5, 100) - labourAndRepairs, 1886.575, 5e-4);
  EXPECT_NEAR((whp / 61.7) * 600 * 5.1, 1886.575, 5e-4);
}

TEST_F(IrrigationCost, IncludesHalfAnHourOfLabourPerAcreWhateverTheDepth) {
  IrrigationCosts plant = defaultPlant();
  plant.cost = 0;
  plant.RepairsPerAcreInch = 0;
  EXPECT_EQ(plant.getCosts(0.01, 100), 500);
  EXPECT_EQ(plant.getCosts(30, 100), 500);
}

TEST_F(IrrigationCost, IncludesRepairsByTheGrossDepth) {
  IrrigationCosts plant = defaultPlant();
  plant.cost = 0;
  plant.LaborPerHour = 0;
  EXPECT_NEAR(plant.getCosts(8.5, 100), 330, 1e-9);
}

TEST_F(IrrigationCost, ExcludesTheFixedCostAndTheSeasonHours) {
  IrrigationCosts plant = defaultPlant();
  const double cost = plant.getCosts(8.5, 100);
  plant.FixedPerAcre = 1000;
  plant.dblEstHours = 1;
  plant.dblMaxInches = 1;
  EXPECT_EQ(plant.getCosts(8.5, 100), cost);
}

TEST_F(IrrigationCost, OfADryFieldIs0AndKeepsTheHours) {
  IrrigationCosts plant = defaultPlant();
  plant.hours = 123;
  EXPECT_EQ(plant.getCosts(0, 100), 0);
  EXPECT_EQ(plant.getCosts(-1, 100), 0);
  EXPECT_EQ(plant.hours, 123);
}

TEST_F(IrrigationCost, OfAnInactivePlantIs0AndKeepsTheHours) {
  for (const int missing : {0, 1, 2, 3}) {
    IrrigationCosts plant = defaultPlant();
    plant.hours = 123;
    if (missing == 0) plant.active = false;
    if (missing == 1) plant.GPM = 0;
    if (missing == 2) plant.NPC = 0;
    if (missing == 3) plant.NPC = -1;
    EXPECT_EQ(plant.getCosts(8.5, 100), 0) << missing;
    EXPECT_EQ(plant.hours, 123) << missing;
  }
  IrrigationCosts negativeFlow = defaultPlant();
  negativeFlow.GPM = -5;
  EXPECT_EQ(negativeFlow.getCosts(8.5, 100), 0);
}

TEST_F(IrrigationCost, WithoutAFuelIs0) {
  IrrigationCosts plant;
  plant.active = true;
  plant.GPM = 750;
  plant.cost = 5;
  EXPECT_EQ(plant.NPC, 0);
  EXPECT_EQ(plant.getCosts(8.5, 100), 0);
}

TEST_F(IrrigationCost, InATrendIsOneRatePerNetAcreInch) {
  IrrigationCosts plant = defaultPlant();
  plant.hours = 123;
  plant.UseBatch = true;
  plant.BatchIrrigationCosts = 4;
  EXPECT_EQ(plant.getCosts(8.5, 100), 3400);
  EXPECT_EQ(plant.getCosts(0, 100), 0);
  EXPECT_EQ(plant.hours, 123);
  plant.active = false;  // the trend's rate needs no plant
  EXPECT_EQ(plant.getCosts(8.5, 100), 3400);
}

TEST(IrrigationCostFailure, AStepThatFailsCountsAs0) {
  const ScopedEfficiency none(0);
  IrrigationCosts plant = defaultPlant();
  EXPECT_EQ(plant.getCosts(8.5, 100), 500);  // no gross depth, so only labour costs remain
  EXPECT_EQ(plant.hours, 0);
}

TEST(IrrigationCostFailure, NeverThrows) {
  const ScopedEfficiency all(1);
  IrrigationCosts plant = defaultPlant();
  plant.Lift = 1e308;
  plant.GPM = 1e308;
  EXPECT_EQ(plant.getCosts(10, 100), 100 * 0.5 * 10 + 100 * 0.33 * 10);  // without horsepower
  plant = defaultPlant();
  plant.LaborPerHour = 1e308;
  EXPECT_EQ(plant.getCosts(10, 1e10), 0);  // the sum itself overflows
  plant.UseBatch = true;
  plant.BatchIrrigationCosts = 1e308;
  EXPECT_EQ(plant.getCosts(10, 100), 0);
}

TEST(IrrigationCostFailure, IfPumpingHoursFailThePreviousHoursAreUsed) {
  const ScopedEfficiency all(1);
  IrrigationCosts plant = defaultPlant();
  plant.RepairsPerAcreInch = 0;
  plant.LaborPerHour = 0;
  plant.hours = 10;
  const double whp = (35 * 2.31 + 120) * 750 / 3960;
  EXPECT_EQ(plant.getCosts(1e308, 100), (whp / 61.7) * 10 * 5.1);
  EXPECT_EQ(plant.hours, 10);
}

TEST(PumpingCapacity, IsTheSeasonVolumeDividedByTheAcres) {
  const IrrigationCosts plant = defaultPlant();
  EXPECT_EQ(plant.getMaxInches(100), (750.0 * 60 * 1800 / 100) * (1.0 / 27154));
  EXPECT_NEAR(plant.getMaxInches(100), 29.8298, 1e-4);
  EXPECT_EQ(plant.getMaxInches(0), 0);
  EXPECT_EQ(IrrigationCosts().getMaxInches(100), 0);
}

TEST(PumpingCapacity, RejectsAVolumeThatIsTooLarge) {
  IrrigationCosts plant = defaultPlant();
  plant.GPM = 1e308;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)plant.getMaxInches(100); }),
              HasSubstr("pumping capacity"));
}

TEST(FuelPerformance, IsKnownForEachFuel) {
  EXPECT_EQ(fuelPerformance("Diesel"), 12.5);
  EXPECT_EQ(fuelPerformance("Natural Gas"), 61.7);
  EXPECT_EQ(fuelPerformance("Propane"), 6.89);
  EXPECT_EQ(fuelPerformance("Electricity"), 0.885);
  for (const char* text : {"", "diesel", "Select fuel type", "Natural gas", "Gas"}) {
    EXPECT_EQ(fuelPerformance(text), std::nullopt) << text;
  }
}

TEST(PhysicalConstants, MatchThePumpFormulas) {
  EXPECT_EQ(feetPerPsi, 2.31);
  EXPECT_EQ(gallonFeetPerHorsepower, 3960);
  EXPECT_EQ(gpmPerAcreInchHour, 450);
  EXPECT_EQ(gallonsPerAcreInch, 27154);
}

TEST(PlantLines, AreInTheOrderOfTheFile) {
  IrrigationCosts plant = defaultPlant();
  plant.FixedPerAcre = 12.25;
  EXPECT_EQ(plant.writeData(),
            "750\r\n120\r\n35\r\n10\r\n12.25\r\n0.33\r\n61.7\r\n5.1\r\nTrue\r\nNatural Gas\r\n1800");
}

TEST(PlantLines, OfANewPlantAreZeros) {
  EXPECT_EQ(IrrigationCosts().writeData(), "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\nFalse\r\n\r\n0");
}

TEST(PlantCopy, HasAllFieldsAndIsIndependent) {
  IrrigationCosts plant = defaultPlant();
  plant.FixedPerAcre = 1;
  plant.dblMaxInches = 2;
  plant.hours = 3;
  plant.UseBatch = true;
  plant.BatchIrrigationCosts = 4;
  IrrigationCosts copy = plant.Copy();
  EXPECT_EQ(copy.writeData(), plant.writeData());
  EXPECT_EQ(copy.dblMaxInches, 2);
  EXPECT_EQ(copy.hours, 3);
  EXPECT_TRUE(copy.UseBatch);
  EXPECT_EQ(copy.BatchIrrigationCosts, 4);
  copy.GPM = 0;
  copy.hours = 0;
  EXPECT_EQ(plant.GPM, 750);
  EXPECT_EQ(plant.hours, 3);
}

}  // namespace
}  // namespace verdalis::testing
