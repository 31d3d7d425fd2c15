#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "screens/readScenario.h"
#include "tests/support/Errors.h"
#include "tests/support/Run.h"

// The crops of a run from the ticked rows, and the tables of the soil.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

CropScenario cropsOf(const FarmRun& farm) {
  return returnCrops(farm.inputs, farm.library);
}

TEST(SelectedCrops, AreThoseOfTheTickedRowsInTheirOrder) {
  FarmRun farm;
  for (const char* name : {"Alfalfa", "Corn", "Fallow", "Wheat"})
    farm.add(namedCrop(name));
  farm.inputs.cr[0].isActive = false;
  farm.inputs.cr[2].isActive = false;
  EXPECT_EQ(cropsOf(farm).toString(), "Corn, Wheat");
  farm.inputs.cr[1].isActive = false;
  farm.inputs.cr[3].isActive = false;
  EXPECT_EQ(cropsOf(farm).Count(), 0);
}

TEST(SelectedCrops, AreTheCropsOfTheLibraryWithTheValuesOfTheRows) {
  FarmRun farm;
  Crop& corn = farm.add(cornCrop());
  Crop& wheat = farm.add(wheatCrop());
  farm.inputs.txtAnnRain = "16";
  farm.inputs.cr[0] = {true, "7.25", "200"};
  farm.inputs.cr[1] = {false, "9", "99"};
  const CropScenario crops = cropsOf(farm);
  EXPECT_EQ(crops.Item(1).get(), &corn);
  EXPECT_EQ(corn.price, 7.25);
  EXPECT_EQ(corn.maxYield, 200);
  EXPECT_EQ(corn.normalFactor, 200.0 / 210);
  EXPECT_EQ(wheat.price, 6.2);  // not ticked, not touched
  EXPECT_EQ(wheat.maxYield, 75);
  EXPECT_EQ(wheat.soilName, "");
}

TEST(SelectedCrops, TakeTextsWithoutANumberAs0) {
  FarmRun farm;
  Crop& corn = farm.add(cornCrop());
  farm.inputs.cr[0] = {true, "", "lots"};
  (void)cropsOf(farm);
  EXPECT_EQ(corn.price, 0);
  EXPECT_EQ(corn.maxYield, 0);
}

TEST(SelectedCrops, KeepTheirScaleIfTheRainIsOutsideTheTable) {
  FarmRun farm;
  Crop& corn = farm.add(cornCrop());
  corn.normalFactor = 1.5;
  farm.inputs.txtAnnRain = "25";
  (void)cropsOf(farm);
  EXPECT_EQ(corn.normalFactor, 1.5);
}

TEST(SelectedCrops, ReportATickedRowWithoutACrop) {
  FarmRun farm;
  farm.add(cornCrop());
  farm.inputs.cr.push_back({true, "1", "1"});
  errorText(ErrorNumber::subscript, [&] { (void)cropsOf(farm); });
}

TEST(SelectedCrops, ReportATooLargeNumber) {
  FarmRun farm;
  farm.add(cornCrop());
  farm.inputs.cr[0].txtPrice = "1e999";
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)cropsOf(farm); }), HasSubstr("1e999"));
}

SharedYieldTable fractions(double value) {
  return std::make_shared<const YieldTable>(tableOf(11, {std::vector<double>(11, value)}));
}

/// A farm whose one crop has tables for all three soils: 0.25 for the first, 0.5 and 0.75 for the sands.
std::unique_ptr<FarmRun> farmWithSoils() {
  auto farm = std::make_unique<FarmRun>();
  farm->inputs.txtAnnRain = "16";
  const Crop& corn = farm->add(cornCrop());
  *corn.soil_ulysses = {{"yield", fractions(101)}, {"relative", fractions(0.25)}};
  *corn.soil_valent = {{"yield", fractions(102)}, {"relative", fractions(0.5)}};
  *corn.soil_valentine = {{"yield", fractions(103)}, {"relative", fractions(0.75)}};
  return farm;
}

/// The name of the soil and the table that a soil text selects.
std::pair<std::string, YieldTable> soilFor(FarmRun& farm, const std::string& currentSoil) {
  farm.inputs.currentSoil = currentSoil;
  const CropScenario crops = cropsOf(farm);
  return {crops.Item(1)->soilName, *crops.Item(1)->yieldTable};
}

TEST(SoilTables, OfValentAreThoseOfTheFineSand) {
  const auto [name, table] = soilFor(*farmWithSoils(), "Valent");
  EXPECT_EQ(name, "Fine Sand");
  EXPECT_EQ(table, *fractions(0.5));
}

TEST(SoilTables, OfValentineAreThoseOfTheLoamySand) {
  const auto [name, table] = soilFor(*farmWithSoils(), "Valentine");
  EXPECT_EQ(name, "Loamy Sand");
  EXPECT_EQ(table, *fractions(0.75));
}

TEST(SoilTables, OfEveryOtherTextAreThoseOfTheSiltLoam) {
  for (const char* text :
       {"Silt Loam", "Fine Sand", "Loamy Sand", "", "valent", "VALENTINE", "Valent ", "Ulysses"}) {
    const auto [name, table] = soilFor(*farmWithSoils(), text);
    EXPECT_EQ(name, "Silt Loam") << text;
    EXPECT_EQ(table, *fractions(0.25)) << text;
  }
}

TEST(SoilTables, LeaveACropWithoutThemAsItIs) {
  for (const char* text : {"Valent", "Valentine", "Silt Loam"}) {
    FarmRun farm;
    farm.add(cornCrop());
    const auto [name, table] = soilFor(farm, text);
    EXPECT_EQ(name, "Silt Loam") << text;
    EXPECT_EQ(table, cornTable()) << text;
  }
}

TEST(SoilTables, WithoutASecondTableSetOnlyTheNameOfTheSoil) {
  const auto farm = farmWithSoils();
  const Crop& corn = *farm->library.Item(1);
  corn.soil_valent->pop_back();
  const auto [name, table] = soilFor(*farm, "Valent");
  EXPECT_EQ(name, "Fine Sand");
  EXPECT_EQ(table, cornTable());
}

TEST(SoilTables, AreUsedAfterTheScaleIsSetFromThePreviousTable) {
  const auto farm = farmWithSoils();
  (void)soilFor(*farm, "Silt Loam");
  const Crop& corn = *farm->library.Item(1);
  EXPECT_EQ(corn.normalFactor, 220.0 / 210);
  (void)soilFor(*farm,
                "Silt Loam");  // from the second run on the table is the relative one, and that does no harm
  EXPECT_EQ(corn.normalFactor, 220 / 0.25);
  Crop copy = corn.Copy();
  EXPECT_EQ(yieldAt(copy, 5, 16), 0.25 * 220);
}

TEST(SoilTables, StayOnTheCropForTheNextRun) {
  const auto farm = farmWithSoils();
  (void)soilFor(*farm, "Valent");
  const Crop& corn = *farm->library.Item(1);
  corn.soil_ulysses->clear();
  const auto [name, table] = soilFor(*farm, "Silt Loam");
  EXPECT_EQ(name, "Silt Loam");
  EXPECT_EQ(table, *fractions(0.5));
}

TEST(SoilTables, AreNotUsedForFallow) {
  FarmRun farm;
  farm.add(fallowCrop());
  const CropScenario crops = cropsOf(farm);
  EXPECT_EQ(crops.Item(1)->yieldTable, nullptr);
  EXPECT_EQ(crops.Item(1)->soilName, "Silt Loam");
}

}  // namespace
}  // namespace verdalis::testing
