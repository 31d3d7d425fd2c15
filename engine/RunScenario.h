#pragma once

#include <memory>
#include <string>

#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/ScenarioInputs.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// The crops of the ticked rows, in the order of the rows. They are the library's own objects, and what is
/// set here stays on them: price, maximum yield, scale, the table of the soil and the name of the soil.
/// \throws RunTimeError (subscript) for a ticked row without a crop, (overflow) for a number that is too
/// large.
CropScenario returnCrops(const ScenarioInputs& inputs, const CropScenario& library);

/// One evaluation from the inputs to the ranked options: every water split with every crop combination, and
/// with chkNoSplit each crop on the undivided farm. `description` is the second line of the progress window.
/// The candidates of chkNoSplit share the library's crop and the plant, so what pricing writes into these
/// stays. \returns the options; a ranking of size 0 after a cancel. \throws RunTimeError; the progress window
/// may then still be open.
BestMix RunScenario(const ScenarioInputs& inputs, const CropScenario& library,
                    const std::shared_ptr<IrrigationCosts>& tempIrrigationCosts, ProgramState& state,
                    RunHooks& hooks, const std::string& description);

}  // namespace verdalis
