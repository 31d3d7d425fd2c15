#pragma once

#include <optional>
#include <vector>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/SearchInputs.h"
#include "engine/Wish.h"

namespace verdalis {

/// Ranks the candidates of every pair of water split (outer loop) and crop combination (inner loop). A Fallow
/// field gets no water; its share is lost. Candidates that cannot enter the ranking are not priced (see
/// FastSearch), so the run time depends little on the number of pairs.
/// \returns nothing after a cancel. The progress window has been closed either way.
/// \throws RunTimeError when a candidate cannot be priced; the progress window is then still open
[[nodiscard]] std::optional<BestMix> evaluateCombinations(const SearchInputs& inputs, ProgramState& state,
                                                          RunHooks& hooks);

/// The same among the candidates that meet all wishes, as if the others had never been submitted; with
/// `mixes` only the best candidate of each mix of acres and crops is ranked.
[[nodiscard]] std::optional<BestMix> evaluateWithWishes(const SearchInputs& inputs,
                                                        const std::vector<Wish>& wishes, bool mixes,
                                                        ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
