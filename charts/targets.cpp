#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "charts/Drawing.h"
#include "charts/ticks.h"

namespace verdalis {
namespace {

std::string nameIn(const std::vector<std::string>& names, std::size_t index) {
  return index < names.size() ? names[index] : std::string();
}

/// The names of the categories of a box, from top to bottom.
std::string namesOf(const LineChart& data, const ChartStrip::Box& box) {
  std::string names;
  for (const std::size_t category : box.categories) {
    if (!names.empty()) names += ", ";
    names += nameIn(data.categories, category);
  }
  return names;
}

/// A value of an axis, with its title if the style names no unit.
std::string told(const ChartAxis& axis, double value) {
  const std::string number = shortNumber(value, axis.style);
  if (!axis.style.before.empty() || !axis.style.after.empty() || axis.title.empty()) return number;
  return axis.title + ": " + number;
}

std::string tipOfPoint(const LineChart& data, const Target& target) {
  const ChartLine& line = data.lines[target.row];
  const ChartLine::Point& point = line.points[target.column];
  std::string tip = line.name.empty() ? std::string() : line.name + "\n";
  tip += told(data.x, point.x) + "\n" + told(data.y, point.y);
  if (!data.strip) return tip;
  for (const ChartStrip::Box& box : data.strip->boxes) {
    if (point.x >= std::min(box.from, box.to) && point.x <= std::max(box.from, box.to)) {
      return tip + "\n" + namesOf(data, box);
    }
  }
  return tip;
}

std::string tipOfCell(const MapChart& data, const Target& target) {
  const std::size_t y = data.yValues.size() - 1 - target.row;
  const std::size_t cell = y * data.xValues.size() + target.column;
  std::string tip = told(data.x, data.xValues[target.column]) + "\n" + told(data.y, data.yValues[y]);
  if (cell < data.category.size()) tip += "\n" + nameIn(data.categories, data.category[cell]);
  if (cell < data.value.size()) tip += "\n" + shortNumber(data.value[cell], data.valueStyle);
  return tip;
}

std::string tipOfBar(const BarChart& data, const Target& target) {
  const BarChart::Bar& bar = data.bars[target.row];
  std::string tip = bar.name;
  const std::string from = bar.fromText.empty() ? shortNumber(bar.from, data.x.style) : bar.fromText;
  const std::string to = bar.toText.empty() ? shortNumber(bar.to, data.x.style) : bar.toText;
  if (bar.fromText.empty() != bar.toText.empty()) return tip + "\n" + bar.fromText + bar.toText;
  return tip + "\n" + from + " to " + to;
}

}  // namespace

const Target* targetAt(const Drawing& drawing, Place place) {
  const Target* nearest = nullptr;
  double least = std::numeric_limits<double>::max();
  for (const Target& target : drawing.targets) {
    if (!target.reach.has(place)) continue;
    const double distance = std::hypot(target.at.x - place.x, target.at.y - place.y);
    if (distance >= least) continue;
    nearest = &target;
    least = distance;
  }
  return nearest;
}

const Target& targetBeside(const Drawing& drawing, const Target& from, Direction direction) {
  const Target* best = &from;
  double least = std::numeric_limits<double>::max();
  const bool along = direction == Direction::left || direction == Direction::right;
  const bool back = direction == Direction::left || direction == Direction::up;
  for (const Target& target : drawing.targets) {
    if (along != (target.row == from.row)) continue;
    const auto step = along ? static_cast<double>(target.column) - static_cast<double>(from.column)
                            : static_cast<double>(target.row) - static_cast<double>(from.row);
    const double ahead = back ? -step : step;
    if (ahead <= 0) continue;
    // The next row, and in it the nearest target; or the next target of the row.
    constexpr double row = 1e6;
    const double distance = along ? ahead : ahead * row + std::abs(target.at.x - from.at.x);
    if (distance >= least) continue;
    best = &target;
    least = distance;
  }
  return *best;
}

std::string tipOf(const Chart& chart, const Target& target) {
  if (const auto* lines = std::get_if<LineChart>(&chart.data)) {
    if (target.kind == Target::Kind::point && target.row < lines->lines.size() &&
        target.column < lines->lines[target.row].points.size()) {
      return tipOfPoint(*lines, target);
    }
    if (target.kind == Target::Kind::box && lines->strip && target.column < lines->strip->boxes.size()) {
      const ChartStrip::Box& box = lines->strip->boxes[target.column];
      NumberStyle first = lines->x.style;
      first.after.clear();
      return shortNumber(box.from, first) + " to " + told(lines->x, box.to) + "\n" + namesOf(*lines, box);
    }
  } else if (const auto* map = std::get_if<MapChart>(&chart.data)) {
    if (target.kind == Target::Kind::cell && target.row < map->yValues.size() &&
        target.column < map->xValues.size()) {
      return tipOfCell(*map, target);
    }
  } else if (const auto* bars = std::get_if<BarChart>(&chart.data)) {
    if (target.kind == Target::Kind::bar && target.row < bars->bars.size()) return tipOfBar(*bars, target);
  }
  return {};
}

}  // namespace verdalis
