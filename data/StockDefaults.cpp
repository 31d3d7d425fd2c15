#include "data/StockDefaults.h"

#include "model/stockCosts.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

CropKind kindOfLowerName(std::string_view lowerName) {
  for (const std::string_view name : cropNames) {
    if (lowerCase(name) == lowerName) return cropKind(name);
  }
  return CropKind::other;
}

}  // namespace

const StockPrice* defaultPrice(std::string_view lowerName) {
  const StockCrop* const crop = stockCrop(kindOfLowerName(lowerName));
  return crop != nullptr ? &crop->defaults : nullptr;
}

void loadDefaultCosts(std::string_view lowerName, inputCosts& costs) {
  costs.NOptimal = true;
  costs.POptimal = true;
  costs.SeedOptimal = true;
  const CropKind kind = kindOfLowerName(lowerName);
  for (const CostField& field : costFields()) {
    const DefaultCost cost = defaultCost(kind, field);
    if (cost.loaded) field.set(costs, Val(cost.text));
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
