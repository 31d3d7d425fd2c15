#include "charts/frame.h"

#include <algorithm>
#include <cmath>

namespace verdalis {
namespace {

constexpr double swatch = 16;
constexpr double scaleBoxes = 5;
constexpr double legendGap = 16;
constexpr double mostOfWidth = 0.45;   // for one name in the legend
constexpr double mostOfHeight = 0.25;  // for the whole legend

double swatchWidth(const LegendEntry& entry) {
  return entry.kind == LegendEntry::Kind::scale ? 3 * swatch : swatch;
}

void addSwatch(Canvas& canvas, const LegendEntry& entry, Place left) {
  const Paint series{Ink::series, entry.index};
  const Rect box{left.x, left.y - 5, left.x + swatchWidth(entry), left.y + 5};
  const Place middle{(box.left + box.right) / 2, left.y};
  switch (entry.kind) {
    case LegendEntry::Kind::curve:
    case LegendEntry::Kind::curveAndMarks:
      canvas.addLine({{box.left, left.y}, {box.right, left.y}}, series, 2, dashOf(entry.index));
      if (entry.kind == LegendEntry::Kind::curveAndMarks) canvas.addMark(middle, 4, entry.index, series);
      break;
    case LegendEntry::Kind::points:
      canvas.addMark(middle, 4, entry.index, series);
      break;
    case LegendEntry::Kind::category:
      canvas.addCategory(box, entry.index);
      break;
    case LegendEntry::Kind::scale:
      for (double i = 0; i < scaleBoxes; ++i) {
        const double part = box.width() / scaleBoxes;
        canvas.addRect({box.left + i * part, box.top, box.left + (i + 1) * part, box.bottom},
                       {Ink::value, 0, i / (scaleBoxes - 1)});
      }
      break;
    case LegendEntry::Kind::here:
      canvas.addRing(middle, 4, {Ink::now});
      break;
  }
}

struct PlacedEntry {
  const LegendEntry* entry;
  std::string name;
  double width;
};

void addRow(Canvas& canvas, const std::vector<PlacedEntry>& row, double x, double y) {
  for (const PlacedEntry& placed : row) {
    const double mark = placed.entry == nullptr ? 0 : swatchWidth(*placed.entry) + 6;
    if (placed.entry != nullptr) addSwatch(canvas, *placed.entry, {x, y});
    canvas.addText({x + mark, y}, Anchor::start, placed.name, {Ink::text});
    x += placed.width + legendGap;
  }
}

double lengthOf(const std::vector<PlacedEntry>& row) {
  double length = 0;
  for (const PlacedEntry& placed : row)
    length += placed.width + legendGap;
  return row.empty() ? 0 : length - legendGap;
}

/// The legend in rows. What has no room is counted at the end.
std::vector<std::vector<PlacedEntry>> rowsOf(const Canvas& canvas, const std::vector<LegendEntry>& legend,
                                             double width, std::size_t most) {
  std::vector<std::vector<PlacedEntry>> rows(1);
  std::size_t placed = 0;
  const std::string more = "+" + std::to_string(legend.size()) + " more";
  const double roomForMore = canvas.widthOf(more) + legendGap;
  for (const LegendEntry& entry : legend) {
    const std::string name = canvas.fitted(entry.name, width * mostOfWidth);
    const double own = swatchWidth(entry) + 6 + canvas.widthOf(name);
    const bool last = placed + 1 == legend.size();
    const double before = rows.back().empty() ? 0 : lengthOf(rows.back()) + legendGap;
    const bool lastRow = rows.size() == most;
    const double room = width - (lastRow && !last ? roomForMore : 0);
    if (before + own > room) {
      if (lastRow || rows.back().empty()) break;
      rows.emplace_back();
      if (own > width) break;
      if (rows.size() == most && !last && own > width - roomForMore) break;
    }
    rows.back().push_back({&entry, name, own});
    ++placed;
  }
  if (placed < legend.size()) {
    const std::string rest = "+" + std::to_string(legend.size() - placed) + " more";
    const double own = canvas.widthOf(rest);
    const double before = rows.back().empty() ? 0 : lengthOf(rows.back()) + legendGap;
    if (before + own <= width) rows.back().push_back({nullptr, rest, own});
  }
  return rows;
}

}  // namespace

bool isLargeEnough(const Rect& plot, Detail detail) {
  constexpr double narrowest = 90;
  constexpr double lowest = 60;
  if (detail == Detail::dataOnly) return plot.width() >= 8 && plot.height() >= 8;
  return plot.width() >= narrowest && plot.height() >= lowest;
}

double addHead(Canvas& canvas, const Chart& chart, const std::vector<LegendEntry>& legend, double width,
               double height, Detail detail) {
  double top = edge;
  if (detail == Detail::dataOnly) return top;
  const double room = width - 2 * edge;
  const double row = canvas.line() * 1.2;
  std::string title;
  double titleWidth = 0;
  if (!chart.title.empty()) {
    title = canvas.fitted(chart.title, room, true);
    titleWidth = canvas.widthOf(title, true);
    canvas.addText({edge, top + row / 2}, Anchor::start, title, {Ink::title}, true);
  }
  if (legend.empty() || detail != Detail::all) return title.empty() ? top : top + row + 2;
  // Beside the title if there is room.
  const double beside = room - titleWidth - 2 * legendGap;
  std::vector<std::vector<PlacedEntry>> rows =
      beside > 0 ? rowsOf(canvas, legend, beside, 1) : std::vector<std::vector<PlacedEntry>>{};
  const auto isWhole = [](const PlacedEntry& placed) {
    return placed.entry != nullptr && placed.name == placed.entry->name;
  };
  if (rows.size() == 1 && rows.front().size() == legend.size() &&
      std::all_of(rows.front().begin(), rows.front().end(), isWhole)) {
    addRow(canvas, rows.front(), width - edge - lengthOf(rows.front()), top + row / 2);
    return top + row + 2;
  }
  if (!title.empty()) top += row + 2;
  const auto most = static_cast<std::size_t>(std::max(1.0, std::floor(height * mostOfHeight / row)));
  rows = rowsOf(canvas, legend, room, most);
  for (const std::vector<PlacedEntry>& one : rows) {
    addRow(canvas, one, edge, top + row / 2);
    top += row;
  }
  return top + 2;
}

double widest(const Canvas& canvas, const std::vector<Tick>& ticks) {
  double result = 0;
  for (const Tick& tick : ticks)
    result = std::max(result, canvas.widthOf(tick.text));
  return result;
}

std::vector<Tick> ticksAlong(const Canvas& canvas, const Span& span, double length,
                             const NumberStyle& style) {
  const auto countFor = [&](double each) {
    return static_cast<std::size_t>(std::clamp(length / std::max(each, 1.0), 2.0, 14.0));
  };
  std::vector<Tick> ticks = roundTicks(span, countFor(canvas.size() * 4), style);
  for (int tries = 0; tries < 3; ++tries) {
    const double each = widest(canvas, ticks) + canvas.size() * 1.5;
    if (each * static_cast<double>(ticks.size()) <= length) break;
    ticks = roundTicks(span, countFor(each), style);
  }
  return ticks;
}

std::size_t ticksUpwards(const Canvas& canvas, double height) {
  return static_cast<std::size_t>(std::clamp(height / (canvas.line() * 2.4), 2.0, 8.0));
}

void addLabelsBelow(Canvas& canvas, const std::vector<Tick>& ticks, const Scale& scale, double y,
                    double width) {
  double free = 0;
  for (const Tick& tick : ticks) {
    const double half = canvas.widthOf(tick.text) / 2;
    const double x = scale.at(tick.value);
    if (x - half < free || x + half > width) continue;
    canvas.addText({x, y}, Anchor::middle, tick.text, {Ink::muted});
    free = x + half + canvas.size() / 2;
  }
}

void addLabelsLeft(Canvas& canvas, const std::vector<Tick>& ticks, const Scale& scale, const Rect& plot,
                   bool labels, bool lines) {
  const double half = canvas.line() / 2;
  double free = plot.bottom + canvas.line();
  for (const Tick& tick : ticks) {
    const double y = scale.at(tick.value);
    if (y < plot.top - 0.5 || y > plot.bottom + 0.5 || (labels && y + half > free)) continue;
    if (lines) canvas.addLine({{plot.left, y}, {plot.right, y}}, {Ink::grid});
    if (labels) {
      const std::string text = canvas.fitted(tick.text, plot.left - 8);
      canvas.addText({plot.left - 6, y}, Anchor::end, text, {Ink::muted});
    }
    free = y - half;
  }
}

bool addNothing(Canvas& canvas, double width, double height, double top) {
  const std::string text = canvas.fitted("No values", width - 2 * edge);
  const double y = (top + height) / 2;
  if (y - canvas.line() / 2 < top || y + canvas.line() / 2 > height) return false;
  canvas.addText({width / 2, y}, Anchor::middle, text, {Ink::muted});
  return true;
}

}  // namespace verdalis
