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

/// Evaluates the inputs and ranks the options: every water split with every crop combination and, with
/// chkNoSplit, each crop on the undivided farm. `description` is the second line of the progress window.
/// Pricing the candidates of chkNoSplit leaves its results in the library's crops and in the plant.
/// \returns the ranked options; a ranking of size 0 if the run was cancelled.
/// \throws RunTimeError; the progress window may still be open then
BestMix RunScenario(const ScenarioInputs& inputs, const CropScenario& library,
                    const std::shared_ptr<IrrigationCosts>& tempIrrigationCosts, ProgramState& state,
                    RunHooks& hooks, const std::string& description);

}  // namespace verdalis
