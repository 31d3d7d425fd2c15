#include "screens/frmWelcome.h"

#include "screens/modHelp.h"

namespace verdalis {

// The unusual spelling is kept: the text has always been shown this way.
const char* const disclaimer =
    "This program was written for use as a tool to help with allocating irrigation water over a specified "
    "acreage "
    "with varying crops.  Neither the programmers nor Marlowe Institute are to be held responsibile for the "
    "information generated from this program.";

frmWelcome::frmWelcome(Desk& desk, Services& services) : Window(desk, "frmWelcome") {
  setCaption("Welcome");
  lblDisclaimer.setCaption(disclaimer);
  lblTrend.setCaption(
      "Trend processing is an extension of VDL that permits entry of a range of values for an input variable "
      "(commodity price, maximum yield, production costs, irrigation system efficiency, and irrigation "
      "costs). Trend "
      "processing should be attempted only after the user becomes familiar with execution of VDL for one "
      "scenario at "
      "a time.");
  lblTurnOn.setCaption(
      "Turn on this option by selecting Tools->Enable Trend Processing once the program starts");
  Command1.onClick.connect([this] { onStart(); });
  Command4.onClick.connect([this] { onStartWithTrends(); });
  Command3.onClick.connect([this] { onAbout(); });
  cmdHelp.onClick.connect([&services] { showHelpTopic(services.help, "batchoption.htm"); });
  Command2.onClick.connect([&services] { showHelpTopic(services.help, "index.htm"); });
}

}  // namespace verdalis
