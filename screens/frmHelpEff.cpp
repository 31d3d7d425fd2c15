#include "screens/frmHelpEff.h"

namespace verdalis {

frmHelpEff::frmHelpEff(Desk& desk) : Window(desk, "frmHelpEff") {
  setCaption("Help - Irrigation Efficiency");
  Command2.onClick.connect([this] { close(); });
  onDeactivate.connect([this] { close(); });
}

}  // namespace verdalis
