#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "explore/bestPlan.h"

namespace verdalis {

/// The best plan of each mix of acres and crops: up to `count` mixes, best first.
/// \returns nothing after a cancel.
/// \throws NoPlan if no plan meets the wishes or the farm has no crop
/// \throws RunTimeError as an evaluation does
[[nodiscard]] std::optional<std::vector<Plan>> exploreMixes(const Farm& farm, std::int16_t count,
                                                            ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
