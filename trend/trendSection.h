#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "handout/Handout.h"
#include "model/FieldCollection.h"
#include "trend/TrendState.h"
#include "trend/runTrend.h"
#include "trend/trendCharts.h"

namespace verdalis {

// The results of trends for reports and workbooks. Nothing is stored in an option. What cannot be worked out
// is left empty.

/// A step of a variable trend with all its options, best first.
struct TrendedStep {
  double value = 0;
  double efficiency = 0;  ///< Of its run, as a fraction
  std::vector<std::shared_ptr<FieldCollection>> options;
};

/// The steps of a variable trend, each with its own efficiency. Does not change the outcome.
[[nodiscard]] std::vector<TrendedStep> stepsOf(const TrendOutcome& outcome);

/// The best net return by the value of a variable trend: a row for each step, and the chart.
/// \param rows the most rows; nothing for all
[[nodiscard]] HandoutSection variableTrendSection(const std::vector<TrendedStep>& steps,
                                                  const TrendedInput& input,
                                                  std::optional<std::size_t> rows = std::nullopt);

/// Each field of each option of each step.
[[nodiscard]] HandoutSection variableTrendFieldsSection(const std::vector<TrendedStep>& steps,
                                                        const TrendedInput& input);

/// The net return of the option of a fixed trend: a row for each value or pair of values, and the chart.
/// \param rows the most rows; nothing for all
[[nodiscard]] HandoutSection fixedTrendSection(const TrendOptionArray& options, double efficiency,
                                               std::optional<std::size_t> rows = std::nullopt);

/// Each field of the option for each value or pair of values.
[[nodiscard]] HandoutSection fixedTrendFieldsSection(const TrendOptionArray& options, double efficiency);

}  // namespace verdalis
