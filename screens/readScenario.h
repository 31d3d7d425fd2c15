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

/// The percentages of the land division whose button is checked.
/// \throws RunTimeError (invalidCall) if none is checked
[[nodiscard]] Split getLandSplit(const LandSplitButtons& Option1);

/// The crops of the ticked rows, in row order. They are the library's objects, not copies, so the values set
/// here stay on them: price, maximum yield, scale, yield table of the soil, and name of the soil.
/// \throws RunTimeError (subscript) for a ticked row without a crop, (overflow) for a number that is too
/// large
CropScenario returnCrops(const ScenarioInputs& inputs, const CropScenario& library);

/// Reads the texts of the main pane. Their fixed order decides which error is reported first. The iteration
/// factor is taken from `state`; the acres of the fields, the crops and the numbers of splits and
/// combinations are stored in it. `onWaterSplits` receives the number of water splits before the last texts
/// are read.
/// \throws RunTimeError for a text that is not a number and for numbers that give no scenario
[[nodiscard]] Scenario readScenario(const ScenarioInputs& inputs, const CropScenario& library,
                                    const IrrigationCosts& plant, double efficiency, ProgramState& state,
                                    const std::function<void(std::size_t)>& onWaterSplits = nullptr);

/// The farm described by the texts, with its own crops; the library is not changed. Its scenario equals that
/// of readScenario().
/// \throws RunTimeError for a text that is not a number
[[nodiscard]] Farm readFarm(const ScenarioInputs& inputs, const CropScenario& library,
                            const IrrigationCosts& plant, std::int16_t factor);

/// The irrigation efficiency as a fraction.
/// \throws RunTimeError (overflow)
[[nodiscard]] double readEfficiency(const ScenarioInputs& inputs);

}  // namespace verdalis
