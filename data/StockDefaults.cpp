#include "data/StockDefaults.h"

#include "model/stockCosts.h"
#include "model/stockPlant.h"
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
  for (const PlantDefault& each : stockPlant())
    each.field.read(plant, each.text);
  plant.NPC = fuelPerformance(plant.FuelType).value_or(0);
  plant.active = true;
}

}  // namespace verdalis
