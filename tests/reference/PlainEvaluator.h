#pragma once

#include <optional>
#include <vector>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/SearchInputs.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

/// The simple search: builds every candidate, prices it with the model, submits it, and pumps events for
/// each. evaluateCombinations() must give the same options, bit by bit.
[[nodiscard]] std::optional<BestMix> evaluatePlainly(const SearchInputs& inputs, ProgramState& state,
                                                     RunHooks& hooks);

/// The same, but candidates share nothing and the combinations are stored in a list; for small farms.
[[nodiscard]] std::optional<BestMix> evaluateLiterally(const SearchInputs& inputs,
                                                       const std::vector<CropScenario>& combinations,
                                                       ProgramState& state, RunHooks& hooks);

}  // namespace verdalis::reference
