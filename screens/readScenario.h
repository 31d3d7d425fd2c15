#pragma once

#include <cstddef>
#include <functional>

#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/Scenario.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"
#include "screens/ScenarioInputs.h"

namespace verdalis {

/// The percentages of the land division whose button is on.
/// \throws RunTimeError (invalidCall) when none is.
[[nodiscard]] Split getLandSplit(const LandSplitButtons& Option1);

/// The crops of the ticked rows, in the order of the rows. They are the library's own objects, and what is
/// set here stays on them: price, maximum yield, scale, the table of the soil and the name of the soil.
/// \throws RunTimeError (subscript) for a ticked row without a crop, (overflow) for a number that is too
/// large.
CropScenario returnCrops(const ScenarioInputs& inputs, const CropScenario& library);

/// Reads the texts of the main pane, in their fixed order, which decides the error that is told first. The
/// iteration factor comes from `state`; the acres of the fields, the crops and the number of splits and
/// combinations go into it. `onWaterSplits` hears the number of splits as soon as it is known, before the
/// last texts are read. \throws RunTimeError for a text that is no number, and for numbers that make no
/// scenario
[[nodiscard]] Scenario readScenario(const ScenarioInputs& inputs, const CropScenario& library,
                                    const IrrigationCosts& plant, double efficiency, ProgramState& state,
                                    const std::function<void(std::size_t)>& onWaterSplits = nullptr);

/// The farm of the texts, with crops of its own; nothing is left in the library. Its scenario is that of
/// readScenario().
/// \throws RunTimeError for a text that is no number
[[nodiscard]] Farm readFarm(const ScenarioInputs& inputs, const CropScenario& library,
                            const IrrigationCosts& plant, std::int16_t factor);

/// The irrigation efficiency as a fraction.
/// \throws RunTimeError (overflow)
[[nodiscard]] double readEfficiency(const ScenarioInputs& inputs);

}  // namespace verdalis
