#pragma once

#include <memory>
#include <string>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"
#include "screens/ScenarioInputs.h"

namespace verdalis {

/// One evaluation from the inputs to the ranked options: every water split with every crop combination, and
/// with chkNoSplit each crop on the undivided farm. `description` is the second line of the progress window.
/// What pricing the candidates of chkNoSplit works out stays in the library's crops and in the plant.
/// \returns the options; a ranking of size 0 after a cancel.
/// \throws RunTimeError; the progress window may then still be open.
BestMix RunScenario(const ScenarioInputs& inputs, const CropScenario& library,
                    const std::shared_ptr<IrrigationCosts>& tempIrrigationCosts, ProgramState& state,
                    RunHooks& hooks, const std::string& description);

}  // namespace verdalis
