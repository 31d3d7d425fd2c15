#include "screens/frmOptions.h"

#include <optional>
#include <string>

#include "controls/ask.h"
#include "screens/fineFactor.h"
#include "screens/modHelp.h"

namespace verdalis {
namespace {

constexpr const char* explanation =
    "This feature defines how many irrigation allocation calculations are executed by VDL for each selected "
    "crop. The default “irrigation allocation iteration factor” is 10. As the “irrigation allocation "
    "iteration factor” is increased more VDL calculates more net returns and results are “finer” iterations "
    "of water allocations to each crop. For example, an “irrigation allocation iteration factor” with a "
    "value of 10, tells VDL to calculate net returns for each of 10% increment of the input water allocation "
    "(e.g. 12 inches of water is divided into equal units of 1.2 inches). An “irrigation allocation "
    "iteration factor” with a value of 5 tells VDL to calculate net returns for each increment 20% of input "
    "water allocation (e.g. 12 inches of water is divided into equal units of 2.4 inches). If more crops are "
    "compared at once with more land splits, VDL execution time will increase dramatically.";

}  // namespace

frmOptions::frmOptions(Desk& desk, ProgramState& state, Services& services)
    : Window(desk, "frmOptions"), state_(state), services_(services) {
  setCaption("Options");
  Label1.setCaption(explanation);
  cmdApply.onClick.connect([this] { apply(); });
  cmdCancel.onClick.connect([this] { close(); });
  cmdHelp.onClick.connect([this] { showHelpTopic(services_.help, "mainInput.htm#SplitFactor"); });
  onDeactivate.connect([this] { close(); });
}

void frmOptions::show() {
  txtFineFactor.setText(std::to_string(state_.FineFactor));
  open();
}

void frmOptions::apply() {
  const FineFactorEntry entry = readFineFactor(txtFineFactor.text());
  if (entry.factor) state_.FineFactor = *entry.factor;
  if (entry.message) ask(desk(), services_.messageBox, *entry.message);
  if (entry.factor) close();
}

}  // namespace verdalis
