#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/Scenario.h"

namespace verdalis {

/// Called for each crop priced on the undivided farm, with its position among the crops of the scenario and
/// the priced field.
using NoSplitListener = std::function<void(std::size_t crop, const Field& priced)>;

/// One evaluation: every water split with every crop combination, and with `noSplit` each crop on the
/// undivided farm, as far as they meet the wishes. The progress window is closed by then.
/// \returns the ranked options, placeholders alone where no plan meets all wishes; nothing after a cancel.
/// \throws RunTimeError for a candidate that cannot be priced; the progress window may then still be open
[[nodiscard]] std::optional<BestMix> evaluateScenario(const Scenario& scenario, ProgramState& state,
                                                      RunHooks& hooks,
                                                      const NoSplitListener& onNoSplit = nullptr);

}  // namespace verdalis
