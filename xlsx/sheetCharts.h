#pragma once

#include "charts/Chart.h"
#include "xlsx/Sheet.h"

namespace verdalis {

/// Puts a chart into a sheet, with the numbers that it is drawn from below it. Curves and bars become charts
/// of the workbook; a map becomes a block of coloured cells. \returns the row below all of it
[[nodiscard]] std::size_t putChart(Sheet& sheet, const Chart& chart, SheetPlace place);

}  // namespace verdalis
