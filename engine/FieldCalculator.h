#pragma once

#include <optional>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/SearchInputs.h"

namespace verdalis {

/// Ranks the candidates of every pair of water split (outside) and crop combination (inside). A Fallow field
/// gets no water; the share that the split gave it is lost. Candidates that cannot enter the ranking are not
/// priced (see FastSearch), so the number of pairs has little to do with the time that this takes. \returns
/// nothing after a cancel. The progress window has been closed either way. \throws RunTimeError when a
/// candidate cannot be priced; the progress window is then still open.
[[nodiscard]] std::optional<BestMix> evaluateCombinations(const SearchInputs& inputs, ProgramState& state,
                                                          RunHooks& hooks);

}  // namespace verdalis
