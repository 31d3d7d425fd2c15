#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/Crop.h"
#include "model/CropKind.h"
#include "model/CropScenario.h"
#include "model/YieldTable.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"

// Crops, lists of crops, and yield tables as values.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(Crop, YieldTextHasTheUnitPerAcre) {
  Crop corn = cornCrop();
  corn.Yield = 184.4;
  EXPECT_EQ(corn.yieldToString(), "184.4 bu./ac");
  corn.Yield = 3486.96;
  corn.cropUnitsArray = {"lb", "pounds"};
  EXPECT_EQ(corn.yieldToString(), "3,487.0 lb/ac");
  corn.Yield = 9.95;
  EXPECT_EQ(corn.yieldToString(), "10.0 lb/ac");
}

TEST(Crop, YieldTextOfFallowHasNoUnit) {
  Crop fallow = fallowCrop();
  fallow.setYield(fallow.Yield, 16);
  EXPECT_EQ(fallow.yieldToString(), "0.0 /ac");
}

TEST(Crop, PriceUnitIsTheFirstUnitWord) {
  EXPECT_EQ(cornCrop().priceUnits(), "bu.");
  EXPECT_EQ(fallowCrop().priceUnits(), "");
}

TEST(Crop, IsAForageCropIfItsUnitIsTon) {
  EXPECT_TRUE(alfalfaCrop().isForage());
  EXPECT_TRUE(namedCrop("Clover", "ton,tons").isForage());
  EXPECT_FALSE(cornCrop().isForage());
  EXPECT_FALSE(namedCrop("Clover", "Ton,tons").isForage());
  EXPECT_FALSE(namedCrop("Alfalfa", "tons,ton").isForage());
}

TEST(Crop, IsEmptyAndHasNoTableInitially) {
  const Crop crop;
  EXPECT_EQ(crop.yieldTable, nullptr);
  EXPECT_EQ(crop.price, 0);
  EXPECT_EQ(crop.maxYield, 0);
  EXPECT_FALSE(crop.Custom);
  EXPECT_TRUE(crop.soil_ulysses->empty());
  EXPECT_TRUE(crop.soil_valent->empty());
  EXPECT_TRUE(crop.soil_valentine->empty());
}

TEST(Crop, SetYieldTableStoresACopy) {
  YieldTable table = tableOf(11, {{1}, {2}});
  Crop crop;
  crop.setYieldTable(table);
  table.setCell(0, 11, 99);
  EXPECT_EQ(crop.yieldTable->cell(0, 11), 1);
}

Crop fullCrop() {
  Crop crop = cornCrop();
  crop.inputCost = 12;
  crop.normalFactor = 1.25;
  crop.Yield = 99;
  crop.Custom = true;
  crop.soilName = "Silt Loam";
  crop.inputCosts.AlfalfaFlat = 5;
  crop.inputCosts.NPerAcre = 6;
  const auto table = std::make_shared<const YieldTable>(tableOf(11, {{0.5}}));
  *crop.soil_ulysses = {{"yield", table}, {"relative", table}};
  *crop.soil_valent = {{"yield", table}};
  crop.soil_valentine->clear();
  return crop;
}

TEST(Crop, CopyHasAllFields) {
  const Crop crop = fullCrop();
  const Crop copy = crop.Copy();
  EXPECT_EQ(copy.cropType, "Corn");
  EXPECT_EQ(copy.cropUnits, "bu.,bushels");
  EXPECT_THAT(copy.cropUnitsArray, ElementsAre("bu.", "bushels"));
  EXPECT_EQ(copy.price, 6.52);
  EXPECT_EQ(copy.inputCost, 12);
  EXPECT_EQ(copy.maxYield, 220);
  EXPECT_EQ(*copy.yieldTable, cornTable());
  EXPECT_EQ(copy.normalFactor, 1.25);
  EXPECT_EQ(copy.Yield, 99);
  EXPECT_TRUE(copy.Custom);
  EXPECT_EQ(copy.soilName, "Silt Loam");
  EXPECT_EQ(copy.inputCosts.writeData(), crop.inputCosts.writeData());
  EXPECT_EQ(copy.inputCosts.NPerAcre, 6);
}

TEST(Crop, CopyOmitsTheReservedForageCost) {
  EXPECT_EQ(fullCrop().Copy().inputCosts.AlfalfaFlat, 0);
}

TEST(Crop, CopySharesTheSoilTables) {
  const Crop crop = fullCrop();
  const Crop copy = crop.Copy();
  EXPECT_EQ(copy.soil_ulysses.shared(), crop.soil_ulysses.shared());
  EXPECT_EQ(copy.soil_valent.shared(), crop.soil_valent.shared());
  EXPECT_EQ(copy.soil_valentine.shared(), crop.soil_valentine.shared());
}

TEST(Crop, CopyIsIndependentOfItsSource) {
  Crop crop = fullCrop();
  Crop copy = crop.Copy();
  copy.price = 1;
  copy.cropType = "Wheat";
  copy.cropUnitsArray[0] = "lb";
  copy.inputCosts.SeedRate = 77;
  copy.inputCosts.AlfalfaStand = 4;
  copy.setYieldTable(tableOf(11, {{7}}));
  copy.setYield(copy.Yield, 11);
  EXPECT_EQ(crop.price, 6.52);
  EXPECT_EQ(crop.cropType, "Corn");
  EXPECT_EQ(crop.cropUnitsArray[0], "bu.");
  EXPECT_EQ(crop.inputCosts.SeedRate, 0);
  EXPECT_TRUE(crop.inputCosts.AlfalfaStand.isEmpty());
  EXPECT_EQ(*crop.yieldTable, cornTable());
  EXPECT_EQ(crop.Yield, 99);
}

TEST(Crop, WritesItsNamePriceAndYieldBeforeItsCosts) {
  Crop corn = cornCrop();
  const std::string text = corn.writeData();
  EXPECT_EQ(text, "Corn\r\n6.52\r\n220\r\n" + corn.inputCosts.writeData());
  std::size_t lineEnds = 0;
  for (const char c : text)
    lineEnds += c == '\n' ? 1 : 0;
  EXPECT_EQ(lineEnds, 33U);  // 34 lines, without a line end after the last
}

TEST(CropKind, RequiresTheExactName) {
  EXPECT_EQ(cropKind("Alfalfa"), CropKind::alfalfa);
  EXPECT_EQ(cropKind("Corn"), CropKind::corn);
  EXPECT_EQ(cropKind("Grain Sorghum"), CropKind::grainSorghum);
  EXPECT_EQ(cropKind("Soybeans"), CropKind::soybeans);
  EXPECT_EQ(cropKind("Sunflower"), CropKind::sunflower);
  EXPECT_EQ(cropKind("Wheat"), CropKind::wheat);
  EXPECT_EQ(cropKind("Fallow"), CropKind::fallow);
  for (const char* name :
       {"", "corn", "CORN", "Corn ", " Corn", "Maize", "wheat", "Grain sorghum", "GrainSorghum", "soybeans",
        "Soybean", "sunflower", "Sunflowers", "alfalfa", "fallow", "Follow"}) {
    EXPECT_EQ(cropKind(name), CropKind::other) << name;
  }
}

TEST(YieldTable, IsInitiallyFilledWithZeros) {
  const YieldTable table(3, 11, 21);
  EXPECT_EQ(table.maxIrrigation(), 3);
  EXPECT_EQ(table.firstRain(), 11);
  EXPECT_EQ(table.lastRain(), 21);
  for (int water = 0; water <= 3; ++water) {
    for (int rain = 0; rain <= 21; ++rain)
      EXPECT_EQ(table.cell(water, rain), 0);
  }
}

TEST(YieldTable, ContainsExactlyTheCellsWithinItsBounds) {
  const YieldTable table(3, 11, 21);
  EXPECT_TRUE(table.contains(0, 0));
  EXPECT_TRUE(table.contains(3, 21));
  EXPECT_FALSE(table.contains(4, 21));
  EXPECT_FALSE(table.contains(3, 22));
  EXPECT_FALSE(table.contains(-1, 11));
  EXPECT_FALSE(table.contains(0, -1));
}

TEST(YieldTable, StoresEachCellSeparately) {
  YieldTable table(2, 11, 13);
  for (int water = 0; water <= 2; ++water) {
    for (int rain = 0; rain <= 13; ++rain)
      table.setCell(water, rain, 100 * water + rain);
  }
  for (int water = 0; water <= 2; ++water) {
    for (int rain = 0; rain <= 13; ++rain)
      EXPECT_EQ(table.cell(water, rain), 100 * water + rain);
  }
}

TEST(YieldTable, RejectsCellsOutsideAndNegativeBounds) {
  YieldTable table(2, 11, 13);
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { table.setCell(3, 11, 1); }),
              AllOf(HasSubstr("3 inches of irrigation"), HasSubstr("11 inches of rain")));
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { table.setCell(0, 14, 1); }), HasSubstr("14"));
  errorText(ErrorNumber::subscript, [] { YieldTable(-1, 0, 5); });
  errorText(ErrorNumber::subscript, [] { YieldTable(5, 0, -1); });
}

CropScenario scenarioOf(const std::vector<std::string>& names) {
  CropScenario scenario;
  for (const std::string& name : names)
    scenario.Add(std::make_shared<Crop>(namedCrop(name)));
  return scenario;
}

TEST(CropScenario, IndicesStartAt1) {
  const CropScenario scenario = scenarioOf({"Corn", "Wheat", "Fallow"});
  EXPECT_EQ(scenario.Count(), 3);
  EXPECT_EQ(scenario.Item(1)->cropType, "Corn");
  EXPECT_EQ(scenario.Item(3)->cropType, "Fallow");
}

TEST(CropScenario, AddsTheCropItselfAndNotACopy) {
  const auto corn = std::make_shared<Crop>(cornCrop());
  CropScenario scenario;
  scenario.Add(corn);
  scenario.Add(corn);
  EXPECT_EQ(scenario.Item(1), corn);
  EXPECT_EQ(scenario.Item(2), corn);
}

TEST(CropScenario, RemoveClosesTheGap) {
  CropScenario scenario = scenarioOf({"Corn", "Wheat", "Fallow"});
  scenario.Remove(2);
  EXPECT_EQ(scenario.toString(), "Corn, Fallow");
  scenario.Remove(2);
  scenario.Remove(1);
  EXPECT_EQ(scenario.Count(), 0);
}

TEST(CropScenario, RejectsAnIndexOutsideTheList) {
  CropScenario scenario = scenarioOf({"Corn", "Wheat"});
  for (const long index : {0L, 3L, -1L}) {
    EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)scenario.Item(index); }),
                HasSubstr(std::to_string(index)));
    errorText(ErrorNumber::subscript, [&] { scenario.Remove(index); });
  }
  EXPECT_EQ(scenario.Count(), 2);
}

TEST(CropScenario, JoinsTheNamesWithCommas) {
  EXPECT_EQ(scenarioOf({}).toString(), "");
  EXPECT_EQ(scenarioOf({"Corn"}).toString(), "Corn");
  EXPECT_EQ(scenarioOf({"Corn", "Wheat", "Corn"}).toString(), "Corn, Wheat, Corn");
}

TEST(CropScenario, IteratesOverItsCropsInOrder) {
  std::vector<std::string> names;
  const CropScenario scenario = scenarioOf({"Wheat", "Corn"});
  for (const auto& crop : scenario)
    names.push_back(crop->cropType);
  for (const auto& crop : scenario.NewEnum())
    names.push_back(crop->cropType);
  EXPECT_THAT(names, ElementsAre("Wheat", "Corn", "Wheat", "Corn"));
}

TEST(CropScenario, CopyIsANewListThatSharesTheCrops) {
  const CropScenario scenario = scenarioOf({"Corn", "Wheat"});
  CropScenario copy = scenario.Copy();
  EXPECT_EQ(copy.Item(1), scenario.Item(1));
  EXPECT_EQ(copy.Item(2), scenario.Item(2));
  copy.Remove(1);
  EXPECT_EQ(scenario.Count(), 2);
}

}  // namespace
}  // namespace verdalis::testing
