#pragma once

#include <array>
#include <string>
#include <vector>

#include "charts/Canvas.h"
#include "charts/ticks.h"

namespace verdalis {

// What is around the data of a chart: title, legend and axes.

/// How much of a chart there is room for.
enum class Detail { all, fewTexts, dataOnly };
inline constexpr std::array<Detail, 3> detailsByRoom{Detail::all, Detail::fewTexts, Detail::dataOnly};

/// Whether a plot is large enough to be worth its texts.
[[nodiscard]] bool isLargeEnough(const Rect& plot, Detail detail);

struct LegendEntry {
  enum class Kind { curve, points, curveAndMarks, category, scale, here };
  Kind kind = Kind::curve;
  std::size_t index = 0;
  std::string name;
};

/// From a number to its place.
struct Scale {
  Span span;
  double from = 0;
  double to = 0;
  [[nodiscard]] double at(double value) const {
    return from + (value / span.length() - span.low / span.length()) * (to - from);
  }
};

/// The room around the data at every edge.
inline constexpr double edge = 8;

/// Writes title and legend at the top of the drawing.
/// \returns where the rest begins.
double addHead(Canvas& canvas, const Chart& chart, const std::vector<LegendEntry>& legend, double width,
               double height, Detail detail);

/// The round values of an axis that have room for their labels.
[[nodiscard]] std::vector<Tick> ticksAlong(const Canvas& canvas, const Span& span, double length,
                                           const NumberStyle& style);

/// How many round values have room on an axis upwards.
[[nodiscard]] std::size_t ticksUpwards(const Canvas& canvas, double height);

/// The widest label.
[[nodiscard]] double widest(const Canvas& canvas, const std::vector<Tick>& ticks);

/// Writes labels below the plot, without those that would touch another one or leave the drawing.
void addLabelsBelow(Canvas& canvas, const std::vector<Tick>& ticks, const Scale& scale, double y,
                    double width);

/// Writes labels left of a plot and, if wanted, lines across it.
void addLabelsLeft(Canvas& canvas, const std::vector<Tick>& ticks, const Scale& scale, const Rect& plot,
                   bool labels, bool lines);

/// Tells that there is nothing to draw.
/// \returns whether there is room to tell it.
bool addNothing(Canvas& canvas, double width, double height, double top);

}  // namespace verdalis
