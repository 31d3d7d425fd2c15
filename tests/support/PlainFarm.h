#pragma once

#include <cmath>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/Field.h"
#include "text/numbers.h"

namespace verdalis::testing {

// A second, simple version of the farm's formulas, for comparison with the model. The order of arithmetic is
// the same, so results are compared exactly.

/// Yield per acre. `depth` is capped at the top of the table.
inline double plainYield(const Crop& crop, double depth, double rain) {
  if (crop.cropType == "Fallow") return 0;
  const YieldTable& table = *crop.yieldTable;
  const int top = table.maxIrrigation();
  const double inTable = depth > top ? top : depth;
  const std::string text = formatNumber(inTable, "#0.0");
  const int lo = std::atoi(text.substr(0, text.find('.')).c_str());
  const int hi = lo + 1 > top ? top : lo + 1;
  const double whole = std::floor(rain);
  const bool up = rain - whole > 0.5 || (rain - whole == 0.5 && std::fmod(whole, 2) != 0);
  const int column = static_cast<int>(up ? whole + 1 : whole);
  const double y0 = table.cell(lo, column);
  const double y1 = table.cell(hi, column);
  const double scale = y1 > 1.0 ? crop.normalFactor : crop.maxYield;
  if (y0 == y1) return y0 * scale;
  const double t = (inTable - lo) / (hi - lo);
  return (y0 + t * (y1 - y0)) * scale;
}

/// The seeding rate by net inches of irrigation, or the crop's own rate.
inline double plainSeedRate(const std::string& cropType, double net, double own) {
  static const std::map<std::string, std::vector<double>> rates = {
      {"Corn", {17000, 20000, 23000, 26000, 29000, 32000}},
      {"Soybeans", {125000, 140000, 155000, 170000, 185000, 200000}},
      {"Grain Sorghum", {1.56, 2.81, 4.06, 5.31, 6.56, 7.81}},
      {"Sunflower", {18000, 19500, 21000, 22500, 24000, 25500}},
      {"Wheat", {90, 90, 90, 90, 90, 90}},
      {"Alfalfa", {3, 3, 3, 3, 3, 3}},
  };
  const auto found = rates.find(cropType);
  if (found == rates.end() || net < 0) return own;
  std::size_t band = 0;
  for (const double bound : {6.0, 9.0, 12.0, 15.0, 18.0}) {
    if (net >= bound) ++band;
  }
  return found->second[band];
}

inline double plainSeedCost(const inputCosts& costs, const std::string& cropType, double acres, double net) {
  const bool byPound = cropType == "Grain Sorghum" || cropType == "Wheat" || cropType == "Alfalfa";
  const double rate = costs.SeedOptimal ? plainSeedRate(cropType, net, costs.SeedRate) : costs.SeedRate;
  return rate / (byPound ? 1 : 1000) * costs.SeedCost * acres;
}

inline double plainHarvestCost(const inputCosts& c, const std::string& cropType, double acres, double yield) {
  if (cropType == "Alfalfa") {
    if (c.AlfalfaPerTon > 0) return yield * c.AlfalfaPerTon * acres;
    return (c.AlfalfaSwathing * c.AlfalfaSwathingNum + c.AlfalfaRaking * c.AlfalfaRakingNum +
            c.AlfalfaBaling * c.AlfalfaBalingNum) *
           acres;
  }
  if (cropType == "Sunflower") {
    if (c.HarvestFlatRate > 0) return (yield / 100) * c.HarvestFlatRate * acres;
    return (c.HarvestBasePerAcre + c.HarvestExceedRate * (yield - c.HarvestExceedBu) / 100 +
            c.HarvestHauling * yield / 100) *
           acres;
  }
  if (c.HarvestFlatRate > 0) return yield * c.HarvestFlatRate * acres;
  return (c.HarvestBasePerAcre + c.HarvestExceedRate * (yield - c.HarvestExceedBu) +
          c.HarvestHauling * yield) *
         acres;
}

inline double plainProductionCost(const Crop& crop, double acres, double grossDepth, double efficiency) {
  static const std::map<std::string, std::pair<double, double>> uptake = {
      {"Corn", {1.35, 0.43}},       {"Grain Sorghum", {1.25, 0.44}}, {"Wheat", {1.75, 0.55}},
      {"Sunflower", {0.05, 0.018}}, {"Alfalfa", {0, 14.88}},         {"Soybeans", {0, 0.87}},
  };
  const inputCosts& c = crop.inputCosts;
  if (c.UseBatch) return c.BatchGeneralCosts * acres;
  const double yield = crop.Yield;
  const auto found = uptake.find(crop.cropType);
  const auto [n, p] = found == uptake.end() ? std::pair<double, double>{0, 0} : found->second;
  double life = 1;
  if (crop.cropUnitsArray[0] == "ton" && c.AlfalfaStand != 0.0) life = c.AlfalfaStand;
  double total = (c.NOptimal ? n * yield : c.NitrogenApplied) * c.NitrogenCost * acres;
  total += (c.POptimal ? p * yield : c.PApplied) * c.PCost * acres;
  total += plainSeedCost(c, crop.cropType, acres, grossDepth * efficiency) / life;
  total += c.Herbicide * acres;
  total += c.Insecticide * acres;
  total += (c.Tillage * acres) / life;
  total += (c.Planting * acres) / life;
  total += c.FertilizerApplication * acres;
  total += c.HerbicideApplication * acres;
  total += c.InsecticideApplication * acres;
  total += plainHarvestCost(c, crop.cropType, acres, yield);
  total += c.MiscCost * acres;
  return total;
}

inline double plainIrrigationCost(const IrrigationCosts& plant, double depth, double acres,
                                  double efficiency) {
  if (plant.UseBatch) return plant.BatchIrrigationCosts * acres * depth;
  if (!plant.active || depth <= 0 || plant.GPM <= 0 || plant.NPC <= 0) return 0;
  const double gross = depth / efficiency;
  const double whp = (plant.PSI * 2.31 + plant.Lift) * plant.GPM / 3960;
  const double hours = gross * acres / (plant.GPM / 450);
  const double fuel = (whp / plant.NPC) * hours * plant.cost;
  return acres * 0.5 * plant.LaborPerHour + fuel + acres * plant.RepairsPerAcreInch * gross;
}

inline double plainCosts(const Crop& crop, const IrrigationCosts& plant, double acres, double depth,
                         double efficiency) {
  return plainIrrigationCost(plant, depth, acres, efficiency) +
         plainProductionCost(crop, acres, depth / efficiency, efficiency);
}

inline double plainReturn(const Crop& crop, double acres) {
  return crop.price * crop.Yield * acres + crop.inputCosts.Returns * acres;
}

}  // namespace verdalis::testing
