#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "data/StockDefaults.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/SameInputs.h"

namespace verdalis {
namespace {

using testing::contentOf;
using testing::CostField;

constexpr double unset = -1;  // an empty cell: the field is unchanged

const std::vector<std::string>& cropNames() {
  static const std::vector<std::string> names{"alfalfa",       "wheat",    "corn",  "sunflower",
                                              "grain sorghum", "soybeans", "fallow"};
  return names;
}

struct DefaultRow {
  CostField field;
  std::array<double, 7> values;
};

// A second copy of every default, so that an error in either table is found.
const std::vector<DefaultRow>& defaultRows() {
  using C = inputCosts;
  static const std::vector<DefaultRow> rows{
      {&C::SeedCost, {4.05, 0.16, 2.89, 2.14, 3.43, 0.31, unset}},
      {&C::NitrogenCost, {0.44, 0.44, 0.44, 0.44, 0.44, 0.44, unset}},
      {&C::PCost, {0.8, 0.8, 0.8, 0.8, 0.8, 0.8, unset}},
      {&C::Herbicide, {20.01, 2.75, 30, 31.76, 26.56, 26.19, 8}},
      {&C::Insecticide, {7.45, 11.8, 36.48, 12.41, 0, 0, unset}},
      {&C::Tillage, {31.26, 31.26, 31.26, 31.26, 31.26, 31.26, 25}},
      {&C::Planting, {14.36, 12.48, 13.48, 13.68, 13.8, 13.77, unset}},
      {&C::HerbicideApplication, {5.26, 5.26, 5.26, 5.26, 5.26, 5.26, 5.26}},
      {&C::InsecticideApplication, {5.24, 5.24, 5.24, 5.24, 5.24, 5.24, unset}},
      {&C::FertilizerApplication, {5.12, 5.12, 5.12, 5.12, 5.12, 5.12, unset}},
      {&C::HarvestBasePerAcre, {unset, 24.12, 28.58, 29.02, 25.67, 28.37, unset}},
      {&C::HarvestExceedBu, {unset, 22, 74, 1300, 36, 28, unset}},
      {&C::HarvestExceedRate, {unset, 0.235, 0.214, 0.003, 0.241, 0.229, unset}},
      {&C::HarvestHauling, {unset, 0.219, 0.197, 0.003, 0.218, 0.204, unset}},
      {&C::AlfalfaPerTon, {35, unset, unset, unset, unset, unset, unset}},
      {&C::AlfalfaStand, {3, unset, unset, unset, unset, unset, unset}},
  };
  return rows;
}

void set(double& field, double value) {
  field = value;
}
void set(bool& field, double /*value*/) {
  field = true;
}
void set(Number& field, double value) {
  field = value;
}

void set(inputCosts& costs, const CostField& field, double value) {
  std::visit([&](auto member) { set(costs.*member, value); }, field);
}

std::string textOf(const inputCosts& costs) {
  Crop crop;
  crop.inputCosts = costs;
  return contentOf(crop);
}

/// Costs with a different number in each field, or all empty.
inputCosts before(bool filled) {
  inputCosts costs;
  double value = 1000;
  if (filled) {
    for (const CostField& field : testing::costFields())
      set(costs, field, ++value);
    costs.NOptimal = costs.POptimal = costs.SeedOptimal = false;
  }
  return costs;
}

class StockDefaults : public ::testing::TestWithParam<std::size_t> {};

TEST_P(StockDefaults, SetEveryCellOfTheTableAndNothingElse) {
  for (const bool filled : {true, false}) {
    inputCosts expected = before(filled);
    expected.NOptimal = expected.POptimal = expected.SeedOptimal = true;
    for (const DefaultRow& row : defaultRows()) {
      const double value = row.values.at(GetParam());
      if (value != unset) set(expected, row.field, value);
    }
    inputCosts costs = before(filled);
    loadDefaultCosts(cropNames().at(GetParam()), costs);
    EXPECT_EQ(textOf(costs), textOf(expected));
  }
}

TEST_P(StockDefaults, LeaveUnsavedFieldsUnchanged) {
  inputCosts costs;
  costs.AlfalfaFlat = 1;
  costs.NPerAcre = 2;
  costs.PPerAcre = 3;
  costs.UseBatch = true;
  costs.BatchGeneralCosts = 4;
  loadDefaultCosts(cropNames().at(GetParam()), costs);
  EXPECT_EQ(costs.AlfalfaFlat, 1);
  EXPECT_EQ(costs.NPerAcre, 2);
  EXPECT_EQ(costs.PPerAcre, 3);
  EXPECT_TRUE(costs.UseBatch);
  EXPECT_EQ(costs.BatchGeneralCosts, 4);
}

INSTANTIATE_TEST_SUITE_P(Crops, StockDefaults, ::testing::Range(std::size_t{0}, std::size_t{7}),
                         [](const ::testing::TestParamInfo<std::size_t>& column) {
                           std::string name = cropNames().at(column.param);
                           std::erase(name, ' ');
                           return name;
                         });

TEST(StockDefaultPrices, MatchEachCrop) {
  const std::vector<std::pair<double, double>> prices{{85, 10},    {6.2, 75},   {6.52, 220},
                                                      {0.2, 3500}, {5.75, 120}, {10.22, 65}};
  for (std::size_t i = 0; i < prices.size(); ++i) {
    const StockPrice* price = defaultPrice(cropNames()[i]);
    ASSERT_NE(price, nullptr) << cropNames()[i];
    EXPECT_EQ(price->price, prices[i].first) << cropNames()[i];
    EXPECT_EQ(price->maxYield, prices[i].second) << cropNames()[i];
  }
}

TEST(StockDefaultPrices, DoNotExistForFallowAndOtherCrops) {
  for (const char* name :
       {"fallow", "", "Corn", "CORN", "corn ", " corn", "custom crop 1", "grain  sorghum", "soy"})
    EXPECT_EQ(defaultPrice(name), nullptr) << name;
}

TEST(StockDefaultCosts, OfAnyOtherCropOnlySetTheThreeSwitches) {
  for (const char* name : {"", "Corn", "corn ", "custom crop 1", "Grain Sorghum"}) {
    inputCosts expected = before(true);
    expected.NOptimal = expected.POptimal = expected.SeedOptimal = true;
    inputCosts costs = before(true);
    loadDefaultCosts(name, costs);
    EXPECT_EQ(textOf(costs), textOf(expected)) << name;
  }
}

TEST(StockDefaultPlant, IsActiveAndUsesNaturalGas) {
  IrrigationCosts plant;
  plant.FixedPerAcre = 1;
  plant.dblMaxInches = 2;
  plant.hours = 3;
  plant.BatchIrrigationCosts = 4;
  plant.FuelType = "Diesel";
  plant.NPC = 12.5;
  loadDefaultPlant(plant);
  EXPECT_EQ(plant.GPM, 750);
  EXPECT_EQ(plant.Lift, 120);
  EXPECT_EQ(plant.PSI, 35);
  EXPECT_EQ(plant.RepairsPerAcreInch, 0.33);
  EXPECT_EQ(plant.cost, 5.1);
  EXPECT_EQ(plant.LaborPerHour, 10);
  EXPECT_EQ(plant.FuelType, "Natural Gas");
  EXPECT_EQ(plant.dblEstHours, 1800);
  EXPECT_EQ(plant.NPC, 61.7);
  EXPECT_TRUE(plant.active);
  EXPECT_EQ(plant.FixedPerAcre, 1) << "has no default";
  EXPECT_EQ(plant.dblMaxInches, 2);
  EXPECT_EQ(plant.hours, 3);
  EXPECT_FALSE(plant.UseBatch);
  EXPECT_EQ(plant.BatchIrrigationCosts, 4);
}

}  // namespace
}  // namespace verdalis
