#pragma once

#include <string>
#include <vector>

#include "cli/JsonWriter.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/relaxWishes.h"
#include "explore/bestPlan.h"
#include "screens/wishText.h"

namespace verdalis {

// What is told where no plan meets all wishes.

/// What to give up of the wishes of a farm. `state` is asked for a cancel.
/// \throws Cancelled, RunTimeError
[[nodiscard]] std::vector<Relaxation> findRelaxations(const Farm& farm, ProgramState& state, RunHooks& hooks);

/// The value of "relax".
[[nodiscard]] Json relaxJson(const std::vector<Relaxation>& relaxations);

/// The JSON object of an answer that has no options for the wishes.
[[nodiscard]] std::string noPlanJson(const std::vector<Wish>& wishes,
                                     const std::vector<Relaxation>& relaxations);

/// For a person: that no plan meets all wishes, and what to give up.
[[nodiscard]] std::string noPlanText(const NoPlan& noPlan);

}  // namespace verdalis
