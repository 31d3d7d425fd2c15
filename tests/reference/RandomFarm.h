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

/// What makes a farm hard for a search that wants to pass candidates over.
enum class FarmKind {
  ordinary,
  manyCrops,        ///< With few water splits
  highFactor,       ///< 99 on two fields
  twinCrops,        ///< Groups of crops with the same costs and returns
  neighbourPrices,  ///< Crops alike but for prices one unit in the last place apart
  neighbourCosts,   ///< The same with costs
  zeroPrices,
  fallowOnly,
  losses,             ///< Every candidate has a negative profit
  wholeDollars,       ///< Costs and returns are whole numbers, so sums are exact and many are equal
  equalGains,         ///< Returns and costs differ, the gains do not, but for rounding
  equalGainsNoPlant,  ///< The same without a response to water
  linearYields,       ///< What one field loses with the water, another gains
  fewCandidates,      ///< Fewer than places
  faulty,             ///< Some candidates cannot be priced, or almost
  count
};

[[nodiscard]] std::string_view name(FarmKind kind);

/// A farm made of random numbers, with at most so many candidates that all can be priced. Its irrigation
/// efficiency must be set by whoever uses it.
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
