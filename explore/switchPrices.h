#pragma once

#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlan.h"

namespace verdalis {

/// A range of an input over which one plan stays the best.
struct SwitchSegment {
  double from = 0;
  double to = 0;
  double profitFrom = 0;  ///< Profit of the plan at `from`, dollars
  double profitTo = 0;
  std::vector<PlannedField> fields;  ///< The yields are those at `from`
};

/// Whether the profit of a plan is linear in the input: a price, a maximum yield, the fuel.
[[nodiscard]] bool isLinear(const FarmInput& input);

/// The best plan for every value of a linear input from `from` to `to`, which must be larger: segments
/// without gaps, in order.
///
/// The best profit is the upper edge of the lines of the plans. Its corners are found by intersection: where
/// the best plan at the crossing of two neighbours is above both, it stands between them. Lines that are
/// nowhere apart by more than 1e-12 of the best profit at the ends (at least $1), or by more than rounding
/// can tell, count as one.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError as bestPlan()
[[nodiscard]] std::optional<std::vector<SwitchSegment>> switchPrices(const Farm& farm, const FarmInput& input,
                                                                     double from, double to,
                                                                     ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
