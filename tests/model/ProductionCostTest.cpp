#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/Crop.h"
#include "model/inputCosts.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"

// Production costs of a field: the sum, and the nutrients that follow the yield.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

/// The production cost of a field with `net` inches of irrigation.
double costOf(Crop& crop, double acres, double yield, double net) {
  double grossDepth = net / EfficiencyFraction;
  return crop.inputCosts.getCosts(acres, yield, crop, grossDepth);
}

class ProductionCosts : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

TEST_F(ProductionCosts, OfAnAcreOfCornWithDefaultsAreAsComputedByHand) {
  Crop corn = cornCrop();
  EXPECT_NEAR(costOf(corn, 1, 200, 12), 484.524, 1e-9);
  EXPECT_NEAR(corn.inputCosts.NPerAcre, 270, 1e-9);
  EXPECT_NEAR(corn.inputCosts.PPerAcre, 86, 1e-9);
  EXPECT_EQ(corn.inputCosts.SeedRate, 26000);
  EXPECT_NEAR(corn.inputCosts.getHarvestCost(1, 200, "Corn"), 94.944, 1e-9);
}

TEST_F(ProductionCosts, AreProportionalToTheAcres) {
  Crop corn = cornCrop();
  EXPECT_NEAR(costOf(corn, 100, 200, 12), 48452.4, 1e-7);
  EXPECT_EQ(costOf(corn, 0, 200, 12), 0);
}

TEST_F(ProductionCosts, OfAlfalfaAreSpreadOverTheLifeOfTheStand) {
  Crop alfalfa = alfalfaCrop();
  EXPECT_NEAR(costOf(alfalfa, 1, 8, 12), 437.5687, 5e-5);
  EXPECT_EQ(alfalfa.inputCosts.NPerAcre, 0);
  EXPECT_NEAR(alfalfa.inputCosts.PPerAcre * 0.8, 95.232, 1e-9);
  double gross = 12 / 0.85;
  EXPECT_NEAR(alfalfa.inputCosts.getSeedCost(1, 8, "Alfalfa", gross) / 3, 4.05, 1e-9);
  EXPECT_NEAR(alfalfa.inputCosts.getHarvestCost(1, 8, "Alfalfa"), 280, 1e-9);
}

TEST_F(ProductionCosts, SpreadOnlySeedTillageAndPlantingOverTheStandLife) {
  Crop crop = namedCrop("Clover", "ton,tons");
  crop.inputCosts.AlfalfaStand = 4;
  const auto fourth = [&](double inputCosts::*field) {
    Crop copy = crop.Copy();
    copy.inputCosts.*field = 8;
    return costOf(copy, 1, 0, 0);
  };
  EXPECT_EQ(fourth(&inputCosts::Tillage), 2);
  EXPECT_EQ(fourth(&inputCosts::Planting), 2);
  for (double inputCosts::*field :
       {&inputCosts::Herbicide, &inputCosts::Insecticide, &inputCosts::FertilizerApplication,
        &inputCosts::HerbicideApplication, &inputCosts::InsecticideApplication, &inputCosts::MiscCost}) {
    EXPECT_EQ(fourth(field), 8);
  }
  crop.inputCosts.SeedCost = 2;
  crop.inputCosts.SeedRate = 6000;
  EXPECT_EQ(costOf(crop, 1, 0, 0), 3);  // $12 per acre over 4 years
}

TEST_F(ProductionCosts, ExcludeOtherIncomeAndTheReservedValues) {
  Crop crop = namedCrop("Oats");
  crop.inputCost = 100;
  crop.inputCosts.Returns = 50;
  crop.inputCosts.AlfalfaFlat = 70;
  EXPECT_EQ(costOf(crop, 10, 100, 5), 0);
}

TEST_F(ProductionCosts, CountAStandLifeOf0OrEmptyAsOneYear) {
  Crop empty = namedCrop("Clover", "ton,tons");
  empty.inputCosts.Tillage = 30;
  Crop zero = empty.Copy();
  zero.inputCosts.AlfalfaStand = 0;
  EXPECT_EQ(costOf(empty, 2, 0, 0), 60);
  EXPECT_EQ(costOf(zero, 2, 0, 0), 60);
  EXPECT_EQ(empty.inputCosts.AlfalfaStand.text(), "1");
  EXPECT_EQ(zero.inputCosts.AlfalfaStand.text(), "1");
}

TEST_F(ProductionCosts, IgnoreTheStandLifeIfTheUnitIsNotTon) {
  Crop crop = namedCrop("Alfalfa", "bale,bales");
  crop.inputCosts.Tillage = 30;
  crop.inputCosts.AlfalfaStand = 3;
  EXPECT_EQ(costOf(crop, 1, 0, 0), 30);
  crop.inputCosts.AlfalfaStand.clear();
  EXPECT_EQ(costOf(crop, 1, 0, 0), 30);
  EXPECT_TRUE(crop.inputCosts.AlfalfaStand.isEmpty());
}

TEST_F(ProductionCosts, OfACustomCropInTonsUseAStandLifeButNoForageHarvest) {
  Crop clover = namedCrop("Clover", "ton,tons");
  clover.Custom = true;
  clover.inputCosts.Tillage = 30;
  clover.inputCosts.AlfalfaStand = 3;
  clover.inputCosts.AlfalfaPerTon = 35;  // forage operations apply only to the crop named "Alfalfa"
  clover.inputCosts.AlfalfaSwathing = 12;
  clover.inputCosts.AlfalfaSwathingNum = 2;
  EXPECT_EQ(costOf(clover, 1, 5, 0), 10);
  clover.inputCosts.HarvestHauling = 2;  // it has the harvest charges of an ordinary crop
  EXPECT_EQ(costOf(clover, 1, 5, 0), 20);
}

struct Uptake {
  const char* cropType;
  double nitrogen;
  double phosphorus;
};

TEST_F(ProductionCosts, UseTheNutrientRatesOfTheCropTimesTheYield) {
  const std::vector<Uptake> cases = {
      {"Corn", 1.35, 0.43},  {"Grain Sorghum", 1.25, 0.44}, {"Wheat", 1.75, 0.55}, {"Sunflower", 0.05, 0.018},
      {"Alfalfa", 0, 14.88}, {"Soybeans", 0, 0.87},         {"Fallow", 0, 0},      {"Oats", 0, 0},
      {"corn", 0, 0},
  };
  for (const Uptake& each : cases) {
    Crop crop = namedCrop(each.cropType);
    crop.inputCosts.NOptimal = true;
    crop.inputCosts.POptimal = true;
    crop.inputCosts.NitrogenApplied = 5;
    crop.inputCosts.PApplied = 6;
    crop.inputCosts.NitrogenCost = 2;
    EXPECT_EQ(costOf(crop, 10, 80, 6), each.nitrogen * 80 * 2 * 10) << each.cropType;
    EXPECT_EQ(crop.inputCosts.NPerAcre, each.nitrogen * 80) << each.cropType;
    EXPECT_EQ(crop.inputCosts.PPerAcre, each.phosphorus * 80) << each.cropType;
    crop.inputCosts.NitrogenCost = 0;
    crop.inputCosts.PCost = 2;
    EXPECT_EQ(costOf(crop, 10, 80, 6), each.phosphorus * 80 * 2 * 10) << each.cropType;
  }
}

TEST_F(ProductionCosts, UseTheAppliedRatesIfTheSwitchesAreOff) {
  Crop corn = namedCrop("Corn");
  corn.inputCosts.NitrogenApplied = 150;
  corn.inputCosts.NitrogenCost = 0.5;
  corn.inputCosts.PApplied = 40;
  corn.inputCosts.PCost = 0.25;
  EXPECT_EQ(costOf(corn, 2, 200, 6), 2 * (75 + 10));
  EXPECT_EQ(corn.inputCosts.NPerAcre, 150);
  EXPECT_EQ(corn.inputCosts.PPerAcre, 40);
  corn.inputCosts.NOptimal = true;  // each switch works independently
  EXPECT_EQ(costOf(corn, 2, 200, 6), 2 * (1.35 * 200 * 0.5 + 10));
  EXPECT_EQ(corn.inputCosts.PPerAcre, 40);
}

TEST_F(ProductionCosts, OfACustomCropWithNOptimalHaveNoNitrogen) {
  Crop oats = namedCrop("Oats");
  oats.Custom = true;
  oats.inputCosts.NOptimal = true;
  oats.inputCosts.NitrogenApplied = 100;
  oats.inputCosts.NitrogenCost = 1;
  EXPECT_EQ(costOf(oats, 10, 60, 6), 0);
  EXPECT_EQ(oats.inputCosts.NPerAcre, 0);
}

TEST_F(ProductionCosts, ConvertTheCallersGrossDepthToNet) {
  Crop corn = cornCrop();
  double grossDepth = 10;
  (void)corn.inputCosts.getCosts(1, 100, corn, grossDepth);
  EXPECT_EQ(grossDepth, 10 * 0.85);
}

TEST_F(ProductionCosts, InATrendAreOneRatePerAcreAndChangeNothingElse) {
  Crop alfalfa = alfalfaCrop();
  alfalfa.inputCosts.AlfalfaStand.clear();
  alfalfa.inputCosts.UseBatch = true;
  alfalfa.inputCosts.BatchGeneralCosts = 123.5;
  alfalfa.inputCosts.NPerAcre = 7;
  alfalfa.inputCosts.PPerAcre = 8;
  alfalfa.inputCosts.SeedRate = 9;
  double grossDepth = 10;
  EXPECT_EQ(alfalfa.inputCosts.getCosts(4, 8, alfalfa, grossDepth), 494);
  EXPECT_EQ(alfalfa.inputCosts.NPerAcre, 7);
  EXPECT_EQ(alfalfa.inputCosts.PPerAcre, 8);
  EXPECT_EQ(alfalfa.inputCosts.SeedRate, 9);
  EXPECT_TRUE(alfalfa.inputCosts.AlfalfaStand.isEmpty());
  EXPECT_EQ(grossDepth, 10);
}

TEST_F(ProductionCosts, RejectASumThatIsTooLarge) {
  Crop corn = cornCrop();
  corn.inputCosts.Herbicide = 1e308;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)costOf(corn, 1000, 200, 12); }),
              HasSubstr("production cost"));
  corn.inputCosts.UseBatch = true;
  corn.inputCosts.BatchGeneralCosts = 1e308;
  errorText(ErrorNumber::overflow, [&] { (void)costOf(corn, 1000, 200, 12); });
}

TEST_F(ProductionCosts, RejectATermThatIsTooLargeEvenIfAnotherFactorIs0) {
  Crop corn = namedCrop("Corn");
  corn.inputCosts.NOptimal = true;
  errorText(ErrorNumber::overflow, [&] { (void)costOf(corn, 1, 1.7e308, 12); });
}

TEST(OtherIncome, IsPerAcre) {
  inputCosts costs;
  EXPECT_EQ(costs.getReturns(100), 0);
  costs.Returns = 12.5;
  EXPECT_EQ(costs.getReturns(100), 1250);
  costs.Returns = -3;
  EXPECT_EQ(costs.getReturns(100), -300);
  costs.Returns = 1e308;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)costs.getReturns(100); }),
              HasSubstr("land usage"));
}

/// Costs with a different value in every saved field, in the order of the file.
inputCosts numberedCosts() {
  inputCosts c;
  c.NitrogenCost = 1.5;
  c.NitrogenApplied = 2;
  c.NOptimal = true;
  c.PCost = 3;
  c.PApplied = 4;
  c.POptimal = false;
  c.SeedCost = 5;
  c.SeedRate = 32000;
  c.SeedOptimal = true;
  c.Herbicide = 6;
  c.Insecticide = 7;
  c.Tillage = 8;
  c.Planting = 9;
  c.HerbicideApplication = 10;
  c.InsecticideApplication = 11;
  c.Returns = 12;
  c.HarvestBasePerAcre = 13;
  c.HarvestExceedBu = 14;
  c.HarvestExceedRate = 15;
  c.HarvestHauling = 16;
  c.HarvestFlatRate = 0;
  c.AlfalfaSwathing = 18;
  c.AlfalfaSwathingNum = 19;
  c.AlfalfaRaking = 20;
  c.AlfalfaRakingNum = 21;
  c.AlfalfaBaling = 22;
  c.AlfalfaBalingNum = 23;
  c.AlfalfaPerTon = 24;
  c.AlfalfaStand = 25;
  c.MiscCost = 0.1;
  c.FertilizerApplication = 27;
  return c;
}

TEST(CostLines, AreInTheOrderOfTheFile) {
  EXPECT_EQ(numberedCosts().writeData(),
            "1."
            "5\r\n2\r\nTrue\r\n3\r\n4\r\nFalse\r\n5\r\n32000\r\nTrue\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n12\r"
            "\n13\r\n"
            "14\r\n15\r\n16\r\n0\r\n18\r\n19\r\n20\r\n21\r\n22\r\n23\r\n24\r\n25\r\n0.1\r\n27");
}

TEST(CostLines, AreEmptyForNumbersThatWereNeverSet) {
  EXPECT_EQ(inputCosts().writeData(),
            "0\r\n0\r\nFalse\r\n0\r\n0\r\nFalse\r\n0\r\n0\r\nFalse\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
            "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n0\r\n0");
}

TEST(Costs, CopyHasAllFieldsExceptTheReservedOne) {
  inputCosts costs = numberedCosts();
  costs.AlfalfaFlat = 99;
  costs.theString = "text";
  costs.NPerAcre = 28;
  costs.PPerAcre = 29;
  costs.UseBatch = true;
  costs.BatchGeneralCosts = 30;
  const inputCosts copy = costs.Copy();
  EXPECT_EQ(copy.writeData(), costs.writeData());
  EXPECT_EQ(copy.AlfalfaFlat, 0);
  EXPECT_EQ(copy.toString(), "text");
  EXPECT_EQ(copy.NPerAcre, 28);
  EXPECT_EQ(copy.PPerAcre, 29);
  EXPECT_TRUE(copy.UseBatch);
  EXPECT_EQ(copy.BatchGeneralCosts, 30);
  EXPECT_TRUE(inputCosts().Copy().HarvestFlatRate.isEmpty());
}

TEST(Costs, HaveAnEmptyReport) {
  EXPECT_EQ(cornCrop().inputCosts.toString(), "");
}

TEST(NumberField, CountsAs0IfEmpty) {
  Number number;
  EXPECT_TRUE(number.isEmpty());
  EXPECT_EQ(number + 3, 3);
  EXPECT_EQ(number.text(), "");
  number = 0;
  EXPECT_FALSE(number.isEmpty());
  EXPECT_EQ(number.text(), "0");
  number = 0.214;
  EXPECT_EQ(number.text(), "0.214");
  number.clear();
  EXPECT_TRUE(number.isEmpty());
}

}  // namespace
}  // namespace verdalis::testing
