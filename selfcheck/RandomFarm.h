#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "engine/SearchInputs.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

/// Properties that make a farm difficult for a search that skips candidates.
enum class FarmKind {
  ordinary,
  manyCrops,        ///< With few water splits
  highFactor,       ///< 99 on two fields
  twinCrops,        ///< Groups of crops with equal costs and returns
  neighbourPrices,  ///< Equal crops, except that prices differ by one unit in the last place
  neighbourCosts,   ///< The same with costs instead of prices
  zeroPrices,
  fallowOnly,
  losses,             ///< Every candidate has a negative profit
  wholeDollars,       ///< Costs and returns are whole numbers, so sums are exact and often equal
  equalGains,         ///< Returns and costs differ, but gains are equal except for rounding
  equalGainsNoPlant,  ///< The same without a response to water
  linearYields,       ///< What one field loses with less water, another gains
  fewCandidates,      ///< Fewer candidates than places
  faulty,             ///< Some candidates cannot be priced, or barely
  count
};

[[nodiscard]] std::string_view name(FarmKind kind);

/// A random farm with few enough candidates to price them all. The caller must set its irrigation efficiency.
class RandomFarm {
 public:
  RandomFarm(FarmKind kind, std::uint64_t seed, double mostCandidates = 9000);

  [[nodiscard]] const CropScenario& crops() const { return crops_; }
  [[nodiscard]] double efficiency() const { return efficiency_; }
  [[nodiscard]] double acres() const { return acres_; }
  [[nodiscard]] double netVolume() const { return netVolume_; }
  [[nodiscard]] SearchInputs inputs() const {
    return {depths_, *combinations_, landSplit_, rain_, size_, plant_, EfficiencyFraction};
  }
  [[nodiscard]] std::uint64_t candidates() const {
    return static_cast<std::uint64_t>(depths_.Count()) * combinations_->Count();
  }

 private:
  class Maker;

  CropScenario crops_;
  std::unique_ptr<CropCombinations> combinations_;
  Split landSplit_;
  SplitCollection depths_;
  IrrigationCosts plant_;
  double efficiency_ = 1;
  double acres_ = 0;
  double netVolume_ = 0;
  double rain_ = 0;
  std::int16_t size_ = 0;
};

}  // namespace verdalis::reference
