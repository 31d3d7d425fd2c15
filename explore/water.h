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

/// The value of water to a farm.
struct WaterResult {
  WaterPoint now;
  double nextInch = 0;             ///< Profit of one more gross inch, dollars per acre-inch
  std::optional<double> lastInch;  ///< Profit of the last gross inch; nothing if there is no plan without it
  std::size_t most = 0;  ///< Index of the point with the highest profit; the first if several are equal
  std::vector<WaterPoint> points;
};

/// Whether there is water to distribute: a volume that does not round to 0.
/// \throws RunTimeError (overflow)
[[nodiscard]] bool isWater(const Farm& farm, double grossInches);

/// 20 amounts from a tenth of the present amount to twice that amount. Amounts whose volume rounds to 0 are
/// omitted.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::vector<double> usualAmounts(const Farm& farm);

/// Finds the best plans for these gross inches. There must be at least one amount.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first amount that fails; the present amount comes first
[[nodiscard]] std::optional<WaterResult> exploreWater(const Farm& farm, const std::vector<double>& amounts,
                                                      ProgramState& state, RunHooks& hooks,
                                                      unsigned jobs = allCores());

}  // namespace verdalis
