#pragma once

#include <memory>
#include <string>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/displays.h"
#include "model/Field.h"

namespace verdalis {

/// A row of the results screen: what one field of the option on show grows, uses and earns.
class ResultHolder : public Frame {
 public:
  ResultHolder(Frame& container, const std::string& name);

  std::shared_ptr<Field> theField = std::make_shared<Field>();  ///< A copy of its own of the field on show

  // In the order of the columns.
  Label lblAcres{*this, "lblAcres"};
  Label lblCrop{*this, "lblCrop"};
  Label lblYield{*this, "lblYield"};
  Label lblGross{*this, "lblGross"};
  Label lblNet{*this, "lblNet"};
  Label lblTC{*this, "lblTC"};
  Label lblTR{*this, "lblTR"};
  Label lblProfit{*this, "lblProfit"};
  Button cmdDetails{*this, "cmdDetails", "Details"};

  /// The details of theField are asked for.
  Event<const std::shared_ptr<Field>&> onDetails;

  /// Shows a copy of the field. A figure that cannot be calculated leaves its label as it was.
  void loadField(const Field& field);

  /// Switches the button to the details off.
  void inactive();
};

}  // namespace verdalis
