#include "charts/ticks.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"
#include "text/powersOfTen.h"

namespace verdalis {
namespace {

constexpr double largest = 1e300;
constexpr double smallest = 1e-280;
constexpr double finest = 1e-10;  // the smallest part of a number that an axis shows
constexpr std::size_t mostTicks = 50;
constexpr int mostDecimals = 12;
constexpr double longest = 1e15;  // from here on numbers are written with an exponent

/// The smallest round step that needs no more than `most` ticks in a span.
double stepFor(const Span& span, std::size_t most) {
  const double least = span.length() / static_cast<double>(std::max<std::size_t>(most, 2));
  const double power = powerOfTen(decimalExponent(least));
  for (const double digit : {1.0, 2.0, 5.0, 10.0}) {
    if (digit * power >= least * (1 - finest)) return digit * power;
  }
  return 10 * power;
}

/// A unit for large numbers.
struct Unit {
  double size;
  const char* sign;
};

NumberStyle fitting(NumberStyle style, double step) {
  style.decimals = std::clamp(-decimalExponent(step * (1 + finest)), 0, mostDecimals);
  style.thousands = true;
  return style;
}

/// Whether every tick is a whole number of units, so that none is the same as another one or looks exact and
/// is not.
bool countsIn(const Unit& unit, double first, double step) {
  const auto whole = [&](double value) {
    const double count = value / unit.size;
    return std::abs(count - std::round(count)) < 1e-6;
  };
  return whole(first) && whole(step);
}

}  // namespace

bool canShow(double value) {
  return std::isfinite(value);
}

double held(double value) {
  const double bounded = std::clamp(value, -largest, largest);
  return std::abs(bounded) < smallest ? 0 : bounded;
}

Span spanOf(double low, double high) {
  Span span{held(std::min(low, high)), held(std::max(low, high))};
  const double size = std::max(std::abs(span.low), std::abs(span.high));
  if (span.length() > size * finest) return span;
  const double room = size > 0 ? size / 10 : 1;
  return {span.low - room, span.high + room};
}

std::vector<Tick> roundTicks(const Span& span, std::size_t most, const NumberStyle& style) {
  const double step = stepFor(span, std::min(most, mostTicks));
  const double first = std::ceil(span.low / step - 1e-6);
  std::vector<double> values;
  for (std::size_t i = 0; i < mostTicks; ++i) {
    const double value = (first + static_cast<double>(i)) * step;
    if (value > span.high + step * 1e-6) break;
    values.push_back(std::abs(value) < step / 2 ? 0 : value);
  }
  Unit unit{1, ""};
  const double size = std::max(std::abs(span.low), std::abs(span.high));
  if (style.thousands) {
    for (const Unit& one : {Unit{1e3, "k"}, Unit{1e6, "M"}, Unit{1e9, "G"}}) {
      if (size >= 10 * one.size && !values.empty() && countsIn(one, values.front(), step)) unit = one;
    }
  }
  NumberStyle written = fitting(style, step / unit.size);
  written.after = unit.sign + style.after;
  std::vector<Tick> ticks;
  ticks.reserve(values.size());
  for (const double value : values) {
    // Steps finer than any decimals that an axis has room for
    const bool fine = step < powerOfTen(-mostDecimals);
    ticks.push_back({value, fine ? style.before + generalText(value) + style.after
                                 : shortNumber(value / unit.size, written)});
  }
  return ticks;
}

Span roundSpan(const Span& span, std::size_t most) {
  const double step = stepFor(span, std::min(most, mostTicks));
  return {std::floor(span.low / step + 1e-6) * step, std::ceil(span.high / step - 1e-6) * step};
}

std::string shortNumber(double value, const NumberStyle& style) {
  if (!std::isfinite(value)) return {};
  if (std::abs(value) < longest) return styled(value, style);
  return style.before + generalText(value) + style.after;
}

}  // namespace verdalis
