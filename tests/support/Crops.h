#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "model/Crop.h"
#include "model/YieldTable.h"
#include "model/inputCosts.h"

namespace verdalis::testing {

// Crops for tests, with the default costs, prices and yields of the program. Their tables resemble the stock
// crop files but are built here, so that tests of the model read no files.

/// A table whose first column is `firstRain` inches; its rows start at 0 inches of irrigation.
inline YieldTable tableOf(int firstRain, const std::vector<std::vector<double>>& rows) {
  const int columns = static_cast<int>(rows.front().size());
  YieldTable table(static_cast<int>(rows.size()) - 1, firstRain, firstRain + columns - 1);
  for (std::size_t water = 0; water < rows.size(); ++water) {
    for (std::size_t rain = 0; rain < rows[water].size(); ++rain) {
      table.setCell(static_cast<int>(water), firstRain + static_cast<int>(rain), rows[water][rain]);
    }
  }
  return table;
}

/// A known row of a table: the yields for 11 to 21 inches of rain at a given irrigation.
struct KnownRow {
  int water;
  std::vector<double> yields;
};

/// A table for 11 to 21 inches of rain, interpolated linearly between known rows.
inline YieldTable tableThrough(const std::vector<KnownRow>& known) {
  YieldTable table(known.back().water, 11, 21);
  for (std::size_t i = 0; i + 1 < known.size(); ++i) {
    const KnownRow& below = known[i];
    const KnownRow& above = known[i + 1];
    for (int water = below.water; water <= above.water; ++water) {
      const double share = static_cast<double>(water - below.water) / (above.water - below.water);
      for (std::size_t column = 0; column < below.yields.size(); ++column) {
        const double rise = above.yields[column] - below.yields[column];
        table.setCell(water, 11 + static_cast<int>(column), below.yields[column] + share * rise);
      }
    }
  }
  return table;
}

/// Corn's rows at 0, 6, 12 and 24 inches, and its small yield of 0.4 at 1 inch of water and 15 inches of
/// rain.
inline YieldTable cornTable() {
  YieldTable table = tableThrough({
      {0, {0, 0, 0, 0, 0, 0, 0, 11.1, 25.6, 39.9, 54}},
      {6, {51.8, 61.4, 71.2, 81.1, 91.1, 101.2, 111.5, 121.9, 132.3, 142.7, 152.9}},
      {12, {131.6, 140.6, 149.7, 158.7, 167.4, 175.3, 182.1, 187.5, 191.7, 194.9, 197.4}},
      {24, {203.8, 205.4, 206.8, 208, 209.1, 210, 210.8, 211.5, 212.2, 212.7, 213.3}},
  });
  table.setCell(1, 15, 0.4);
  return table;
}

inline YieldTable wheatTable() {
  return tableThrough({
      {0, {0, 0, 0, 2.2, 7.6, 13, 18.4, 23.8, 29, 34.2, 39.2}},
      {6, {26.9, 31, 35.2, 39.4, 43.8, 48.1, 52.4, 56.6, 60.4, 63.6, 66}},
      {12, {54.9, 58.7, 62.3, 65.2, 67.5, 69.2, 70.4, 71.3, 72.1, 72.6, 73.1}},
      {22, {73.5, 74, 74.5, 74.9, 75.3, 75.6, 75.8, 76.1, 76.3, 76.5, 76.7}},
  });
}

inline YieldTable alfalfaTable() {
  return tableThrough({
      {0, {1.391, 1.616, 1.854, 2.105, 2.368, 2.643, 2.93, 3.227, 3.535, 3.853, 4.181}},
      {6, {3.191, 3.479, 3.776, 4.083, 4.399, 4.724, 5.057, 5.396, 5.742, 6.094, 6.451}},
      {12, {5.061, 5.405, 5.756, 6.112, 6.473, 6.838, 7.205, 7.572, 7.933, 8.282, 8.607}},
      {22, {8.677, 8.977, 9.229, 9.43, 9.585, 9.707, 9.804, 9.883, 9.95, 10.006, 10.055}},
  });
}

/// The default costs and prices of a stock crop.
struct CropDefaults {
  const char* cropType;
  const char* units;
  double price;
  double maxYield;
  double seed;
  double herbicide;
  double insecticide;
  double planting;
  double harvestBase;
  double exceed;
  double exceedRate;
  double hauling;
};

inline const std::vector<CropDefaults>& cropDefaults() {
  static const std::vector<CropDefaults> defaults = {
      {"Alfalfa", "ton,tons", 85, 10, 4.05, 20.01, 7.45, 14.36, 0, 0, 0, 0},
      {"Wheat", "bu.,bushels", 6.2, 75, 0.16, 2.75, 11.8, 12.48, 24.12, 22, 0.235, 0.219},
      {"Corn", "bu.,bushels", 6.52, 220, 2.89, 30, 36.48, 13.48, 28.58, 74, 0.214, 0.197},
      {"Sunflower", "lb,pounds", 0.2, 3500, 2.14, 31.76, 12.41, 13.68, 29.02, 1300, 0.003, 0.003},
      {"Grain Sorghum", "bu.,bushels", 5.75, 120, 3.43, 26.56, 0, 13.8, 25.67, 36, 0.241, 0.218},
      {"Soybeans", "bu.,bushels", 10.22, 65, 0.31, 26.19, 0, 13.77, 28.37, 28, 0.229, 0.204},
  };
  return defaults;
}

/// The production costs that "Load Default Values" sets for a stock crop, with all three optimal switches on.
inline inputCosts defaultCosts(const std::string& cropType) {
  inputCosts costs;
  costs.NOptimal = costs.POptimal = costs.SeedOptimal = true;
  costs.HerbicideApplication = 5.26;
  if (cropType == "Fallow") {
    costs.Herbicide = 8;
    costs.Tillage = 25;
    return costs;
  }
  const auto& all = cropDefaults();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const CropDefaults& d) { return d.cropType == cropType; });
  costs.SeedCost = found->seed;
  costs.NitrogenCost = 0.44;
  costs.PCost = 0.8;
  costs.Herbicide = found->herbicide;
  costs.Insecticide = found->insecticide;
  costs.Tillage = 31.26;
  costs.Planting = found->planting;
  costs.InsecticideApplication = 5.24;
  costs.FertilizerApplication = 5.12;
  if (cropType == "Alfalfa") {
    costs.AlfalfaPerTon = 35;
    costs.AlfalfaStand = 3;
  } else {
    costs.HarvestBasePerAcre = found->harvestBase;
    costs.HarvestExceedBu = found->exceed;
    costs.HarvestExceedRate = found->exceedRate;
    costs.HarvestHauling = found->hauling;
  }
  return costs;
}

/// A crop with a name and units, and nothing else.
inline Crop namedCrop(const std::string& cropType, const std::string& units = "bu.,bushels") {
  Crop crop;
  crop.cropType = cropType;
  crop.cropUnits = units;
  const std::size_t comma = std::min(units.find(','), units.size());
  crop.cropUnitsArray = {units.substr(0, comma), comma < units.size() ? units.substr(comma + 1) : ""};
  return crop;
}

/// A stock crop with its defaults and this table.
inline Crop stockCrop(const std::string& cropType, const YieldTable& table) {
  const auto& all = cropDefaults();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const CropDefaults& d) { return d.cropType == cropType; });
  Crop crop = namedCrop(cropType, found->units);
  crop.price = found->price;
  crop.maxYield = found->maxYield;
  crop.inputCosts = defaultCosts(cropType);
  crop.setYieldTable(table);
  return crop;
}

inline Crop cornCrop() {
  return stockCrop("Corn", cornTable());
}
inline Crop wheatCrop() {
  return stockCrop("Wheat", wheatTable());
}
inline Crop alfalfaCrop() {
  return stockCrop("Alfalfa", alfalfaTable());
}

inline Crop fallowCrop() {
  Crop crop = namedCrop("Fallow", "");
  crop.inputCosts = defaultCosts("Fallow");
  return crop;
}

/// The yield of a crop at a net depth; the caller's variable is unchanged.
inline double yieldAt(Crop& crop, double depth, double rain) {
  crop.setYield(depth, rain);
  return crop.Yield;
}

}  // namespace verdalis::testing
