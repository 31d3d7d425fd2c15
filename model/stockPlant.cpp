#include "model/stockPlant.h"

#include <algorithm>
#include <array>

#include "model/Fuel.h"

namespace verdalis {
namespace {

using Plant = IrrigationCosts;

constexpr std::array<PlantDefault, 8> table{{
    {&Plant::GPM, "750"},
    {&Plant::Lift, "120"},
    {&Plant::PSI, "35"},
    {&Plant::FuelType, naturalGas},
    {&Plant::cost, "5.10"},
    {&Plant::LaborPerHour, "10"},
    {&Plant::RepairsPerAcreInch, stockRepairsText},
    {&Plant::dblEstHours, "1800"},
}};

}  // namespace

std::span<const PlantDefault> stockPlant() {
  return table;
}

std::string_view defaultPlantText(const SavedField<IrrigationCosts>& field) {
  const auto* const row =
      std::find_if(table.begin(), table.end(), [&](const PlantDefault& each) { return each.field == field; });
  return row == table.end() ? std::string_view() : row->text;
}

}  // namespace verdalis
