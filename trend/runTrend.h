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

namespace verdalis {

/// A trend to run.
struct TrendRequest {
  /// The processes: one of a variable trend, up to two of a fixed one.
  std::vector<BatchProcess> processes;

  /// The option of a fixed trend; without fields the trend is a variable one.
  std::shared_ptr<FieldCollection> option = std::make_shared<FieldCollection>();
  std::string cropText;  ///< The crop's name for the headings

  [[nodiscard]] bool isVariable() const { return option->Count() == 0; }
};

/// What a trend has found.
struct TrendOutcome {
  std::vector<TrendEvaluation> evaluations;  ///< Of a variable trend: one for each value
  std::vector<TrendValue> values;            ///< Of a variable trend

  /// One for each value; one alone after a fixed trend. The first is packed, for it is the one that is shown.
  std::vector<BestMix> rankings;
  TrendOptionArray grid;  ///< Of a fixed trend: an option for each value or pair of values

  /// The options of the first ranking, without duplicates, placeholders behind.
  std::vector<BestMix::Option> shown;

  /// Those of the ranking at a place from 0. The rankings stay as they are.
  [[nodiscard]] std::vector<BestMix::Option> options(std::size_t place) const;
};

/// Why the trend would be too large, if it would be.
/// \throws RunTimeError (overflow) for a number of options to keep that is too large
[[nodiscard]] std::optional<Message> refuseTrend(const TrendRequest& request, const TrendInputs& inputs);

/// Runs a trend. A variable trend evaluates the live inputs once for each value; they keep the last one. A
/// fixed trend prices its option again with each value or pair of values. `trend` gets the processes and what
/// its named members keep.
/// \returns nothing when it was cancelled.
/// \throws RunTimeError; the progress window may then still be open
[[nodiscard]] std::optional<TrendOutcome> runTrend(const TrendRequest& request, TrendInputs& inputs,
                                                   ProgramState& state, TrendState& trend);

}  // namespace verdalis
