#include "data/StockDefaults.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace verdalis {
namespace {

constexpr std::array<std::string_view, 7> columns{"alfalfa",       "wheat",    "corn",  "sunflower",
                                                  "grain sorghum", "soybeans", "fallow"};

using Cell = std::optional<double>;
using Row = std::array<Cell, columns.size()>;

constexpr Cell none = std::nullopt;  // the field stays as it was

constexpr std::array<StockPrice, 6> prices{
    {{85, 10}, {6.2, 75}, {6.52, 220}, {0.2, 3500}, {5.75, 120}, {10.22, 65}}};

struct CostRow {
  double inputCosts::*field = nullptr;
  Row values{};
};

struct NumberRow {
  Number inputCosts::*field = nullptr;
  Row values{};
};

// Crop budgets of the central High Plains, $ per unit; the columns as above.
constexpr std::array<CostRow, 10> costRows{{
    {&inputCosts::SeedCost, {4.05, 0.16, 2.89, 2.14, 3.43, 0.31, none}},
    {&inputCosts::NitrogenCost, {0.44, 0.44, 0.44, 0.44, 0.44, 0.44, none}},
    {&inputCosts::PCost, {0.8, 0.8, 0.8, 0.8, 0.8, 0.8, none}},
    {&inputCosts::Herbicide, {20.01, 2.75, 30, 31.76, 26.56, 26.19, 8}},
    {&inputCosts::Insecticide, {7.45, 11.8, 36.48, 12.41, 0, 0, none}},
    {&inputCosts::Tillage, {31.26, 31.26, 31.26, 31.26, 31.26, 31.26, 25}},
    {&inputCosts::Planting, {14.36, 12.48, 13.48, 13.68, 13.8, 13.77, none}},
    {&inputCosts::HerbicideApplication, {5.26, 5.26, 5.26, 5.26, 5.26, 5.26, 5.26}},
    {&inputCosts::InsecticideApplication, {5.24, 5.24, 5.24, 5.24, 5.24, 5.24, none}},
    {&inputCosts::FertilizerApplication, {5.12, 5.12, 5.12, 5.12, 5.12, 5.12, none}},
}};

constexpr std::array<NumberRow, 6> numberRows{{
    {&inputCosts::HarvestBasePerAcre, {none, 24.12, 28.58, 29.02, 25.67, 28.37, none}},
    {&inputCosts::HarvestExceedBu, {none, 22, 74, 1300, 36, 28, none}},
    {&inputCosts::HarvestExceedRate, {none, 0.235, 0.214, 0.003, 0.241, 0.229, none}},
    {&inputCosts::HarvestHauling, {none, 0.219, 0.197, 0.003, 0.218, 0.204, none}},
    {&inputCosts::AlfalfaPerTon, {35, none, none, none, none, none, none}},
    {&inputCosts::AlfalfaStand, {3, none, none, none, none, none, none}},
}};

std::optional<std::size_t> columnOf(std::string_view lowerName) {
  const auto* const column = std::find(columns.begin(), columns.end(), lowerName);
  if (column == columns.end()) return std::nullopt;
  return static_cast<std::size_t>(column - columns.begin());
}

}  // namespace

const StockPrice* defaultPrice(std::string_view lowerName) {
  const std::optional<std::size_t> column = columnOf(lowerName);
  return column && *column < prices.size() ? &prices.at(*column) : nullptr;
}

void loadDefaultCosts(std::string_view lowerName, inputCosts& costs) {
  costs.NOptimal = true;
  costs.POptimal = true;
  costs.SeedOptimal = true;
  const std::optional<std::size_t> column = columnOf(lowerName);
  if (!column) return;
  for (const CostRow& row : costRows) {
    if (const Cell value = row.values.at(*column)) costs.*row.field = *value;
  }
  for (const NumberRow& row : numberRows) {
    if (const Cell value = row.values.at(*column)) costs.*row.field = *value;
  }
}

void loadDefaultPlant(IrrigationCosts& plant) {
  plant.GPM = 750;
  plant.Lift = 120;
  plant.PSI = 35;
  plant.RepairsPerAcreInch = 0.33;
  plant.cost = 5.1;
  plant.LaborPerHour = 10;
  plant.FuelType = "Natural Gas";
  plant.dblEstHours = 1800;
  plant.NPC = fuelPerformance(plant.FuelType).value_or(0);
  plant.active = true;
}

}  // namespace verdalis
