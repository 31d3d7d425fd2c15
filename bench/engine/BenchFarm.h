#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "engine/MakingSplits.h"
#include "engine/SearchInputs.h"
#include "model/EfficiencyFraction.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"

namespace verdalis::bench {

/// The six stock crops with their default costs, or larger lists made from copies of them.
enum class CropList {
  ordinary,          ///< Prices and yields of the copies differ by a few percent
  cents,             ///< Identical, prices 0.01 apart
  billionths,        ///< Identical, prices 1e-9 apart
  lastPlace,         ///< Identical, prices one unit in the last place apart
  equalGainsPumped,  ///< Equal gains except for rounding, from different costs; only the pumping cost depends
                     ///< on water, and its total is the same for every split of the water
  equalGains,        ///< Equal gains except for rounding, from different costs, and nothing depends on water
  twins              ///< Identical
};

inline std::vector<Crop> stockCrops() {
  using testing::stockCrop;
  using testing::tableThrough;
  return {
      testing::alfalfaCrop(),
      testing::wheatCrop(),
      testing::cornCrop(),
      stockCrop("Sunflower", tableThrough({
                                 {0, {41, 176, 316, 461, 613, 770, 932, 1097, 1263, 1428, 1591}},
                                 {6, {1517, 1638, 1759, 1879, 1999, 2119, 2239, 2359, 2480, 2599, 2717}},
                                 {12, {2475, 2578, 2685, 2792, 2898, 3000, 3092, 3172, 3236, 3285, 3322}},
                                 {22, {3311, 3344, 3371, 3394, 3414, 3431, 3445, 3458, 3469, 3478, 3486}},
                             })),
      stockCrop("Grain Sorghum",
                tableThrough({
                    {0, {0, 0, 4.9, 13.5, 22.5, 31.7, 41, 50.2, 58.3, 68.1, 76.6}},
                    {6, {67.4, 73.8, 80.3, 86.8, 93.4, 100.1, 106.9, 113.6, 120.3, 126.7, 132.6}},
                    {12, {116.5, 122.6, 128.6, 134.2, 139.2, 143.3, 146.4, 148.8, 150.7, 152.1, 153.3}},
                    {20, {150, 151.6, 152.9, 154.1, 155, 155.8, 156.5, 157.1, 157.6, 158.1, 158.5}},
                })),
      stockCrop("Soybeans",
                tableThrough({
                    {0, {0, 0, 0, 0, 1.69, 5.11, 8.63, 12.24, 15.92, 19.65, 23.41}},
                    {6, {20.99, 23.63, 26.38, 29.23, 32.15, 35.12, 38.13, 41.17, 44.22, 47.25, 50.21}},
                    {12, {46.19, 48.54, 50.98, 53.45, 55.9, 58.22, 60.3, 62.04, 63.43, 64.5, 65.32}},
                    {22, {66.71, 67.32, 67.84, 68.28, 68.66, 68.98, 69.25, 69.48, 69.68, 69.86, 70.01}},
                })),
  };
}

inline Crop benchCrop(CropList list, std::size_t number) {
  const std::vector<Crop> stock = stockCrops();
  const auto steps = static_cast<double>(number);
  if (list == CropList::ordinary) {
    Crop crop = stock[number % stock.size()];
    const std::size_t copies = number / stock.size();
    const auto round = static_cast<double>(copies);
    crop.price *= 1 + 0.013 * round;
    crop.maxYield *= 1 - 0.011 * round;
    crop.inputCosts.MiscCost = 1.7 * round;
    return crop;
  }
  Crop crop = testing::cornCrop();
  switch (list) {
    case CropList::cents:
      crop.price += 0.01 * steps;
      break;
    case CropList::billionths:
      crop.price += 1e-9 * steps;
      break;
    case CropList::lastPlace:
      for (std::size_t i = 0; i < number; ++i)
        crop.price = std::nextafter(crop.price, 1e9);
      break;
    case CropList::equalGainsPumped:
    case CropList::equalGains: {
      crop.setYieldTable(
          testing::tableThrough({{0, std::vector<double>(11, 150)}, {24, std::vector<double>(11, 150)}}));
      crop.inputCosts.Returns = 0.37 * steps;
      crop.inputCosts.MiscCost = 0.37 * steps;
      break;
    }
    default:
      break;
  }
  return crop;
}

/// 100 acres in fields of equal or given shares, 12 inches of gross water, 16 inches of rain, efficiency
/// 0.85.
class BenchFarm {
 public:
  BenchFarm(std::size_t division, std::int16_t factor, std::size_t crops, std::int16_t size,
            CropList list = CropList::ordinary)
      : factor_(factor), size_(size), plant_(testing::defaultPlant()) {
    EfficiencyFraction = 0.85;
    for (std::size_t i = 0; i < crops; ++i) {
      auto crop = std::make_shared<Crop>(benchCrop(list, i));
      crop->setNormal(crop->maxYield, rain);
      crops_.Add(std::move(crop));
    }
    landSplit_ = percentToAcres(landDivision(division), acres);
    combinations_ = std::make_unique<CropCombinations>(crops_, landSplit_.Count());
    makeSplits();
    if (list == CropList::equalGainsPumped) plant_.LaborPerHour = 0;
    // Corn's seeding bands and the plant would make the gains depend on water.
    if (list == CropList::equalGains || list == CropList::equalGainsPumped) {
      plant_.active = list == CropList::equalGainsPumped;
      for (const auto& crop : combinations_->crops())
        crop->inputCosts.SeedOptimal = false;
    }
  }

  /// Enumerates the water splits as a run does.
  void makeSplits() {
    ProgramState state;
    state.FineFactor = factor_;
    depths_ = volumesToDepths(makeWaterSplits(landSplit_.Count(), 1200 * 0.85, acres, state), landSplit_);
  }

  [[nodiscard]] SearchInputs inputs() const {
    return {depths_, *combinations_, landSplit_, rain, size_, plant_, 0.85};
  }
  [[nodiscard]] double candidates() const {
    return static_cast<double>(depths_.Count()) * static_cast<double>(combinations_->Count());
  }

 private:
  static constexpr double acres = 100;
  static constexpr double rain = 16;

  std::int16_t factor_;
  std::int16_t size_;
  IrrigationCosts plant_;
  CropScenario crops_;
  Split landSplit_;
  SplitCollection depths_;
  std::unique_ptr<CropCombinations> combinations_;
};

}  // namespace verdalis::bench
