#include "screens/frmHelpEff.h"

namespace verdalis {

frmHelpEff::frmHelpEff(Desk& desk) : Window(desk, "frmHelpEff") {
  setCaption("Help - Irrigation Efficiency");
  Command2.onClick = [this] { close(); };
  onDeactivate = [this] { close(); };
}

}  // namespace verdalis
