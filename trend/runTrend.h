#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/services.h"
#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "model/FieldCollection.h"
#include "trend/BatchProcess.h"
#include "trend/TrendExecution.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"
#include "trend/TrendValues.h"

namespace verdalis {

/// A trend to run.
struct TrendRequest {
  /// The processes: one for a variable trend, up to two for a fixed trend.
  std::vector<BatchProcess> processes;

  /// The option of a fixed trend. Without fields, the trend is variable.
  std::shared_ptr<FieldCollection> option = std::make_shared<FieldCollection>();
  std::string cropText;  ///< Name of the crop for the headings

  [[nodiscard]] bool isVariable() const { return option->Count() == 0; }
};

/// The outcome of a trend.
struct TrendOutcome {
  std::vector<TrendEvaluation> evaluations;  ///< One per value of a variable trend
  std::vector<TrendValue> values;            ///< The values of a variable trend

  /// One ranking per value; only one after a fixed trend. The first is packed because it is shown.
  std::vector<BestMix> rankings;
  TrendOptionArray grid;  ///< An option per value or pair of values of a fixed trend

  /// The options of the first ranking without duplicates, followed by placeholders.
  std::vector<BestMix::Option> shown;

  /// The options of a ranking (from 0). Does not change the rankings.
  [[nodiscard]] std::vector<BestMix::Option> options(std::size_t place) const;
};

/// The refusal of a trend that is too large; nothing if it is not.
/// \throws RunTimeError (overflow) if the number of options to keep is too large
[[nodiscard]] std::optional<Message> refuseTrend(const TrendRequest& request, const TrendInputs& inputs,
                                                 double mostOptions = mostOptionsKept);

/// Runs a trend. A variable trend evaluates the live inputs once per value; they keep the last value. A fixed
/// trend prices its option again with each value or pair of values. Stores the processes, the option and the
/// outcome in `trend`.
/// \returns nothing if it was cancelled.
/// \throws RunTimeError; the progress window may still be open then
[[nodiscard]] std::optional<TrendOutcome> runTrend(const TrendRequest& request, TrendInputs& inputs,
                                                   ProgramState& state, TrendState& trend);

}  // namespace verdalis
