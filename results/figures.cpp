#include "results/figures.h"

#include "model/StockCrops.h"
#include "model/checked.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {

double perAcre(double amount, double acres) {
  if (acres == 0) {
    throw RunTimeError(ErrorNumber::divisionByZero,
                       "A field of 0 acres has no figures per acre. Check the acres in \"Total Acres:\".");
  }
  return checked(amount / acres, "A figure per acre");
}

std::string dollarsAnAcre(double figure, std::string_view pattern) {
  return "$" + formatNumber(figure, pattern) + " /acre";
}

std::string wholeDollars(double amount) {
  const std::string digits = formatNumber(amount, "###,##0");
  return digits.front() == '-' ? "-$" + digits.substr(1) : "$" + digits;
}

std::string inches(double depth, std::string_view pattern) {
  return formatNumber(depth, pattern) + "''";
}

double Stand::yearly(double cost) const {
  if (years == 0) {
    throw RunTimeError(ErrorNumber::divisionByZero,
                       "The life of stand is 0 years, so no cost can be spread over it. Enter it among the "
                       "input costs of the crop.");
  }
  return checked(cost / years, "A cost of the stand");
}

Stand standOf(const Crop& crop) {
  if (!crop.isForage()) return {};
  return {crop.inputCosts.AlfalfaStand, true};
}

SeedUnits seedUnits(std::string_view cropType) {
  if (isSeedPricedByPound(cropKind(cropType))) return {" / lb", " lb/ac"};
  return {" / 1,000 seeds", " seeds/acre"};
}

double harvestCostAnAcre(const Field& field) {
  const Crop& crop = *field.theCrop;
  return perAcre(crop.inputCosts.getHarvestCost(field.acres, crop.Yield, crop.cropType), field.acres);
}

double generalCostsAnAcre(const Field& field) {
  Crop& crop = *field.theCrop;
  inputCosts& costs = crop.inputCosts;
  double grossDepth = grossFromNet(field.Depth);  // comes back as net inches
  const double seed =
      perAcre(costs.getSeedCost(field.acres, crop.Yield, crop.cropType, grossDepth), field.acres);
  return checked(costs.NPerAcre * costs.NitrogenCost + costs.PPerAcre * costs.PCost +
                     standOf(crop).yearly(seed) + costs.Herbicide + costs.Insecticide,
                 "The general input cost");
}

double applicationCostsAnAcre(const Field& field) {
  const Crop& crop = *field.theCrop;
  const inputCosts& costs = crop.inputCosts;
  const double establishment = standOf(crop).yearly(costs.Tillage + costs.Planting);
  return checked(establishment + costs.FertilizerApplication + costs.HerbicideApplication +
                     costs.InsecticideApplication + harvestCostAnAcre(field),
                 "The operation cost");
}

}  // namespace verdalis
