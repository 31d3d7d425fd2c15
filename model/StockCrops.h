#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/CropKind.h"

namespace verdalis {

/// Default price and maximum yield of a crop.
struct StockPrice {
  double price;     ///< $ per yield unit
  double maxYield;  ///< Yield units per acre
};

/// Largest values that a row of the crop list accepts without a message.
struct RowLimits {
  double price;     ///< $ per yield unit
  double maxYield;  ///< Yield units per acre
};

/// Fertiliser uptake per unit of yield, lb of nutrient per yield unit (bu., ton or lb).
struct NutrientRates {
  double nitrogen;
  double phosphorus;
};

enum class SeedUnit {
  pound,    ///< Priced per lb, sown in lb per acre
  thousand  ///< Priced per 1,000 seeds, sown in seeds per acre
};

/// Lower bounds of the irrigation bands for seeding rates, net inches, highest first. The first band that
/// fits is used.
inline constexpr std::array<double, 6> seedBands{18, 15, 12, 9, 6, 0};

/// A crop with built-in figures. Its default costs are in stockCosts().
struct StockCrop {
  CropKind kind;
  StockPrice defaults;
  RowLimits limits;
  NutrientRates nutrients;
  SeedUnit seedUnit;
  std::array<double, seedBands.size()> seedRates;  ///< By band

  [[nodiscard]] constexpr std::string_view name() const { return cropName(kind); }
};

/// In the order of CropKind, which is alphabetical by name.
inline constexpr std::array<StockCrop, 6> stockCrops{{
    {.kind = CropKind::alfalfa,
     .defaults = {85, 10},
     .limits = {300, 20},
     .nutrients = {0, 14.88},
     .seedUnit = SeedUnit::pound,
     .seedRates = {3, 3, 3, 3, 3, 3}},
    {.kind = CropKind::corn,
     .defaults = {6.52, 220},
     .limits = {10, 500},
     .nutrients = {1.35, 0.43},
     .seedUnit = SeedUnit::thousand,
     .seedRates = {32000, 29000, 26000, 23000, 20000, 17000}},
    {.kind = CropKind::grainSorghum,
     .defaults = {5.75, 120},
     .limits = {10, 300},
     .nutrients = {1.25, 0.44},
     .seedUnit = SeedUnit::pound,
     .seedRates = {7.81, 6.56, 5.31, 4.06, 2.81, 1.56}},
    {.kind = CropKind::soybeans,
     .defaults = {10.22, 65},
     .limits = {20, 150},
     .nutrients = {0, 0.87},
     .seedUnit = SeedUnit::thousand,
     .seedRates = {200000, 185000, 170000, 155000, 140000, 125000}},
    {.kind = CropKind::sunflower,
     .defaults = {0.2, 3500},
     .limits = {25, 8000},
     .nutrients = {0.05, 0.018},
     .seedUnit = SeedUnit::thousand,
     .seedRates = {25500, 24000, 22500, 21000, 19500, 18000}},
    {.kind = CropKind::wheat,
     .defaults = {6.2, 75},
     .limits = {15, 200},
     .nutrients = {1.75, 0.55},
     .seedUnit = SeedUnit::pound,
     .seedRates = {90, 90, 90, 90, 90, 90}},
}};

/// Index of a kind in stockCrops; nothing for Fallow and any other crop.
[[nodiscard]] constexpr std::optional<std::size_t> stockIndex(CropKind kind) {
  const auto first = static_cast<std::size_t>(stockCrops.front().kind);
  const std::size_t index = static_cast<std::size_t>(kind) - first;  // for `other` it is beyond the end
  if (index >= stockCrops.size()) return std::nullopt;
  return index;
}

/// The entry of a kind; nullptr for Fallow and any other crop.
[[nodiscard]] constexpr const StockCrop* stockCrop(CropKind kind) {
  const std::optional<std::size_t> index = stockIndex(kind);
  return index ? &stockCrops[*index] : nullptr;
}

/// Zero rates for Fallow and any other crop.
[[nodiscard]] constexpr NutrientRates nutrientRates(CropKind kind) {
  const StockCrop* const crop = stockCrop(kind);
  return crop != nullptr ? crop->nutrients : NutrientRates{0, 0};
}

/// The seeding rate for a net irrigation in inches; nothing for Fallow, any other crop, or a negative
/// irrigation.
[[nodiscard]] constexpr std::optional<double> optimalSeedRate(CropKind kind, double netDepth) {
  const StockCrop* const crop = stockCrop(kind);
  if (crop == nullptr) return std::nullopt;
  for (std::size_t band = 0; band < seedBands.size(); ++band) {
    if (netDepth >= seedBands[band]) return crop->seedRates[band];
  }
  return std::nullopt;
}

/// The seed of Fallow and any other crop is priced per 1,000.
[[nodiscard]] constexpr bool isSeedPricedByPound(CropKind kind) {
  const StockCrop* const crop = stockCrop(kind);
  return crop != nullptr && crop->seedUnit == SeedUnit::pound;
}

}  // namespace verdalis
