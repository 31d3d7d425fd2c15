#pragma once

#include "charts/Chart.h"
#include "engine/Farm.h"
#include "explore/inputMap.h"

namespace verdalis {

/// The chart of a map: the best mix in each cell, without the mark of the present farm.
[[nodiscard]] MapChart mapChart(const Farm& farm, const InputMap& map);

}  // namespace verdalis
