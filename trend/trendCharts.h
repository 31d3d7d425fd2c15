#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "charts/Chart.h"
#include "engine/BestMix.h"
#include "model/FieldCollection.h"
#include "trend/TrendState.h"

namespace verdalis {

/// The variable of a trend as an axis tells it: "Corn Crop Price ($/ bu.)".
struct TrendedInput {
  std::string name;
  UnitsPair units;
};

/// A step of a variable trend.
struct TrendBest {
  double value = 0;
  BestMix::Option best;  ///< nullptr or without fields if nothing was kept
};

/// The best net return per acre by the value of a variable trend, with the crops below and a mark wherever
/// the crops change. A click picks the step, counted from 0 in the given order. `shown` is the step on show.
/// \throws RunTimeError (overflow) if a net return cannot be told
[[nodiscard]] Chart variableTrendChart(const std::vector<TrendBest>& steps, const TrendedInput& input,
                                       std::optional<std::size_t> shown);

/// The chart of a fixed trend, and which option each pick chooses.
struct FixedTrendChart {
  Chart chart;
  std::vector<std::pair<std::size_t, std::size_t>> options;  ///< Row and column of the option by pick
};

/// The net return per acre by the values of a fixed trend: a line for one process, a map for two.
/// \throws RunTimeError (overflow) if a net return cannot be told
[[nodiscard]] FixedTrendChart fixedTrendChart(const TrendOptionArray& options);

}  // namespace verdalis
