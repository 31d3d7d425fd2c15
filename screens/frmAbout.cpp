#include "screens/frmAbout.h"

#include "screens/frmWelcome.h"
#include "text/version.h"

namespace verdalis {
namespace {

constexpr const char* contactLines =
    "Marlowe Institute\n"
    "Irrigation Decision Tools\n"
    "1 Station Road, Prairia\n"
    "Telephone 555-0100";

}  // namespace

frmAbout::frmAbout(Desk& desk) : Window(desk, "frmAbout") {
  setCaption("About Verdalis");
  lblVersion.setCaption("Version " + versionNumber() + "  Build " + buildNumber());
  lblDisclaimer.setCaption(disclaimer);
  lblContact.setCaption(contactLines);
  onClick.connect([this] { close(); });
  onDeactivate.connect([this] { close(); });
}

}  // namespace verdalis
