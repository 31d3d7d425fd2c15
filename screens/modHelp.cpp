#include "screens/modHelp.h"

#include "controls/ask.h"

namespace verdalis {

const std::vector<HelpAction>& helpActions() {
  static const std::vector<HelpAction> actions{
      {0, "mainInput.htm#TotalAcres", {}},
      {1, "irrigationCosts.htm", {}},
      {2, "maininput.htm#efficiency", {}},
      {3, "mainInput.htm#Rainfall", {}},
      {4, "maininput.htm#seasonalirrig", {}},
      {5, "maininput.htm#GrossWater", {}},
      {6, "maininput.htm#landsplit", {}},
      {7, "irrigationcosts.htm#lift", {}},
      {8, "irrigationcosts.htm#repair", {}},
      {9, "maininput.htm#maxyield", {}},
      {10, "maininput.htm#priceperunit", {}},
      {11, "inputcosts.htm#general", {}},
      {12, "inputcosts.htm#returns", {}},
      {13, "inputcosts.htm#operation", {}},
      {14, "inputcosts.htm#default", {}},
      {15, "irrigationcosts.htm#gpm", {}},
      {16, "irrigationcosts.htm#hours", {}},
      {17, "irrigationcosts.htm#psi", {}},
      {18, "irrigationcosts.htm#fueltype", {}},
      {19, "irrigationcosts.htm#fuelcost", {}},
      {20, "irrigationcosts.htm#labor", {}},
      {21, "inputcosts.htm#misc", {}},
      {22, "optimalNRates.htm", {}},
      {23, "optimalPRates.htm", {}},
      {24, "optimalSeedRates.htm", {}},
      {25,
       "",
       {"Add a Trend Process",
        "There is a limit of 2 variables that can be run in a trend process.  Add a variable to process by "
        "clicking "
        "the 'Add trend process'.",
        1725}},
      {26,
       "",
       {"Crop selection",
        "The crops from the chosen option are presented in the list.  Select a crop and association variable "
        "below "
        "it, or choose another variable to the right",
        1725}},
      {27,
       "",
       {"Custom Crops",
        "Yield data may be entered for user specified crops in the table provided.  Each yield entry "
        "corresponds to "
        "the net irrigation and rainfall needed to produce that yield. Each custom crop will be added to the "
        "main "
        "input page of VDL.  A blank crop production cost page, either for a grain or forage crop, will be "
        "furnished "
        "for each custom crop.",
        3000}},
      {28, "inputcosts.htm#general", {}},
      {29, "", {}},
  };
  return actions;
}

frmHelp::frmHelp(Desk& desk) : Window(desk, "frmHelp") {
  setCaption("Help Screen");
  imgMap.setVisible(false);
  imgLift.setVisible(false);
  Command1.onClick.connect([this] { close(); });
  onDeactivate.connect([this] { close(); });
}

void showHelpTopic(HelpService& help, const std::string& topic) {
  help.showTopic(topic);
}

void showHelpNote(frmHelp& window, const std::string& text, const std::string& title, int height) {
  window.open();
  window.height = height;
  window.buttonTop = height - 1000;
  window.lblOutput.setCaption(text);
  window.setCaption("Help - " + title);
  window.onNote({title, text, height});
}

void openWithShell(Desk& desk, Services& services, const std::filesystem::path& path) {
  if (services.openFile.open(path)) return;
  ask(desk, services.messageBox,
      {defaultTitle,
       "The file " + path.string() +
           " could not be opened by the Verdalis.  Please open the file manually by finding it on your hard "
           "drive.",
       MessageKind::failure, MessageIcon::none, MessageButtons::ok});
}

}  // namespace verdalis
