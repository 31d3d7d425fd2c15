#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "controls/services.h"
#include "model/FieldCollection.h"
#include "results/Results.h"
#include "trend/BatchProcess.h"
#include "trend/TrendState.h"

namespace verdalis {

/// The content of the export of a fixed trend.
struct FixedTrendExport {
  const TrendOptionArray& options;
  FieldCollection& SelectedOption;  ///< The option that the trend priced again

  /// Whether the trend varies a variable for the crop of a field. Such a variable has no single value to
  /// show.
  std::function<bool(std::int16_t variable, const std::string& cropType)> isTrended;

  std::string txtEff;  ///< Text of the irrigation efficiency, percent
  ClockTime today;
};

/// The variables that processes vary, with the rows of their crops.
[[nodiscard]] std::vector<Results::TrendedVariable> trendedVariables(
    const std::vector<BatchProcess>& processes);

/// Appends the whole page to `text`.
/// \throws RunTimeError if a figure cannot be calculated; the lines before it are already appended
void writeFixedTrend(const FixedTrendExport& trend, std::string& text);

}  // namespace verdalis
