#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "explore/bestPlan.h"

namespace verdalis {

/// Makes the farm of a point from a base farm that no other thread uses.
using FarmOfPoint = std::function<Farm(const Farm& base, std::size_t point)>;

/// Names a point for messages, such as "water 1.5".
using NameOfPoint = std::function<std::string(std::size_t point)>;

/// The number of searches that this machine can run in parallel.
[[nodiscard]] unsigned allCores();

/// Finds the best plan of each of `count` points with `jobs` threads and returns them in point order. The
/// result does not depend on `jobs`. Only the calling thread calls `hooks`, with one step for each finished
/// point; the caller shows the progress.
/// \returns nothing after a cancel.
/// \throws the exceptions of bestPlan() for the first point that fails; a NoPlan names the point
[[nodiscard]] std::optional<std::vector<Plan>> bestPlans(const Farm& base, std::size_t count,
                                                         const FarmOfPoint& farmOf, const NameOfPoint& nameOf,
                                                         ProgramState& state, RunHooks& hooks,
                                                         unsigned jobs = allCores());

}  // namespace verdalis
