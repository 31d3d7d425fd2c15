#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "explore/bestPlans.h"

namespace verdalis {

/// The best plan with an amount of water.
struct WaterPoint {
  double gross = 0;  ///< Gross inches over the farm
  Plan best;
};

/// What water is worth to a farm.
struct WaterResult {
  WaterPoint now;
  double nextInch = 0;  ///< What one more gross inch adds, dollars per acre-inch
  std::optional<double>
      lastInch;          ///< What the last gross inch adds; nothing where the farm cannot go without
  std::size_t most = 0;  ///< The point of the highest profit, the first such
  std::vector<WaterPoint> points;
};

/// Whether there is water to share out: a volume that does not round to nothing.
/// \throws RunTimeError (overflow)
[[nodiscard]] bool isWater(const Farm& farm, double grossInches);

/// 20 amounts from a tenth of the present one to twice it, those left out that are no water.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::vector<double> usualAmounts(const Farm& farm);

/// The best plans at these gross inches, of which there must be one or more.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first amount that fails, the present one before all others
[[nodiscard]] std::optional<WaterResult> exploreWater(const Farm& farm, const std::vector<double>& amounts,
                                                      ProgramState& state, RunHooks& hooks,
                                                      unsigned jobs = allCores());

}  // namespace verdalis
