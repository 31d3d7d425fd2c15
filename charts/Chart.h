#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace verdalis {

/// How the numbers of an axis or a table are written.
struct NumberStyle {
  std::string before;      ///< Such as "$"
  std::string after;       ///< Such as " in"
  int decimals = 0;        ///< At most 30 are written
  bool thousands = false;  ///< 37117 as "37,117"
  bool exact = false;      ///< Further decimals where a number has them
};

/// A number in this style; the sign stands before the prefix: "-$1,200".
[[nodiscard]] std::string styled(double value, const NumberStyle& style);

struct ChartAxis {
  std::string title;  ///< With the unit, such as "gross inches over the farm"
  NumberStyle style;
};

/// A value that a click may choose. `pick` is passed to the listener; nothing if a click has no effect.
using ChartPick = std::optional<std::size_t>;

/// A curve, or separate points.
struct ChartLine {
  struct Point {
    double x = 0;
    double y = 0;
    ChartPick pick;
  };
  std::string name;  ///< In the legend; empty for none
  std::vector<Point> points;
  bool marks = true;  ///< A mark at each point
  bool line = true;
};

/// A vertical line with a text, such as "now 14 in".
struct ChartMarker {
  enum class Kind { now, best, change };
  Kind kind = Kind::now;
  double x = 0;
  std::string text;
};

/// A strip of coloured boxes below a curve: the crop of each field over the x axis.
struct ChartStrip {
  struct Box {
    double from = 0;
    double to = 0;
    std::vector<std::size_t> categories;  ///< From top to bottom, by index in `categories` of the chart
  };
  std::vector<Box> boxes;
};

/// Curves over an axis of numbers, with an optional strip below.
struct LineChart {
  ChartAxis x;
  ChartAxis y;
  std::vector<ChartLine> lines;
  std::vector<ChartMarker> markers;
  std::vector<std::string> categories;  ///< Such as the names of the crops; in the legend if there is a strip
  std::optional<ChartStrip> strip;
};

/// Values over two inputs: either a category or a colour by size in each cell.
struct MapChart {
  ChartAxis x;
  ChartAxis y;
  std::vector<double> xValues;  ///< Ascending
  std::vector<double> yValues;  ///< Ascending, drawn upwards
  std::vector<std::string> categories;
  std::vector<std::size_t> category;  ///< By y, then by x; empty to colour by `value`
  std::vector<double> value;          ///< In the same order
  NumberStyle valueStyle;
  std::optional<ChartLine::Point> now;  ///< The present farm
  bool picks = false;                   ///< A click chooses the index of a cell
};

/// Horizontal bars, one below the other.
struct BarChart {
  struct Bar {
    enum class Kind { plain, gain, loss, total };
    std::string name;
    double from = 0;
    double to = 0;
    std::string fromText;  ///< Written at the ends; empty for none
    std::string toText;
    Kind kind = Kind::plain;
    ChartPick pick;
  };
  ChartAxis x;
  std::vector<Bar> bars;
  std::optional<double> base;  ///< A line across all bars, such as the present net return
};

/// The data of a chart, without places or colours.
struct Chart {
  std::string title;
  std::string summary;  ///< What the chart tells, in a sentence, for readers who do not see it
  std::variant<LineChart, MapChart, BarChart> data;

  /// The table that the chart is drawn from, headings first: for copying, and for readers who do not see it.
  std::vector<std::vector<std::string>> table;
};

/// Whether a click somewhere in a chart chooses this index.
[[nodiscard]] bool canPick(const Chart& chart, std::size_t index);

}  // namespace verdalis
