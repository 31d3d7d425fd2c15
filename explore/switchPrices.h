#pragma once

#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlan.h"

namespace verdalis {

/// A range of an input in which one plan is the best.
struct SwitchSegment {
  double from = 0;
  double to = 0;
  double profitFrom = 0;  ///< Profit of the plan at `from`, dollars
  double profitTo = 0;
  std::vector<PlannedField> fields;  ///< With the yields at `from`
};

/// Whether the profit of a plan is linear in the input. True for a price, a maximum yield and fuel.
[[nodiscard]] bool isLinear(const FarmInput& input);

/// Finds the best plan for every value of a linear input from `from` to `to`, which must be larger: segments
/// in order, without gaps.
///
/// The best profit is the upper envelope of the lines of the plans. Its corners are found by intersection: if
/// the best plan where two neighbours cross is above both, it lies between them. Two lines count as one if
/// they differ nowhere by more than the larger of the rounding error and 1e-12 of the best profit at the ends
/// (at least $1).
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError as bestPlan()
[[nodiscard]] std::optional<std::vector<SwitchSegment>> switchPrices(const Farm& farm, const FarmInput& input,
                                                                     double from, double to,
                                                                     ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
