#include "model/inputCosts.h"

#include "model/Crop.h"
#include "model/CropKind.h"
#include "model/StockCrops.h"
#include "model/checked.h"
#include "model/savedFields.h"

namespace verdalis {

ProductionCosts inputCosts::price(double acres, double yield, const Crop& crop, double grossDepth,
                                  double efficiency, ProductionParts* partsFound) const {
  if (UseBatch) {
    const double cost = checked(BatchGeneralCosts * acres, "The production cost of a field");
    return {cost, NPerAcre, PPerAcre, SeedRate, AlfalfaStand};
  }
  ProductionCosts result;
  // Forage is decided by the units, not the name: a custom crop in tons has a stand life too.
  const bool forage = crop.isForage();
  result.stand = forage && AlfalfaStand == 0.0 ? Number(1) : AlfalfaStand;
  const double standLife = forage ? static_cast<double>(result.stand) : 1;
  const NutrientRates rates = nutrientRates(cropKind(crop.cropType));

  result.nitrogen = NOptimal ? rates.nitrogen * yield : NitrogenApplied;
  ProductionParts parts;
  parts.nitrogen = result.nitrogen * NitrogenCost * acres;
  result.phosphorus = POptimal ? rates.phosphorus * yield : PApplied;
  parts.phosphorus = result.phosphorus * PCost * acres;
  const SeedCosts seed =
      priceSeed(acres, crop.cropType, checked(grossDepth * efficiency, "The net irrigation depth"));
  result.seedRate = seed.rate;
  parts.seed = seed.cost / standLife;
  parts.herbicide = Herbicide * acres;
  parts.insecticide = Insecticide * acres;
  parts.tillage = (Tillage * acres) / standLife;
  parts.planting = (Planting * acres) / standLife;
  parts.fertilizerApplication = FertilizerApplication * acres;
  parts.herbicideApplication = HerbicideApplication * acres;
  parts.insecticideApplication = InsecticideApplication * acres;
  parts.harvest = getHarvestCost(acres, yield, crop.cropType);
  parts.misc = MiscCost * acres;
  // An overflow in any part makes the sum infinite or NaN.
  result.cost = checked(parts.sum(), "The production cost of a field");
  if (partsFound != nullptr) *partsFound = parts;
  return result;
}

// Flat: reading the rates from the memory of a result that was just written would take longer than the sums.
[[gnu::flatten]] double inputCosts::getCosts(double acres, double yield, const Crop& crop, double& grossDepth,
                                             double efficiency) {
  const ProductionCosts priced = price(acres, yield, crop, grossDepth, efficiency);
  if (!UseBatch) grossDepth *= efficiency;
  NPerAcre = priced.nitrogen;
  PPerAcre = priced.phosphorus;
  SeedRate = priced.seedRate;
  AlfalfaStand = priced.stand;
  return priced.cost;
}

double inputCosts::getReturns(double acres) const {
  return checked(Returns * acres, "The land usage return of a field");
}

double inputCosts::getHarvestCost(double acres, double yield, std::string_view cropType) const {
  const CropKind kind = cropKind(cropType);
  double cost = 0;
  if (kind == CropKind::alfalfa) {
    if (AlfalfaPerTon > 0) {
      cost = yield * AlfalfaPerTon * acres;
    } else {
      cost = (AlfalfaSwathing * AlfalfaSwathingNum + AlfalfaRaking * AlfalfaRakingNum +
              AlfalfaBaling * AlfalfaBalingNum) *
             acres;
    }
  } else if (kind == CropKind::sunflower) {
    // The yield is in pounds, the rates are per hundredweight.
    if (HarvestFlatRate > 0) {
      cost = (yield / 100) * HarvestFlatRate * acres;
    } else {
      cost = (HarvestBasePerAcre + HarvestExceedRate * (yield - HarvestExceedBu) / 100 +
              HarvestHauling * yield / 100) *
             acres;
    }
  } else if (HarvestFlatRate > 0) {
    cost = yield * HarvestFlatRate * acres;
  } else {
    cost =
        (HarvestBasePerAcre + HarvestExceedRate * (yield - HarvestExceedBu) + HarvestHauling * yield) * acres;
  }
  return checked(cost, "The harvest cost of a field");
}

SeedCosts inputCosts::priceSeed(double acres, std::string_view cropType, double netDepth) const {
  const CropKind kind = cropKind(cropType);
  const double divisor = isSeedPricedByPound(kind) ? 1 : 1000;
  const double rate = SeedOptimal ? optimalSeedRate(kind, netDepth).value_or(SeedRate) : SeedRate;
  return {checked(rate / divisor * SeedCost * acres, "The seed cost of a field"), rate};
}

double inputCosts::getSeedCost(double acres, double /*yield*/, std::string_view cropType, double& grossDepth,
                               double efficiency) {
  grossDepth = checked(grossDepth * efficiency, "The net irrigation depth");
  const SeedCosts priced = priceSeed(acres, cropType, grossDepth);
  SeedRate = priced.rate;
  return priced.cost;
}

inputCosts inputCosts::Copy() const {
  inputCosts copy = *this;
  copy.AlfalfaFlat = 0;
  return copy;
}

std::string inputCosts::writeData() const {
  return savedLines(costFields(), *this);
}

}  // namespace verdalis
