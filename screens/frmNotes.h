#pragma once

#include <string>

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/inputs.h"

namespace verdalis {

/// The window for the name of the farm, notes, and the adviser's line on reports.
class frmNotes : public Window {
 public:
  explicit frmNotes(Desk& desk);

  struct Texts {
    std::string name;
    std::string notes;  ///< Lines are separated by "\n"
    std::string letterhead;
  };

  Label lblFarmName{*this, "lblFarmName", "Name of the farm:"};
  TextBox txtFarmName{*this, "txtFarmName"};
  Label lblNotes{*this, "lblNotes", "Notes:"};
  TextBox txtNotes{*this, "txtNotes"};  ///< May have several lines
  Label lblLetterhead{*this, "lblLetterhead", "Your line on reports:"};
  TextBox txtLetterhead{*this, "txtLetterhead"};
  Button cmdApply{*this, "cmdApply", "Apply"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Opens the window with these texts.
  void show(const Texts& texts);

  Event<const Texts&> onApplied;
};

}  // namespace verdalis
