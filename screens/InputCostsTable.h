#pragma once

#include "model/savedFields.h"
#include "screens/FieldTable.h"
#include "screens/InputCostsPane.h"

namespace verdalis {

/// The groups of the production cost pane, in display order.
enum InputCostsGroup {
  generalGroup,
  operationGroup,
  harvestGroup,
  forageHarvestGroup,
  standGroup,
  miscGroup,
  returnsGroup
};

/// How a number is shown when the pane opens.
enum class Shown {
  plain,
  /// With two decimals. A rate of 0.214 is shown as 0.21, and Apply stores 0.21. This is intended.
  money
};

/// What a change of a field recomputes.
enum class Recomputes { nothing, generalSubtotal, operationSubtotal };

/// A field of the production cost pane.
struct InputCostsField {
  FieldRow row;
  TextBox InputCostsPane::*box = nullptr;
  Label& (*unitControl)(InputCostsPane&) = nullptr;  ///< Label of the unit, if it is not fixed
  CostField figure;                                  ///< The cost or rate that it edits
  Shown shown = Shown::plain;
  Recomputes recomputes = Recomputes::nothing;
  CheckBox InputCostsPane::*optimal = nullptr;  ///< Ticked exactly while the field is empty
  bool inputCosts::*optimalFlag = nullptr;
};

}  // namespace verdalis
