#pragma once

#include <optional>
#include <string>

#include "document/FarmDocument.h"
#include "results/Results.h"
#include "screens/MainPane.h"

namespace verdalis {

/// Tells on the results page what has changed since the run before, and whether the inputs have changed since
/// the run; and marks the changed fields of the main page.
class SinceLastRun {
 public:
  SinceLastRun(Results& results, MainPane& pane) : results_(results), pane_(pane) {}

  /// A run has ended, and its options are on show. `inputs` are those that it was started with.
  void runEnded(const FarmInputs& inputs);

  /// The inputs are these now.
  void follow(const FarmInputs& inputs);

  /// Whether a run has ended since the farm was opened.
  [[nodiscard]] bool hasRun() const { return last_.has_value(); }

  /// Marks the fields of the main page that are not as in the last run.
  void mark(const FarmInputs& inputs);

  /// Another farm is opened: the next run has none before it.
  void forget();

 private:
  struct Run {
    FarmInputs inputs;
    double netReturn = 0;  ///< Of the best option, dollars per acre
  };

  Results& results_;
  MainPane& pane_;
  std::optional<Run> last_;
};

/// What differs between two inputs in words, such as "Corn $4.60 to $5.25, water 14 to 11 in"; empty if
/// nothing does. What is entered for a crop counts only if the crop is chosen. Of many differences the first
/// are told.
[[nodiscard]] std::string changesInWords(const FarmInputs& before, const FarmInputs& after);

}  // namespace verdalis
