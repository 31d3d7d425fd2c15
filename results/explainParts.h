#pragma once

#include <string>

#include "model/PricedField.h"
#include "results/ExplainedSteps.h"

namespace verdalis {

// The stretches of the way to the net return of a field; see explainField().

/// A field with its prices.
struct ExplainedField {
  FieldPlan plan;
  const Crop& crop;
  const IrrigationCosts& plant;
  double efficiency;  ///< Fraction
  PricedField priced;
  CostParts parts;
};

/// Gross and net water.
void explainWater(ExplainedSteps& steps, const ExplainedField& field);

/// The cells of the yield table, and the yield.
void explainYield(ExplainedSteps& steps, const ExplainedField& field);

/// Each production cost, and their sum.
void explainProduction(ExplainedSteps& steps, const ExplainedField& field);

/// What pumping costs.
void explainIrrigation(ExplainedSteps& steps, const ExplainedField& field);

/// A yield with its unit per acre, such as "184.4 bu./ac".
[[nodiscard]] std::string yieldText(const Crop& crop, double yield);

/// The unit of a yield, such as "bu./ac"; empty where the crop has none.
[[nodiscard]] std::string yieldUnit(const Crop& crop);

}  // namespace verdalis
