#pragma once

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/services.h"

namespace verdalis {

/// The first window of the program.
class frmWelcome : public Window {
 public:
  frmWelcome(Desk& desk, Services& services);

  Label lblDisclaimer{*this, "lblDisclaimer"};
  Label lblTrend{*this, "lblTrend"};
  Label lblTurnOn{*this, "lblTurnOn"};
  Button Command1{*this, "Command1", "Start the Verdalis"};
  Button Command4{*this, "Command4", "Start the Verdalis with Trend Processing"};
  Button cmdHelp{*this, "cmdHelp", "Learn more"};
  Button Command2{*this, "Command2", "Verdalis Help"};
  Button Command3{*this, "Command3", "About Verdalis"};

  Event<> onStart;
  Event<> onStartWithTrends;
  Event<> onAbout;
};

/// The disclaimer, also shown in the About window.
extern const char* const disclaimer;

}  // namespace verdalis
