#pragma once

#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlan.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The profit of one plan as a function of one input of the farm. Its crops, acres and depths are fixed.
class PlanLine {
 public:
  struct Point {
    Plan plan;
    double magnitude = 0;  ///< Sum of the absolute returns and costs of the fields, dollars
  };

  /// `option` is a plan of the farm, with the crops used to price it.
  PlanLine(const Farm& farm, const FarmInput& input, const FieldCollection& option);

  /// The plan at a value of the input, priced exactly as by an evaluation.
  /// \throws RunTimeError if the evaluation would
  [[nodiscard]] Point at(double value) const;

 private:
  struct PlannedDepth {
    double acres;
    double depth;  ///< Net inches
  };

  Farm farm_;  ///< With the crops of the fields, in order
  FarmInput input_;
  std::vector<PlannedDepth> fields_;
};

}  // namespace verdalis
