#pragma once

#include "charts/Drawing.h"

namespace verdalis {

// The three kinds of charts. `drawing` has its size, and nothing in it yet.

void layOutLines(const Chart& chart, const LineChart& data, Drawing& drawing, const TextMeasure& measure);
void layOutMap(const Chart& chart, const MapChart& data, Drawing& drawing, const TextMeasure& measure);
void layOutBars(const Chart& chart, const BarChart& data, Drawing& drawing, const TextMeasure& measure);

}  // namespace verdalis
