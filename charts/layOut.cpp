#include <algorithm>
#include <cmath>

#include "charts/kinds.h"

namespace verdalis {
namespace {

constexpr double smallest = 24;
constexpr double largestSize = 20000;

}  // namespace

Drawing layOut(const Chart& chart, double width, double height, const TextMeasure& measure) {
  Drawing drawing;
  const auto bounded = [](double size) {
    return std::isfinite(size) ? std::clamp(size, 0.0, largestSize) : 0.0;
  };
  drawing.width = bounded(width);
  drawing.height = bounded(height);
  if (drawing.width < smallest || drawing.height < smallest) return drawing;
  if (const auto* lines = std::get_if<LineChart>(&chart.data)) {
    layOutLines(chart, *lines, drawing, measure);
  } else if (const auto* map = std::get_if<MapChart>(&chart.data)) {
    layOutMap(chart, *map, drawing, measure);
  } else {
    layOutBars(chart, std::get<BarChart>(chart.data), drawing, measure);
  }
  return drawing;
}

}  // namespace verdalis
