#pragma once

#include <optional>
#include <vector>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/Scenario.h"

namespace verdalis {

/// Wishes to give up so that a plan remains.
struct Relaxation {
  std::vector<Wish> without;  ///< In the order given
  double profit = 0;          ///< Of the best plan that meets the others, dollars
};

/// For a scenario in which no candidate meets all wishes: the smallest sets of wishes without which a
/// candidate remains, best profit first. Empty if there is no candidate at all. \returns nothing after a
/// cancel. \throws RunTimeError for a candidate that cannot be priced
[[nodiscard]] std::optional<std::vector<Relaxation>> relaxWishes(const Scenario& scenario,
                                                                 ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
