#pragma once

#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "engine/ProgramState.h"

namespace verdalis {

/// The window of the program's one option, the irrigation iteration factor. It is set only by Apply; the
/// window closes without setting it by Cancel and when it loses the activation.
class frmOptions : public Window {
 public:
  frmOptions(Desk& desk, ProgramState& state, Services& services);

  static constexpr const char* heading = "Options";

  Label Label1{*this, "Label1"};  ///< The explanation
  Label Label2{*this, "Label2", "Irrigation Iteration Factor"};
  TextBox txtFineFactor{*this, "txtFineFactor", "10"};
  Button cmdApply{*this, "cmdApply", "Apply"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};
  Button cmdHelp{*this, "cmdHelp", "?"};

  /// Opens the window with the factor in force.
  void show();

 private:
  void apply();

  ProgramState& state_;
  Services& services_;
};

}  // namespace verdalis
