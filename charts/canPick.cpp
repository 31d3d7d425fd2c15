#include <algorithm>

#include "charts/Chart.h"

namespace verdalis {

bool canPick(const Chart& chart, std::size_t index) {
  const auto picks = [&](const auto& part) { return part.pick == ChartPick(index); };
  if (const auto* lines = std::get_if<LineChart>(&chart.data)) {
    return std::any_of(lines->lines.begin(), lines->lines.end(), [&](const ChartLine& line) {
      return std::any_of(line.points.begin(), line.points.end(), picks);
    });
  }
  if (const auto* map = std::get_if<MapChart>(&chart.data)) {
    return map->picks && index < map->xValues.size() * map->yValues.size();
  }
  const auto& bars = std::get<BarChart>(chart.data).bars;
  return std::any_of(bars.begin(), bars.end(), picks);
}

}  // namespace verdalis
