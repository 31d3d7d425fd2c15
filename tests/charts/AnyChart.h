#pragma once

#include <rapidcheck.h>

#include <limits>
#include <string>
#include <vector>

#include "charts/Drawing.h"

namespace verdalis::testing {

/// Any number a chart may hold, the odd ones too.
inline rc::Gen<double> anyNumber() {
  return rc::gen::weightedOneOf<double>(
      {{12, rc::gen::map(rc::gen::inRange(-500, 4000), [](int value) { return value * 12.5; })},
       {2, rc::gen::arbitrary<double>()},
       {1, rc::gen::element(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(), 1e308, -1e308, 1e-308, 0.0)}});
}

inline rc::Gen<std::string> anyName() {
  return rc::gen::element<std::string>("", "Corn", "Grain Sorghum", "Größe\tund\nHöhe", "\xff\x80\x80",
                                       std::string(90, 'n'), "Sunflower (dryland, late)");
}

inline ChartAxis anyAxis() {
  return {*anyName(), *rc::gen::element(NumberStyle{"$", "", 0, true}, NumberStyle{"", " in", 1, false},
                                        NumberStyle{"", "", 3, true})};
}

inline ChartPick anyPick() {
  return *rc::gen::arbitrary<bool>() ? ChartPick(*rc::gen::inRange<std::size_t>(0, 9)) : std::nullopt;
}

inline int count(int most) {
  return *rc::gen::inRange(0, most + 1);
}

inline LineChart anyLineChart() {
  LineChart chart{anyAxis(), anyAxis(), {}, {}, {}, {}};
  for (int lines = count(4); lines > 0; --lines) {
    ChartLine line{*anyName(), {}, *rc::gen::arbitrary<bool>(), *rc::gen::arbitrary<bool>()};
    for (int points = count(30); points > 0; --points)
      line.points.push_back({*anyNumber(), *anyNumber(), anyPick()});
    chart.lines.push_back(line);
  }
  for (int markers = count(6); markers > 0; --markers) {
    const auto kind =
        *rc::gen::element(ChartMarker::Kind::now, ChartMarker::Kind::best, ChartMarker::Kind::change);
    chart.markers.push_back({kind, *anyNumber(), *anyName()});
  }
  for (int names = count(9); names > 0; --names)
    chart.categories.push_back(*anyName());
  if (*rc::gen::arbitrary<bool>()) {
    chart.strip = ChartStrip{};
    for (int boxes = count(8); boxes > 0; --boxes) {
      chart.strip->boxes.push_back(
          {*anyNumber(), *anyNumber(),
           *rc::gen::container<std::vector<std::size_t>>(rc::gen::inRange<std::size_t>(0, 12))});
    }
  }
  return chart;
}

inline MapChart anyMapChart() {
  MapChart chart{anyAxis(), anyAxis(), {}, {}, {}, {}, {}, {}, {}, *rc::gen::arbitrary<bool>()};
  const auto values = [] {
    std::vector<double> result;
    double value = *anyNumber();
    for (int i = count(12); i > 0; --i, value += *rc::gen::inRange(1, 50) * 0.5)
      result.push_back(value);
    return result;
  };
  chart.xValues = values();
  chart.yValues = values();
  std::size_t cells = chart.xValues.size() * chart.yValues.size();
  if (count(9) == 0) ++cells;  // a chart that does not fit together
  const bool byCategory = *rc::gen::arbitrary<bool>();
  for (std::size_t i = 0; i < cells; ++i) {
    if (byCategory) chart.category.push_back(*rc::gen::inRange<std::size_t>(0, 9));
    chart.value.push_back(*anyNumber());
  }
  for (int names = count(9); names > 0; --names)
    chart.categories.push_back(*anyName());
  if (*rc::gen::arbitrary<bool>()) chart.now = ChartLine::Point{*anyNumber(), *anyNumber(), {}};
  return chart;
}

inline BarChart anyBarChart() {
  BarChart chart{anyAxis(), {}, {}};
  for (int bars = count(20); bars > 0; --bars) {
    const auto kind = *rc::gen::element(BarChart::Bar::Kind::plain, BarChart::Bar::Kind::gain,
                                        BarChart::Bar::Kind::loss, BarChart::Bar::Kind::total);
    chart.bars.push_back({*anyName(), *anyNumber(), *anyNumber(), *anyName(), *anyName(), kind, anyPick()});
  }
  if (*rc::gen::arbitrary<bool>()) chart.base = *anyNumber();
  return chart;
}

inline Chart anyChart() {
  Chart chart{*anyName(), {}, {}, {}};
  switch (*rc::gen::inRange(0, 3)) {
    case 0:
      chart.data = anyLineChart();
      break;
    case 1:
      chart.data = anyMapChart();
      break;
    default:
      chart.data = anyBarChart();
  }
  return chart;
}

}  // namespace verdalis::testing
