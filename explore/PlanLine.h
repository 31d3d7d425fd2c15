#pragma once

#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlan.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// What one plan earns as one input of the farm varies: its crops, acres and depths stay.
class PlanLine {
 public:
  struct Point {
    Plan plan;
    double magnitude = 0;  ///< Returns and costs of the fields, all added as amounts without sign, dollars
  };

  /// `option` is a plan of the farm that holds the crops that it was priced with.
  PlanLine(const Farm& farm, const FarmInput& input, const FieldCollection& option);

  /// The plan with the input at a value, priced to the last bit as an evaluation prices it.
  /// \throws RunTimeError as that does
  [[nodiscard]] Point at(double value) const;

 private:
  struct PlannedDepth {
    double acres;
    double depth;  ///< Net inches
  };

  Farm farm_;  ///< Its crops are those of the fields, in order
  FarmInput input_;
  std::vector<PlannedDepth> fields_;
};

}  // namespace verdalis
