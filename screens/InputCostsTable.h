#pragma once

#include "model/savedFields.h"
#include "screens/FieldTable.h"
#include "screens/InputCostsPane.h"

namespace verdalis {

/// The groups of the production cost pane, in its order.
enum InputCostsGroup {
  generalGroup,
  operationGroup,
  harvestGroup,
  forageHarvestGroup,
  standGroup,
  miscGroup,
  returnsGroup
};

/// How a figure is shown when the pane opens.
enum class Shown {
  plain,
  /// With two decimals. A rate of 0.214 is shown as 0.21 and stored so when it is applied: meant.
  money
};

/// What a change of a field recomputes.
enum class Recomputes { nothing, generalSubtotal, operationSubtotal };

/// One field of the production cost pane.
struct InputCostsField {
  FieldRow row;
  TextBox InputCostsPane::*box = nullptr;
  Label& (*unitControl)(InputCostsPane&) = nullptr;  ///< The label behind it, where the unit is not fixed
  CostField figure;                                  ///< A number
  Shown shown = Shown::plain;
  Recomputes recomputes = Recomputes::nothing;
  CheckBox InputCostsPane::*optimal = nullptr;  ///< Ticked while the field is empty, cleared while it is not
  bool inputCosts::*optimalFlag = nullptr;
};

}  // namespace verdalis
