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

/// One evaluation of a variable trend: its value, its efficiency and its size.
struct TrendEvaluation {
  double value = 0;       ///< The value of the trend
  double efficiency = 0;  ///< Irrigation efficiency as a fraction
  std::size_t waterSplits = 0;
  std::uint64_t cropCombinations = 0;
};

/// Runs the trend processes of a TrendState on the live inputs or on the selected option, and stores the
/// outcome in the TrendState.
class TrendExecution {
 public:
  /// `cropText` is the name of the crop for the headings.
  TrendExecution(TrendInputs& inputs, ProgramState& state, TrendState& trend, std::string cropText)
      : inputs_(inputs), state_(state), trend_(trend), cropText_(std::move(cropText)) {}

  /// Sets a value in the live inputs. First clears the costs with which an earlier value replaced others.
  /// \throws RunTimeError (subscript) if the crop no longer exists
  void UpdateVariable(std::int16_t cropRowIndex, std::int16_t variableIndex, double value);

  /// A copy of an option with a value set and described. If the option does not contain the crop, only the
  /// description changes.
  /// \throws RunTimeError
  [[nodiscard]] FieldCollection UpdateOption(std::int16_t cropRowIndex, std::int16_t variableIndex,
                                             double value, FieldCollection option);

  /// Runs a variable trend: one evaluation for each value of the first process. The live inputs keep the last
  /// value.
  /// \returns false if it was cancelled; BatchCollection then contains the rankings so far.
  /// \throws RunTimeError
  [[nodiscard]] bool runVariable();

  /// The evaluations of the last variable trend that was not cancelled.
  [[nodiscard]] const std::vector<TrendEvaluation>& evaluations() const { return evaluations_; }

  /// Runs a fixed trend: ranks the selected option with every value of the first process, or with every pair
  /// of values of both processes.
  ///
  /// A cancel with one process leaves the progress window open and CancelRequested set, which stops the next
  /// fixed trend at its first step. A cancel between the values of the second process closes the window and
  /// clears the flag. This difference is intended.
  /// \returns false if it was cancelled; no outcome is stored then.
  /// \throws RunTimeError; the progress window may still be open then
  [[nodiscard]] bool runFixed();

 private:
  /// A process with its indices as integers.
  struct Outline {
    std::int16_t row;
    std::int16_t variable;
    std::vector<TrendValue> values;
  };

  /// The options of a fixed trend before they are ranked.
  class Candidates {
   public:
    /// Adds a copy of an option and prices it.
    /// \throws RunTimeError
    void submit(const FieldCollection& option);

    /// Ranks all options. `size` is their number.
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
