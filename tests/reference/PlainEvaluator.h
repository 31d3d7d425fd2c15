#pragma once

#include <optional>
#include <vector>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/SearchInputs.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

/// The search as it is defined: every candidate is built, priced by the model and submitted, and the events
/// are pumped for each. evaluateCombinations() must give the same options, bit for bit.
[[nodiscard]] std::optional<BestMix> evaluatePlainly(const SearchInputs& inputs, ProgramState& state,
                                                     RunHooks& hooks);

/// The same with nothing shared between two candidates and with a stored list of combinations; for small
/// farms.
[[nodiscard]] std::optional<BestMix> evaluateLiterally(const SearchInputs& inputs,
                                                       const std::vector<CropScenario>& combinations,
                                                       ProgramState& state, RunHooks& hooks);

}  // namespace verdalis::reference
