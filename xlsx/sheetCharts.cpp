#include "xlsx/sheetCharts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "xlsx/cleanText.h"

namespace verdalis {
namespace {

constexpr double defaultWidth = 480;  // pixels of a chart without a scale
constexpr double defaultHeight = 288;
constexpr double chartWidth = 720;
constexpr double linesHeight = 380;
constexpr double rowHeight = 20;  // pixels
constexpr std::size_t mostBars = 40;
constexpr std::size_t mostMapColumns = 500;
constexpr std::size_t mostColours = 200;  // of the mixes of a map

constexpr std::array<std::uint32_t, 6> lineColours{0x2E7D32, 0x1565C0, 0xEF6C00,
                                                   0x6A1B9A, 0xC62828, 0x546E7A};
constexpr std::uint32_t markerColour = 0x757575;
constexpr std::uint32_t gainColour = 0x2E7D32;
constexpr std::uint32_t lossColour = 0xC62828;
constexpr std::uint32_t plainColour = 0x5B8C5A;
constexpr std::uint32_t totalColour = 0x1F5B24;

Book::Look caption() {
  Book::Look look;
  look.kind = Book::Look::Kind::caption;
  return look;
}

/// A text in a chart. The library would take one that begins with "=" for a formula.
std::string chartText(const std::string& text) {
  std::string clean = cleanText(text);
  if (clean.starts_with('=')) clean.insert(0, 1, ' ');
  return clean;
}

/// A range of one column as a series takes it.
struct Range {
  std::size_t first = 0;
  std::size_t last = 0;
  std::size_t column = 0;
};

void setCategories(const Sheet& sheet, lxw_chart_series* series, const Range& range) {
  chart_series_set_categories(series, sheet.name().c_str(), static_cast<lxw_row_t>(range.first),
                              static_cast<lxw_col_t>(range.column), static_cast<lxw_row_t>(range.last),
                              static_cast<lxw_col_t>(range.column));
}

void setValues(const Sheet& sheet, lxw_chart_series* series, const Range& range) {
  chart_series_set_values(series, sheet.name().c_str(), static_cast<lxw_row_t>(range.first),
                          static_cast<lxw_col_t>(range.column), static_cast<lxw_row_t>(range.last),
                          static_cast<lxw_col_t>(range.column));
}

void setAxis(lxw_chart_axis* axis, const ChartAxis& from) {
  if (!from.title.empty()) chart_axis_set_name(axis, chartText(from.title).c_str());
  chart_axis_set_num_format(axis, numberFormat(from.style).c_str());
}

lxw_chart* makeChart(Sheet& sheet, const Chart& chart, std::uint8_t type) {
  lxw_chart* const made = workbook_add_chart(sheet.book().book(), type);
  if (made == nullptr) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
  chart_title_set_name(made, chartText(chart.title).c_str());
  lxw_chart_font font{};
  font.size = 12;
  chart_title_set_name_font(made, &font);
  return made;
}

/// \returns the first row below the chart
std::size_t insert(Sheet& sheet, lxw_chart* made, const Chart& chart, SheetPlace place, double height) {
  lxw_chart_options options{};
  options.x_scale = chartWidth / defaultWidth;
  options.y_scale = height / defaultHeight;
  options.object_position = LXW_OBJECT_MOVE_DONT_SIZE;
  std::string summary = cleanText(chart.summary);
  if (!summary.empty()) options.description = summary.data();
  sheet.insert(place, made, options);
  return place.row + static_cast<std::size_t>(std::ceil(height / rowHeight)) + 1;
}

/// Curves: a scatter chart, with a dashed line at each marker of one value.
class Lines {
 public:
  Lines(Sheet& sheet, const Chart& chart, const LineChart& data)
      : sheet_(sheet), chart_(chart), data_(data) {}

  std::size_t put(SheetPlace place) {
    const auto isEmpty = [](const ChartLine& line) { return line.points.empty(); };
    if (std::all_of(data_.lines.begin(), data_.lines.end(), isEmpty)) return place.row;
    lxw_chart* const made = makeChart(sheet_, chart_, LXW_CHART_SCATTER_STRAIGHT_WITH_MARKERS);
    const auto height = static_cast<std::size_t>(std::ceil(linesHeight / rowHeight)) + 1;
    head_ = {place.row + height, place.column};
    sheet_.writeLine(head_, "The numbers of the chart", caption());
    next_ = place.column;
    below_ = head_.row + 2;
    for (const ChartLine& line : data_.lines)
      addLine(made, line);
    for (const ChartMarker& marker : data_.markers) {
      if (marker.kind != ChartMarker::Kind::change) addMarker(made, marker);
    }
    setAxis(made->x_axis, data_.x);
    setAxis(made->y_axis, data_.y);
    if (leastX_ && *leastX_ < *mostX_) {
      chart_axis_set_min(made->x_axis, *leastX_);
      chart_axis_set_max(made->x_axis, *mostX_);
    }
    // The values of x stand at the foot also where values of y are negative.
    chart_axis_set_label_position(made->x_axis, LXW_CHART_AXIS_LABEL_POSITION_LOW);
    chart_axis_set_label_position(made->y_axis, LXW_CHART_AXIS_LABEL_POSITION_LOW);
    if (named_) {
      chart_legend_set_position(made, LXW_CHART_LEGEND_BOTTOM);
    } else {
      chart_legend_set_position(made, LXW_CHART_LEGEND_NONE);
    }
    static_cast<void>(insert(sheet_, made, chart_, place, linesHeight));
    return below_ + 1;
  }

 private:
  /// Writes the points in two columns.
  std::pair<Range, Range> writePoints(const std::string& name, const std::vector<ChartLine::Point>& points) {
    const std::size_t first = head_.row + 2;
    const std::size_t x = next_;
    const std::size_t y = next_ + 1;
    next_ += 2;
    const std::string what = name.empty() ? chart_.title : name;
    static_cast<void>(sheet_.writeHead({head_.row + 1, x}, data_.x.title, true));
    static_cast<void>(sheet_.writeHead({head_.row + 1, y}, what, true));
    sheet_.setHeight(head_.row + 1, 3);
    std::size_t row = first;
    for (const ChartLine::Point& point : points) {
      sheet_.write({row, x}, point.x, data_.x.style);
      sheet_.write({row, y}, point.y, data_.y.style);
      ++row;
    }
    below_ = std::max(below_, row);
    return {{first, row - 1, x}, {first, row - 1, y}};
  }

  void addLine(lxw_chart* made, const ChartLine& line) {
    if (line.points.empty()) return;
    for (const ChartLine::Point& point : line.points) {
      if (!std::isfinite(point.x) || !std::isfinite(point.y)) continue;
      leastX_ = std::min(leastX_.value_or(point.x), point.x);
      mostX_ = std::max(mostX_.value_or(point.x), point.x);
      leastY_ = std::min(leastY_.value_or(point.y), point.y);
      mostY_ = std::max(mostY_.value_or(point.y), point.y);
    }
    const auto [x, y] = writePoints(line.name, line.points);
    lxw_chart_series* const series = chart_add_series(made, nullptr, nullptr);
    setCategories(sheet_, series, x);
    setValues(sheet_, series, y);
    name(series, line.name.empty() ? chart_.title : line.name);
    named_ = named_ || !line.name.empty();
    const lxw_color_t colour = lineColours.at(count_++ % lineColours.size());
    lxw_chart_line drawn{};
    drawn.color = colour;
    drawn.width = 2;
    drawn.none = line.line ? 0 : 1;
    chart_series_set_line(series, &drawn);
    if (line.marks) {
      lxw_chart_fill fill{};
      fill.color = colour;
      lxw_chart_line edge{};
      edge.color = colour;
      chart_series_set_marker_type(series, LXW_CHART_MARKER_CIRCLE);
      chart_series_set_marker_size(series, 5);
      chart_series_set_marker_fill(series, &fill);
      chart_series_set_marker_line(series, &edge);
    } else {
      chart_series_set_marker_type(series, LXW_CHART_MARKER_NONE);
    }
  }

  void addMarker(lxw_chart* made, const ChartMarker& marker) {
    if (!leastX_ || !std::isfinite(marker.x) || marker.x < *leastX_ || marker.x > *mostX_) return;
    const auto [x, y] = writePoints(marker.text, {{marker.x, *leastY_, {}}, {marker.x, *mostY_, {}}});
    lxw_chart_series* const series = chart_add_series(made, nullptr, nullptr);
    setCategories(sheet_, series, x);
    setValues(sheet_, series, y);
    name(series, marker.text);
    named_ = named_ || !marker.text.empty();
    lxw_chart_line drawn{};
    drawn.color = markerColour;
    drawn.width = 1.25F;
    drawn.dash_type =
        marker.kind == ChartMarker::Kind::now ? LXW_CHART_LINE_DASH_DASH : LXW_CHART_LINE_DASH_ROUND_DOT;
    chart_series_set_line(series, &drawn);
    chart_series_set_marker_type(series, LXW_CHART_MARKER_NONE);
  }

  static void name(lxw_chart_series* series, const std::string& text) {
    const std::string clean = chartText(text);
    if (!clean.empty()) chart_series_set_name(series, clean.c_str());
  }

  Sheet& sheet_;
  const Chart& chart_;
  const LineChart& data_;
  SheetPlace head_;
  std::size_t next_ = 0;
  std::size_t below_ = 0;
  std::size_t count_ = 0;
  bool named_ = false;
  std::optional<double> leastX_;
  std::optional<double> mostX_;
  std::optional<double> leastY_;
  std::optional<double> mostY_;
};

/// Bars that need not begin at zero: an invisible part, then the part above zero and the part below.
struct Parts {
  double hidden = 0;
  double above = 0;
  double below = 0;
};

Parts partsOf(const BarChart::Bar& bar) {
  const double low = std::min(bar.from, bar.to);
  const double high = std::max(bar.from, bar.to);
  if (low >= 0) return {low, high - low, 0};
  if (high <= 0) return {high, 0, low - high};
  return {0, high, low};
}

lxw_color_t colourOf(BarChart::Bar::Kind kind) {
  switch (kind) {
    case BarChart::Bar::Kind::gain:
      return gainColour;
    case BarChart::Bar::Kind::loss:
      return lossColour;
    case BarChart::Bar::Kind::total:
      return totalColour;
    case BarChart::Bar::Kind::plain:
      break;
  }
  return plainColour;
}

class Bars {
 public:
  Bars(Sheet& sheet, const Chart& chart, const BarChart& data)
      : sheet_(sheet), chart_(chart), data_(data), count_(std::min(data.bars.size(), mostBars)) {}

  std::size_t put(SheetPlace place) {
    if (count_ == 0) return place.row;
    const double height = 120 + 26 * static_cast<double>(count_);
    const std::size_t head = place.row + static_cast<std::size_t>(std::ceil(height / rowHeight)) + 1;
    sheet_.writeLine({head, place.column}, "The numbers of the chart", caption());
    first_ = head + 2;
    column_ = place.column;
    lxw_chart* const made = makeChart(sheet_, chart_, data_.base ? LXW_CHART_BAR : LXW_CHART_BAR_STACKED);
    writeColumn(0, "Bar", [&](const BarChart::Bar& bar) { return bar.name; });
    if (data_.base) {
      addChanges(made);
    } else {
      addParts(made);
    }
    setAxis(made->x_axis, data_.x);
    chart_axis_set_reverse(made->y_axis);  // the first bar on top, and then the numbers too
    chart_axis_set_label_position(made->y_axis, LXW_CHART_AXIS_LABEL_POSITION_LOW);
    chart_set_series_gap(made, 50);
    static_cast<void>(insert(sheet_, made, chart_, place, height));
    return first_ + count_ + 1;
  }

 private:
  [[nodiscard]] Range range(std::size_t column) const {
    return {first_, first_ + count_ - 1, column_ + column};
  }

  template <class TextOf>
  void writeColumn(std::size_t column, const std::string& heading, TextOf textOf) {
    static_cast<void>(sheet_.writeHead({first_ - 1, column_ + column}, heading, false));
    for (std::size_t i = 0; i < count_; ++i)
      sheet_.write({first_ + i, column_ + column}, textOf(data_.bars[i]));
  }

  template <class NumberOf>
  void writeNumbers(std::size_t column, const std::string& heading, NumberOf numberOf) {
    static_cast<void>(sheet_.writeHead({first_ - 1, column_ + column}, heading, true));
    for (std::size_t i = 0; i < count_; ++i)
      sheet_.write({first_ + i, column_ + column}, numberOf(data_.bars[i]), data_.x.style);
  }

  lxw_chart_series* addSeries(lxw_chart* made, std::size_t column, lxw_color_t colour) {
    lxw_chart_series* const series = chart_add_series(made, nullptr, nullptr);
    setCategories(sheet_, series, range(0));
    setValues(sheet_, series, range(column));
    lxw_chart_fill fill{};
    fill.color = colour;
    chart_series_set_fill(series, &fill);
    return series;
  }

  /// Bars around a line, such as the present net return: how far their ends are from it.
  void addChanges(lxw_chart* made) {
    const double base = *data_.base;
    writeColumn(1, "Lower end at", [](const BarChart::Bar& bar) { return bar.fromText; });
    writeNumbers(2, "Lower end", [](const BarChart::Bar& bar) { return bar.from; });
    writeColumn(3, "Upper end at", [](const BarChart::Bar& bar) { return bar.toText; });
    writeNumbers(4, "Upper end", [](const BarChart::Bar& bar) { return bar.to; });
    writeNumbers(5, "Lower end against now", [base](const BarChart::Bar& bar) { return bar.from - base; });
    writeNumbers(6, "Upper end against now", [base](const BarChart::Bar& bar) { return bar.to - base; });
    chart_series_set_name(addSeries(made, 5, lossColour), "Lowest");
    chart_series_set_name(addSeries(made, 6, gainColour), "Highest");
    chart_set_series_overlap(made, 100);
    chart_axis_set_name(made->x_axis, ("Change against now, " + styled(base, data_.x.style)).c_str());
    chart_legend_set_position(made, LXW_CHART_LEGEND_NONE);
  }

  void addParts(lxw_chart* made) {
    writeNumbers(1, "From", [](const BarChart::Bar& bar) { return bar.from; });
    writeNumbers(2, "To", [](const BarChart::Bar& bar) { return bar.to; });
    writeNumbers(3, "Not drawn", [](const BarChart::Bar& bar) { return partsOf(bar).hidden; });
    writeNumbers(4, "Above zero", [](const BarChart::Bar& bar) { return partsOf(bar).above; });
    writeNumbers(5, "Below zero", [](const BarChart::Bar& bar) { return partsOf(bar).below; });
    lxw_chart_fill none{};
    none.none = 1;
    chart_series_set_fill(addSeries(made, 3, plainColour), &none);
    for (const std::size_t column : {std::size_t{4}, std::size_t{5}})
      colourBars(addSeries(made, column, plainColour));
    chart_legend_set_position(made, LXW_CHART_LEGEND_NONE);
  }

  void colourBars(lxw_chart_series* series) const {
    std::vector<lxw_chart_fill> fills(count_);
    std::vector<lxw_chart_point> points(count_);
    std::vector<lxw_chart_point*> list;
    for (std::size_t i = 0; i < count_; ++i) {
      fills[i].color = colourOf(data_.bars[i].kind);
      points[i].fill = &fills[i];
      list.push_back(&points[i]);
    }
    list.push_back(nullptr);
    require(chart_series_set_points(series, list.data()));
  }

  Sheet& sheet_;
  const Chart& chart_;
  const BarChart& data_;
  std::size_t count_;
  std::size_t first_ = 0;
  std::size_t column_ = 0;
};

/// A light colour of its own for each category; the angle between neighbours keeps them apart.
std::uint32_t categoryColour(std::size_t category) {
  const double hue = std::fmod(static_cast<double>(category) * 137.508 + 100, 360) / 60;
  constexpr double value = 0.96;
  constexpr double saturation = 0.42;
  const auto part = [&](double shift) {
    const double k = std::fmod(shift + hue, 6);
    const double level = value - value * saturation * std::max(0.0, std::min({k, 4 - k, 1.0}));
    return static_cast<std::uint32_t>(std::lround(level * 255));
  };
  return part(5) << 16U | part(3) << 8U | part(1);
}

/// A map: a cell for each pair of values, coloured by its category or by its size.
std::size_t putMap(Sheet& sheet, const Chart& chart, const MapChart& data, SheetPlace place) {
  sheet.writeLine(place, chart.title, caption());
  sheet.writeLine({place.row + 1, place.column}, "Across: " + data.x.title);
  sheet.writeLine({place.row + 2, place.column}, "Down: " + data.y.title);
  const std::size_t columns = data.xValues.size();
  const std::size_t rows = data.yValues.size();
  if (columns > mostMapColumns) {
    sheet.writeLine({place.row + 3, place.column}, "The map is too wide to be drawn here.");
    return place.row + 5;
  }
  const std::size_t head = place.row + 3;
  Book::Look heading;
  heading.kind = Book::Look::Kind::head;
  sheet.write({head, place.column}, "", heading);
  for (std::size_t x = 0; x < columns; ++x)
    sheet.write({head, place.column + 1 + x}, data.xValues[x], data.x.style, heading);
  const bool coloured = !data.category.empty();
  for (std::size_t line = 0; line < rows; ++line) {
    const std::size_t y = rows - 1 - line;  // upwards
    sheet.write({head + 1 + line, place.column}, data.yValues[y], data.y.style, heading);
    for (std::size_t x = 0; x < columns; ++x) {
      const std::size_t cell = y * columns + x;
      Book::Look look;
      if (coloured && data.category[cell] < mostColours) look.fill = categoryColour(data.category[cell]);
      const SheetPlace at{head + 1 + line, place.column + 1 + x};
      if (cell < data.value.size()) {
        sheet.write(at, data.value[cell], data.valueStyle, look);
      } else if (coloured && data.category[cell] < data.categories.size()) {
        sheet.write(at, data.categories[data.category[cell]], look);
      }
    }
  }
  std::size_t row = head + 1 + rows;
  if (coloured) {
    ++row;
    for (std::size_t i = 0; i < data.categories.size(); ++i, ++row) {
      Book::Look look;
      if (i < mostColours) look.fill = categoryColour(i);
      sheet.write({row, place.column}, "", look);
      sheet.writeLine({row, place.column + 1}, data.categories[i]);
    }
  } else if (rows > 0 && columns > 0) {
    lxw_conditional_format colours{};
    colours.type = LXW_CONDITIONAL_3_COLOR_SCALE;
    colours.min_color = 0xF4C7B5;
    colours.mid_color = 0xFFF6D6;
    colours.max_color = 0x9CCB9A;
    require(worksheet_conditional_format_range(
        sheet.sheet(), static_cast<lxw_row_t>(head + 1), static_cast<lxw_col_t>(place.column + 1),
        static_cast<lxw_row_t>(head + rows), static_cast<lxw_col_t>(place.column + columns), &colours));
  }
  return row + 1;
}

}  // namespace

std::size_t putChart(Sheet& sheet, const Chart& chart, SheetPlace place) {
  if (const auto* const lines = std::get_if<LineChart>(&chart.data))
    return Lines(sheet, chart, *lines).put(place);
  if (const auto* const bars = std::get_if<BarChart>(&chart.data))
    return Bars(sheet, chart, *bars).put(place);
  return putMap(sheet, chart, std::get<MapChart>(chart.data), place);
}

}  // namespace verdalis
