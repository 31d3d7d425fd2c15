#pragma once

#include <string>
#include <vector>

#include "charts/Chart.h"

namespace verdalis {

/// The values that an axis shows, which may be any finite numbers. It is never empty, and its length is
/// finite.
struct Span {
  double low = 0;
  double high = 0;
  [[nodiscard]] double length() const { return high - low; }
};

/// A number that an axis can hold: a finite one, within bounds that keep differences finite.
[[nodiscard]] bool canShow(double value);
[[nodiscard]] double held(double value);

/// A span from any two ends; one of a single value is widened.
[[nodiscard]] Span spanOf(double low, double high);

struct Tick {
  double value = 0;
  std::string text;
};

/// Round values inside a span, `most` or fewer, at least two if `most` allows. They are written in a style,
/// thousands shortly if that loses nothing: "$40k".
[[nodiscard]] std::vector<Tick> roundTicks(const Span& span, std::size_t most, const NumberStyle& style);

/// The span widened to round values.
[[nodiscard]] Span roundSpan(const Span& span, std::size_t most);

/// A number in a style; a very large one with an exponent.
[[nodiscard]] std::string shortNumber(double value, const NumberStyle& style);

}  // namespace verdalis
