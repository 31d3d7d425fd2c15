#include "trend/trendCharts.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "results/figures.h"
#include "text/numbers.h"
#include "trend/exportText.h"

namespace verdalis {
namespace {

const NumberStyle dollars{"$", "", 0, true};
constexpr const char* netReturn = "Net return per acre";

std::string titleOf(const TrendedInput& input) {
  // A variable of the whole farm has a blank where the crop would stand.
  const std::size_t begin = std::min(input.name.find_first_not_of(' '), input.name.size());
  const std::string unit = input.units[0] + input.units[1];
  return input.name.substr(begin) + (unit.empty() ? "" : " (" + unit + ")");
}

/// The unit stands in the title; only signs stand beside the numbers.
ChartAxis axisOf(const TrendedInput& input) {
  return {titleOf(input), {input.units[0], input.units[1] == "%" ? "%" : "", 2, true}};
}

double netReturnOf(FieldCollection& option) {
  return perAcre(option.getProfit(), acresOf(option));
}

bool hasFields(const BestMix::Option& option) {
  return option != nullptr && option->Count() > 0;
}

std::string cropsOf(const FieldCollection& option) {
  std::string text;
  for (const auto& field : option) {
    if (!text.empty()) text += ", ";
    text += field->theCrop->cropType;
  }
  return text;
}

/// The indices of numbers from the smallest to the largest number, each number once.
std::vector<std::size_t> ascending(const std::vector<double>& values) {
  std::vector<std::size_t> order(values.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });
  order.erase(std::unique(order.begin(), order.end(),
                          [&](std::size_t a, std::size_t b) { return values[a] == values[b]; }),
              order.end());
  return order;
}

std::string money(double value) {
  return styled(value, dollars);
}

std::string times(std::size_t count) {
  return count == 1 ? "once" : std::to_string(count) + " times";
}

/// Steps in the order of their values.
class VariableTrend {
 public:
  VariableTrend(const std::vector<TrendBest>& steps, const TrendedInput& input)
      : steps_(steps), x_(axisOf(input)) {
    std::vector<double> values;
    values.reserve(steps.size());
    for (const TrendBest& step : steps)
      values.push_back(step.value);
    for (const std::size_t step : ascending(values)) {
      if (hasFields(steps[step].best)) order_.push_back(step);
    }
  }

  Chart chart(std::optional<std::size_t> shown) {
    LineChart data{x_, {"", dollars}, {{}}, {}, {}, ChartStrip{}};
    Chart result{"Best net return per acre", {}, {}, {{x_.title, netReturn, "Crops"}}};
    std::string before;
    std::size_t changes = 0;
    for (std::size_t i = 0; i < order_.size(); ++i) {
      FieldCollection& best = *steps_[order_[i]].best;
      const double value = steps_[order_[i]].value;
      const double profit = netReturnOf(best);
      const std::string crops = cropsOf(best);
      data.lines[0].points.push_back({value, profit, order_[i]});
      data.strip->boxes.push_back({edge(i), edge(i + 1), categoriesOf(best, data.categories)});
      if (i > 0 && crops != before) {
        ++changes;
        data.markers.push_back({ChartMarker::Kind::change, edge(i), crops});
      }
      before = crops;
      result.table.push_back({styled(value, x_.style), money(profit), crops});
    }
    if (shown && *shown < steps_.size()) {
      data.markers.push_back(
          {ChartMarker::Kind::now, steps_[*shown].value, "step " + std::to_string(*shown + 1)});
    }
    if (!order_.empty()) result.summary = summary(data.lines[0].points, changes);
    result.data = std::move(data);
    return result;
  }

 private:
  /// The number that divides a step from the one before it; at the ends, as far out as within.
  [[nodiscard]] double edge(std::size_t i) const {
    const auto value = [&](std::size_t place) { return steps_[order_[place]].value; };
    const std::size_t count = order_.size();
    if (count == 1) return value(0);
    if (i == 0) return value(0) - (value(1) - value(0)) / 2;
    if (i == count) return value(count - 1) + (value(count - 1) - value(count - 2)) / 2;
    return value(i - 1) / 2 + value(i) / 2;
  }

  static std::vector<std::size_t> categoriesOf(const FieldCollection& option,
                                               std::vector<std::string>& names) {
    std::vector<std::size_t> categories;
    for (const auto& field : option) {
      const std::string& crop = field->theCrop->cropType;
      auto found = std::find(names.begin(), names.end(), crop);
      if (found == names.end()) found = names.insert(found, crop);
      categories.push_back(static_cast<std::size_t>(found - names.begin()));
    }
    return categories;
  }

  [[nodiscard]] std::string summary(const std::vector<ChartLine::Point>& points, std::size_t changes) const {
    const ChartLine::Point& first = points.front();
    const ChartLine::Point& last = points.back();
    const bool level = std::all_of(points.begin(), points.end(), [&](const ChartLine::Point& point) {
      return money(point.y) == money(first.y);
    });
    return "From " + styled(first.x, x_.style) + " to " + styled(last.x, x_.style) +
           (level ? " the best net returns are all at " + money(first.y)
                  : " the best net return goes from " + money(first.y) + " to " + money(last.y)) +
           " per acre. " +
           (changes == 0 ? "The crops stay the same." : "The crops change " + times(changes) + ".");
  }

  const std::vector<TrendBest>& steps_;
  ChartAxis x_;
  std::vector<std::size_t> order_;
};

/// A process of a fixed trend, told by one of its options.
TrendedInput inputOf(const FieldCollection& option, std::size_t process) {
  if (process >= option.theVariable.size() || process >= option.theUnits.size()) return {};
  return {option.theVariable[process], option.theUnits[process]};
}

double valueOf(const FieldCollection& option, std::size_t process) {
  return process < option.theValue.size() ? option.theValue[process] : 0;
}

/// Net returns are told of copies, because pricing stores sums in an option.
double netReturnAt(const TrendOptionArray& options, std::size_t row, std::size_t column) {
  FieldCollection copy = options.at(row, column)->Copy();
  return netReturnOf(copy);
}

std::string rangeText(double low, double high) {
  if (money(low) == money(high)) return "The net returns per acre are all at " + money(low) + ".";
  return "The net return per acre is from " + money(low) + " to " + money(high) + ".";
}

FixedTrendChart lineOf(const TrendOptionArray& options, const std::vector<std::size_t>& rows) {
  const ChartAxis x = axisOf(inputOf(*options.at(0, 0), 0));
  FixedTrendChart result{{"Net return per acre of this option", {}, {}, {{x.title, netReturn}}}, {}};
  LineChart data{x, {"", dollars}, {{}}, {}, {}, {}};
  std::vector<ChartLine::Point>& points = data.lines[0].points;
  for (const std::size_t row : rows) {
    points.push_back({valueOf(*options.at(row, 0), 0), netReturnAt(options, row, 0), result.options.size()});
    result.options.emplace_back(row, 0);
    result.chart.table.push_back({styled(points.back().x, x.style), money(points.back().y)});
  }
  const auto [low, high] = std::minmax_element(points.begin(), points.end(),
                                               [](const auto& a, const auto& b) { return a.y < b.y; });
  result.chart.summary = rangeText(low->y, high->y);
  result.chart.data = std::move(data);
  return result;
}

FixedTrendChart mapOf(const TrendOptionArray& options, const std::vector<std::size_t>& rows,
                      const std::vector<std::size_t>& columns) {
  const ChartAxis x = axisOf(inputOf(*options.at(0, 0), 0));
  const ChartAxis y = axisOf(inputOf(*options.at(0, 0), 1));
  FixedTrendChart result{{"Net return per acre of this option", {}, {}, {{y.title + " / " + x.title}}}, {}};
  MapChart data{x, y, {}, {}, {}, {}, {}, dollars, {}, true};
  for (const std::size_t row : rows) {
    data.xValues.push_back(valueOf(*options.at(row, 0), 0));
    result.chart.table[0].push_back(styled(data.xValues.back(), x.style));
  }
  for (const std::size_t column : columns) {
    data.yValues.push_back(valueOf(*options.at(0, column), 1));
    std::vector<std::string>& line =
        result.chart.table.emplace_back(std::vector<std::string>{styled(data.yValues.back(), y.style)});
    for (const std::size_t row : rows) {
      data.value.push_back(netReturnAt(options, row, column));
      result.options.emplace_back(row, column);
      line.push_back(money(data.value.back()));
    }
  }
  const auto [low, high] = std::minmax_element(data.value.begin(), data.value.end());
  result.chart.summary = rangeText(*low, *high);
  result.chart.data = std::move(data);
  return result;
}

}  // namespace

Chart variableTrendChart(const std::vector<TrendBest>& steps, const TrendedInput& input,
                         std::optional<std::size_t> shown) {
  return VariableTrend(steps, input).chart(shown);
}

FixedTrendChart fixedTrendChart(const TrendOptionArray& options) {
  std::vector<double> first;
  for (std::size_t i = 0; i < options.rows(); ++i)
    first.push_back(valueOf(*options.at(i, 0), 0));
  if (options.dimensions() < 2) return lineOf(options, ascending(first));
  std::vector<double> second;
  for (std::size_t j = 0; j < options.columns(); ++j)
    second.push_back(valueOf(*options.at(0, j), 1));
  return mapOf(options, ascending(first), ascending(second));
}

}  // namespace verdalis
