#pragma once

#include <memory>
#include <string>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/displays.h"
#include "model/Field.h"

namespace verdalis {

/// A row of the results screen: crop, water, costs and returns of one field of the shown option.
class ResultHolder : public Frame {
 public:
  ResultHolder(Frame& container, const std::string& name);

  std::shared_ptr<Field> theField = std::make_shared<Field>();  ///< A copy of the shown field

  // In column order.
  Label lblAcres{*this, "lblAcres"};
  Label lblCrop{*this, "lblCrop"};
  Label lblYield{*this, "lblYield"};
  Label lblGross{*this, "lblGross"};
  Label lblNet{*this, "lblNet"};
  Label lblTC{*this, "lblTC"};
  Label lblTR{*this, "lblTR"};
  Label lblProfit{*this, "lblProfit"};
  Button cmdDetails{*this, "cmdDetails", "Details"};

  /// The user requests the details of theField.
  Event<const std::shared_ptr<Field>&> onDetails;

  /// Shows a copy of a field. The label of a figure that cannot be calculated keeps its old caption.
  void loadField(const Field& field);

  /// Disables the details button.
  void inactive();
};

}  // namespace verdalis
