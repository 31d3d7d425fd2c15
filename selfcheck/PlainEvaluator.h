#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/Scenario.h"
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

/// A crop on the whole farm, which gets all the water. Not priced.
/// \param netVolume net water of the farm, acre-inches.
[[nodiscard]] FieldCollection undividedCandidate(const Crop& crop, double acres, double netVolume,
                                                 const SearchInputs& inputs);

/// Takes a candidate with its yields, not priced. It may change the candidate, and must copy it to keep it.
using TakeCandidate = std::function<void(FieldCollection& candidate)>;

/// Passes on every candidate of the fields that meets the wishes, in the order of submission.
/// \throws RunTimeError if one of them has no yield
void forEachCandidate(const SearchInputs& inputs, const std::vector<Wish>& wishes, const TakeCandidate& take);

/// The same with the wishes of a scenario. With `noSplit`, each crop on the undivided farm follows.
void forEachCandidate(const Scenario& scenario, const TakeCandidate& take);

}  // namespace verdalis::reference
