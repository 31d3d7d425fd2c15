#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "explore/bestPlan.h"

namespace verdalis {

/// The farm of a point, made from a copy of the base farm that no other thread uses.
using FarmOfPoint = std::function<Farm(const Farm& base, std::size_t point)>;

/// Names a point for a message, such as "water 1.5".
using NameOfPoint = std::function<std::string(std::size_t point)>;

/// How many searches this machine carries out side by side.
[[nodiscard]] unsigned allCores();

/// The best plan of each of `count` points, in their order, worked out on `jobs` threads: the same plans
/// whatever their number. `hooks` is called by this thread alone and hears of a step for each point that is
/// done; showing the progress is left to the caller.
/// \returns nothing after a cancel.
/// \throws what bestPlan() throws for the first point that fails; a NoPlan names it
[[nodiscard]] std::optional<std::vector<Plan>> bestPlans(const Farm& base, std::size_t count,
                                                         const FarmOfPoint& farmOf, const NameOfPoint& nameOf,
                                                         ProgramState& state, RunHooks& hooks,
                                                         unsigned jobs = allCores());

}  // namespace verdalis
