#include "model/inputCosts.h"

#include <array>
#include <optional>

#include "model/Crop.h"
#include "model/CropKind.h"
#include "model/checked.h"
#include "model/savedFields.h"

namespace verdalis {
namespace {

/// Fertiliser taken up per unit of yield, lb of nutrient per yield unit (bu., ton or lb).
struct NutrientRates {
  double nitrogen;
  double phosphorus;
};

constexpr NutrientRates nutrientRates(CropKind kind) {
  switch (kind) {
    case CropKind::corn:
      return {1.35, 0.43};
    case CropKind::grainSorghum:
      return {1.25, 0.44};
    case CropKind::wheat:
      return {1.75, 0.55};
    case CropKind::sunflower:
      return {0.05, 0.018};
    case CropKind::alfalfa:
      return {0, 14.88};
    case CropKind::soybeans:
      return {0, 0.87};
    case CropKind::fallow:
    case CropKind::other:
      break;
  }
  return {0, 0};
}

/// Lower bounds of the water bands of the seeding rates, net inches; the first that holds wins.
constexpr std::array<double, 6> seedBands{18, 15, 12, 9, 6, 0};
using BandRates = std::array<double, seedBands.size()>;

/// Seeds per acre for Corn, Soybeans and Sunflower, lb per acre for the others.
constexpr BandRates cornSeed{32000, 29000, 26000, 23000, 20000, 17000};
constexpr BandRates soybeanSeed{200000, 185000, 170000, 155000, 140000, 125000};
constexpr BandRates grainSorghumSeed{7.81, 6.56, 5.31, 4.06, 2.81, 1.56};
constexpr BandRates sunflowerSeed{25500, 24000, 22500, 21000, 19500, 18000};
constexpr BandRates wheatSeed{90, 90, 90, 90, 90, 90};
constexpr BandRates alfalfaSeed{3, 3, 3, 3, 3, 3};

constexpr const BandRates* seedRates(CropKind kind) {
  switch (kind) {
    case CropKind::corn:
      return &cornSeed;
    case CropKind::soybeans:
      return &soybeanSeed;
    case CropKind::grainSorghum:
      return &grainSorghumSeed;
    case CropKind::sunflower:
      return &sunflowerSeed;
    case CropKind::wheat:
      return &wheatSeed;
    case CropKind::alfalfa:
      return &alfalfaSeed;
    case CropKind::fallow:
    case CropKind::other:
      break;
  }
  return nullptr;
}

std::optional<double> optimalSeedRate(CropKind kind, double netDepth) {
  const BandRates* rates = seedRates(kind);
  if (rates == nullptr) return std::nullopt;
  for (std::size_t band = 0; band < seedBands.size(); ++band) {
    if (netDepth >= seedBands.at(band)) return rates->at(band);
  }
  return std::nullopt;
}

bool isSeedPricedByPound(CropKind kind) {
  return kind == CropKind::grainSorghum || kind == CropKind::wheat || kind == CropKind::alfalfa;
}

}  // namespace

ProductionCosts inputCosts::price(double acres, double yield, const Crop& crop, double grossDepth,
                                  double efficiency) const {
  if (UseBatch) {
    const double cost = checked(BatchGeneralCosts * acres, "The production cost of a field");
    return {cost, NPerAcre, PPerAcre, SeedRate, AlfalfaStand};
  }
  ProductionCosts result;
  // The units decide, not the name: a custom crop in tons has a stand life too.
  result.stand = crop.isForage() && AlfalfaStand == 0.0 ? Number(1) : AlfalfaStand;
  const double standLife = crop.isForage() ? static_cast<double>(result.stand) : 1;
  const NutrientRates rates = nutrientRates(cropKind(crop.cropType));

  result.nitrogen = NOptimal ? rates.nitrogen * yield : NitrogenApplied;
  double total = result.nitrogen * NitrogenCost * acres;
  result.phosphorus = POptimal ? rates.phosphorus * yield : PApplied;
  total += result.phosphorus * PCost * acres;
  const SeedCosts seed =
      priceSeed(acres, crop.cropType, checked(grossDepth * efficiency, "The net irrigation depth"));
  result.seedRate = seed.rate;
  total += seed.cost / standLife;
  total += Herbicide * acres;
  total += Insecticide * acres;
  total += (Tillage * acres) / standLife;
  total += (Planting * acres) / standLife;
  total += FertilizerApplication * acres;
  total += HerbicideApplication * acres;
  total += InsecticideApplication * acres;
  total += getHarvestCost(acres, yield, crop.cropType);
  total += MiscCost * acres;
  // An overflow in any of the terms reaches the total as an infinity or as no number.
  result.cost = checked(total, "The production cost of a field");
  return result;
}

double inputCosts::getCosts(double acres, double yield, const Crop& crop, double& grossDepth,
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
