#pragma once

#include <string>
#include <vector>

#include "cli/JsonWriter.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/relaxWishes.h"
#include "explore/bestPlan.h"
#include "questions/noPlanText.h"
#include "screens/wishText.h"

namespace verdalis {

// The answer if no plan meets all wishes.

/// The wishes of a farm to give up. A cancel is requested in `state`.
/// \throws Cancelled, RunTimeError
[[nodiscard]] std::vector<Relaxation> findRelaxations(const Farm& farm, ProgramState& state, RunHooks& hooks);

/// The value of "relax".
[[nodiscard]] Json relaxJson(const std::vector<Relaxation>& relaxations);

/// The JSON object of an answer without a plan for the wishes.
[[nodiscard]] std::string noPlanJson(const std::vector<Wish>& wishes,
                                     const std::vector<Relaxation>& relaxations);

}  // namespace verdalis
