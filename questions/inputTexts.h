#pragma once

#include <string>
#include <vector>

#include "charts/Chart.h"
#include "engine/Farm.h"
#include "explore/FarmInput.h"
#include "questions/values.h"

namespace verdalis {

// How the pages name the inputs of a farm.

/// The name of an input, such as "Water" or "Price of Corn".
[[nodiscard]] std::string inputLabel(const FarmInput& input);

/// What its values are counted in, such as "$ per bu."; empty if it is not known.
[[nodiscard]] std::string inputUnit(const FarmInput& input, const Farm& farm);

/// How its values are written.
[[nodiscard]] NumberStyle inputStyle(const FarmInput& input);

/// An axis of its values.
[[nodiscard]] ChartAxis inputAxis(const FarmInput& input, const Farm& farm);

/// An axis of net returns.
[[nodiscard]] ChartAxis returnAxis();

/// The range that a page offers: from half to one and a half of now, for water from a tenth to twice, for
/// rain the years of the yield tables; within what the main window takes.
[[nodiscard]] ValueRange usualRange(const FarmInput& input, const Farm& farm);

/// The names of the chosen crops in their order, each once.
[[nodiscard]] std::vector<std::string> cropNames(const Farm& farm);

/// The index of each field's crop in the names of the crops, for the strip of a chart.
[[nodiscard]] std::vector<std::size_t> categoriesOf(const std::vector<PlannedField>& fields,
                                                    const std::vector<std::string>& crops);

}  // namespace verdalis
