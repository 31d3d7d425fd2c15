#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "model/Field.h"
#include "model/PricedField.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/PlainFarm.h"
#include "tests/support/Plant.h"

// One field: returns, costs, cached values, and its report.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

/// A field that is ready for pricing.
Field fieldOf(Crop crop, double acres, double depth, double rain = 16) {
  Field field;
  field.acres = acres;
  field.Depth = depth;
  field.annualRain = rain;
  crop.setNormal(crop.maxYield, rain);
  (void)yieldAt(crop, depth, rain);
  field.theCrop = std::make_shared<Crop>(std::move(crop));
  field.irrigCosts = std::make_shared<IrrigationCosts>(defaultPlant());
  return field;
}

class FieldPricing : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

TEST(NewField, HasAnEmptyCropAndPlant) {
  const ScopedEfficiency efficiency(0.85);
  Field field;
  EXPECT_EQ(field.theCrop->cropType, "");
  EXPECT_FALSE(field.irrigCosts->active);
  EXPECT_EQ(field.getProfit(), 0);
  EXPECT_EQ(field.getVolume(), 0);
}

TEST_F(FieldPricing, ReturnIsSalesAndOtherIncome) {
  Field field = fieldOf(cornCrop(), 50, 12);
  field.theCrop->Yield = 200;
  EXPECT_EQ(field.getReturn(), 6.52 * 200 * 50);
  Field other = fieldOf(cornCrop(), 50, 12);
  other.theCrop->Yield = 200;
  other.theCrop->inputCosts.Returns = 10;
  EXPECT_EQ(other.getReturn(), 6.52 * 200 * 50 + 500);
}

TEST_F(FieldPricing, ProductionUsesTheGrossDepthAndIrrigationTheNetDepth) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  double gross = 8.5 / 0.85;
  Crop crop = field.theCrop->Copy();
  const double production = crop.inputCosts.getCosts(100, crop.Yield, crop, gross);
  IrrigationCosts plant = defaultPlant();
  EXPECT_EQ(field.getCosts(), plant.getCosts(8.5, 100) + production);
  EXPECT_EQ(field.irrigCosts->hours, plant.hours);
  EXPECT_EQ(field.theCrop->inputCosts.SeedRate, 20000);  // for 8.5 net inches, not 10 gross inches
}

TEST_F(FieldPricing, ProductionCostsExcludeIrrigationAndAreNotCached) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  IrrigationCosts plant = defaultPlant();
  const double production = field.getProductionCosts();
  EXPECT_EQ(field.TotalCost, 0);
  EXPECT_EQ(field.getCosts(), plant.getCosts(8.5, 100) + production);
  EXPECT_EQ(field.Depth, 8.5);
  field.theCrop->inputCosts.MiscCost = 1;
  EXPECT_NEAR(field.getProductionCosts(), production + 100, 1e-9);  // computed again
}

TEST_F(FieldPricing, ProfitIsReturnMinusCosts) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  const double profit = field.getProfit();
  EXPECT_EQ(profit, field.getReturn() - field.getCosts());
}

TEST_F(FieldPricing, VolumeIsNetAcreInches) {
  EXPECT_EQ(fieldOf(cornCrop(), 40, 8.5).getVolume(), 340);
  EXPECT_EQ(fieldOf(fallowCrop(), 40, 0).getVolume(), 0);
}

TEST_F(FieldPricing, CachesCostsUnlessTheyAre0) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  const double costs = field.getCosts();
  field.theCrop->inputCosts.MiscCost = 1000;
  field.irrigCosts->cost = 1000;
  EXPECT_EQ(field.getCosts(), costs);
  field.TotalCost = 0;
  EXPECT_GT(field.getCosts(), costs);

  Field free;
  EXPECT_EQ(free.getCosts(), 0);
  free.theCrop->inputCosts.MiscCost = 3;
  free.acres = 2;
  EXPECT_EQ(free.getCosts(), 6);  // 0 means not computed
}

TEST_F(FieldPricing, CachesItsReturnUntilItIsCleared) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  const double before = field.getReturn();
  field.theCrop->price = 100;
  EXPECT_EQ(field.getReturn(), before);
  field.TotalReturn = 0;
  EXPECT_EQ(field.getReturn(), 100 * field.theCrop->Yield * 100);
}

TEST_F(FieldPricing, CopyKeepsTheCostAndRecomputesTheReturn) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  const double costs = field.getCosts();
  const double before = field.getReturn();
  field.theCrop->price = 2 * 6.52;
  field.theCrop->inputCosts.MiscCost = 1000;
  Field copy = field.Copy();
  EXPECT_EQ(copy.TotalReturn, 0);
  EXPECT_EQ(copy.getCosts(), costs);
  EXPECT_DOUBLE_EQ(copy.getReturn(), 2 * before);
  EXPECT_EQ(field.getReturn(), before);
}

TEST_F(FieldPricing, CopyHasItsOwnCropAndPlant) {
  Field field = fieldOf(cornCrop(), 100, 8.5, 17);
  const Field copy = field.Copy();
  EXPECT_EQ(copy.acres, 100);
  EXPECT_EQ(copy.Depth, 8.5);
  EXPECT_EQ(copy.annualRain, 17);
  copy.theCrop->price = 1;
  copy.theCrop->inputCosts.Herbicide = 2;
  copy.irrigCosts->GPM = 3;
  EXPECT_EQ(field.theCrop->price, 6.52);
  EXPECT_EQ(field.theCrop->inputCosts.Herbicide, 30);
  EXPECT_EQ(field.irrigCosts->GPM, 750);
}

TEST_F(FieldPricing, MakeFallowReplacesTheCropAndRemovesTheWater) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  const auto corn = field.theCrop.shared();
  field.makeFallow();
  EXPECT_EQ(field.theCrop->cropType, "Fallow");
  EXPECT_EQ(field.theCrop->price, 0);
  EXPECT_EQ(field.Depth, 0);
  EXPECT_EQ(field.acres, 100);
  EXPECT_EQ(corn->cropType, "Corn");  // its previous crop is unchanged
}

TEST(FieldFailure, EfficiencyOf0IsAnError) {
  const ScopedEfficiency none(0);
  Field field = fieldOf(cornCrop(), 100, 8.5);
  for (const std::string& text :
       {errorText(ErrorNumber::divisionByZero, [&] { (void)field.getCosts(); }),
        errorText(ErrorNumber::divisionByZero, [&] { (void)field.getProductionCosts(); }),
        errorText(ErrorNumber::divisionByZero, [&] { (void)field.getProfit(); }),
        errorText(ErrorNumber::divisionByZero, [&] { (void)field.toString(); })}) {
    EXPECT_THAT(text, HasSubstr("efficiency is 0"));
    EXPECT_THAT(text, HasSubstr("Irrigation Efficiency %"));
  }
  EXPECT_GT(field.getReturn(), 0);
}

TEST(FieldFailure, EfficiencyOf0IsAnErrorEvenWithoutWaterAndInATrend) {
  const ScopedEfficiency none(0);
  Field field = fieldOf(fallowCrop(), 100, 0);
  field.theCrop->inputCosts.UseBatch = true;
  errorText(ErrorNumber::divisionByZero, [&] { (void)field.getCosts(); });
}

TEST(FieldFailure, EfficiencyNear0IsAnError) {
  const ScopedEfficiency tiny(1e-308);
  Field field = fieldOf(cornCrop(), 100, 8.5);
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)field.getCosts(); }),
              HasSubstr("gross irrigation depth"));
}

TEST_F(FieldPricing, RejectsAReturnThatIsTooLarge) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  field.theCrop->price = 1e308;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)field.getReturn(); }),
              HasSubstr("return of a field"));
  EXPECT_EQ(field.TotalReturn, 0);
}

TEST_F(FieldPricing, ReportHasFourLines) {
  Field field = fieldOf(cornCrop(), 100, 8.5);
  field.theCrop->Yield = 184.44;
  field.TotalCost = 43210.5;
  field.TotalReturn = 119345;
  field.theCrop->inputCosts.Returns = 12.5;
  EXPECT_EQ(field.toString(),
            "100 ac.\t8.50'' Net Irrig Water, \tCorn Yield = 184.4 bu./ac\tTotal Costs = $43,210.5\t\tTotal "
            "Returns = "
            "$119,345.\r\n"
            "Gross Irrig Water = 10.00''\r\n"
            "Total Water Pumping Cost : $2,717\r\n"
            "Land Usage Return = $1,250");
}

TEST_F(FieldPricing, ReportOfADryFieldShowsTheZerosOfItsPatterns) {
  Field field = fieldOf(fallowCrop(), 33.5, 0);
  field.theCrop->inputCosts = inputCosts();
  EXPECT_EQ(field.toString(),
            "33.5 ac.\t0.00'' Net Irrig Water, \tFallow Yield = 0.0 /ac\tTotal Costs = $00.\t\tTotal Returns "
            "= $0.\r\n"
            "Gross Irrig Water = 0.00''\r\n"
            "Total Water Pumping Cost : $000\r\n"
            "Land Usage Return = $0");
}

TEST_F(FieldPricing, ReportCutsTheCropNameAfter7Characters) {
  Crop sorghum = namedCrop("Grain Sorghum");
  sorghum.setYieldTable(wheatTable());
  EXPECT_THAT(fieldOf(sorghum, 10, 5).toString(), HasSubstr("\tGrain S Yield = "));
  sorghum.cropType = "Alfalfa";
  EXPECT_THAT(fieldOf(sorghum, 10, 5).toString(), HasSubstr("\tAlfalfa Yield = "));
}

TEST_F(FieldPricing, ReportDoesNotCutWithinACharacter) {
  Crop crop = namedCrop("Zuckerrüben");
  crop.setYieldTable(wheatTable());
  EXPECT_THAT(fieldOf(crop, 10, 5).toString(), HasSubstr("\tZuckerr Yield = "));
  crop.cropType = "Frühgerste";
  EXPECT_THAT(fieldOf(crop, 10, 5).toString(), HasSubstr("\tFrühger Yield = "));
  crop.cropType = "Pflänzü";
  EXPECT_THAT(fieldOf(crop, 10, 5).toString(), HasSubstr("\tPflänzü Yield = "));
}

TEST(PricedField, RejectsAnEfficiencyOf0) {
  const Crop corn = cornCrop();
  const auto price = [&] { (void)priceField({100, 8, 16}, corn, defaultPlant(), 0); };
  EXPECT_NE(errorText(ErrorNumber::divisionByZero, price), "");
}

}  // namespace
}  // namespace verdalis::testing
