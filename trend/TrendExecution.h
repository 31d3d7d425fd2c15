#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/services.h"
#include "engine/ProgramState.h"
#include "model/FieldCollection.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"

namespace verdalis {

/// One evaluation of a variable trend: what it went through, and the efficiency that it ran with.
struct TrendEvaluation {
  double value = 0;       ///< The value of the trend
  double efficiency = 0;  ///< Irrigation efficiency as a fraction
  std::size_t waterSplits = 0;
  std::uint64_t cropCombinations = 0;
};

/// Runs the trend processes of a TrendState on live inputs or on the selected option, and leaves the outcome
/// in it.
class TrendExecution {
 public:
  /// `cropText` is the crop's name for the headings.
  TrendExecution(TrendInputs& inputs, ProgramState& state, TrendState& trend, std::string cropText)
      : inputs_(inputs), state_(state), trend_(trend), cropText_(std::move(cropText)) {}

  /// Puts one value into the live inputs, after clearing the costs that an earlier value may have replaced.
  /// \throws RunTimeError (subscript) for a crop that is not there any more
  void UpdateVariable(std::int16_t cropRowIndex, std::int16_t variableIndex, double value);

  /// Puts one value into a copy of an option, with its description. An option without the crop changes in
  /// nothing but its description. \throws RunTimeError
  [[nodiscard]] FieldCollection UpdateOption(std::int16_t cropRowIndex, std::int16_t variableIndex,
                                             double value, FieldCollection option);

  /// A variable trend: one evaluation for each value of the first process. The live inputs keep the last
  /// value. \returns false when it was cancelled; the rankings so far are then in BatchCollection.
  /// \throws RunTimeError
  [[nodiscard]] bool runVariable();

  /// The evaluations of the last variable trend that ended.
  [[nodiscard]] const std::vector<TrendEvaluation>& evaluations() const { return evaluations_; }

  /// A fixed trend: the selected option with every value of the first process, or every pair of values of
  /// both, in one ranking. \returns false when it was cancelled; no outcome is kept then. A cancel with one
  /// process leaves the progress window open and CancelRequested on, which stops the next fixed trend at its
  /// first step; a cancel between the values of the second process closes it and clears the flag. That
  /// difference is meant. \throws RunTimeError; the progress window may then still be open
  [[nodiscard]] bool runFixed();

 private:
  /// A process with its indices as they are used.
  struct Outline {
    std::int16_t row;
    std::int16_t variable;
    std::vector<TrendValue> values;
  };

  /// The options of a fixed trend until they are ranked.
  class Candidates {
   public:
    /// Takes a copy of an option and prices it. \throws RunTimeError
    void submit(const FieldCollection& option);

    /// All of them as a ranking of that size, which is their number.
    [[nodiscard]] BestMix rank(std::int16_t size);

   private:
    std::vector<BestMix::Option> options_;
  };

  [[nodiscard]] Outline outline(std::size_t process) const;
  void pump();
  void step();
  void name(const char* label, bool ofCrop);
  [[nodiscard]] FieldCollection apply(const Outline& process, std::size_t i, const FieldCollection& option);
  [[nodiscard]] bool runSecond(const FieldCollection& outer, std::size_t i, const Outline& second,
                               Candidates& candidates, TrendOptionArray& options);

  TrendInputs& inputs_;
  ProgramState& state_;
  TrendState& trend_;
  std::string cropText_;
  std::vector<TrendEvaluation> evaluations_;
};

}  // namespace verdalis
