#pragma once

#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "engine/ProgramState.h"

namespace verdalis {

/// The window for the program's only option, the irrigation iteration factor. Apply sets it. Cancel and
/// losing the activation close the window without setting it.
class frmOptions : public Window {
 public:
  frmOptions(Desk& desk, ProgramState& state, Services& services);

  static constexpr const char* heading = "Options";

  Label Label1{*this, "Label1"};  ///< The explanation
  static constexpr const char* factorCaption = "Irrigation Iteration Factor";
  Label Label2{*this, "Label2", factorCaption};
  TextBox txtFineFactor{*this, "txtFineFactor", "10"};
  Button cmdApply{*this, "cmdApply", "Apply"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};
  Button cmdHelp{*this, "cmdHelp", "?"};

  /// Opens the window and shows the current factor.
  void show();

 private:
  void apply();

  ProgramState& state_;
  Services& services_;
};

}  // namespace verdalis
