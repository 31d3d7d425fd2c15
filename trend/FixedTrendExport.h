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

/// What the export of a fixed trend shows.
struct FixedTrendExport {
  const TrendOptionArray& options;
  FieldCollection& SelectedOption;  ///< The option that the trend has re-priced

  /// Whether a process of the trend goes through a variable, with the crop of a field: such a variable has no
  /// value of its own to show.
  std::function<bool(std::int16_t variable, const std::string& cropType)> isTrended;

  std::string txtEff;  ///< Text of the irrigation efficiency, percent
  ClockTime today;
};

/// The variables that processes go through, with the rows of their crops.
[[nodiscard]] std::vector<Results::TrendedVariable> trendedVariables(
    const std::vector<BatchProcess>& processes);

/// Appends the whole page. \throws RunTimeError where something cannot be worked out; the lines before that
/// are in `text` by then.
void writeFixedTrend(const FixedTrendExport& trend, std::string& text);

}  // namespace verdalis
