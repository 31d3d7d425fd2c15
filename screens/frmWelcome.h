#pragma once

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/services.h"

namespace verdalis {

/// The window that the program starts with.
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

/// What the program must not be held responsible for; the About window says it too.
extern const char* const disclaimer;

}  // namespace verdalis
