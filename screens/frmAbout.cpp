#include "screens/frmAbout.h"

#include "screens/frmWelcome.h"

namespace verdalis {
namespace {

// The build hands both numbers in.
constexpr const char* versionLine = "Version " VERDALIS_VERSION "  Build " VERDALIS_BUILD;

constexpr const char* contactLines =
    "Marlowe Institute\n"
    "Irrigation Decision Tools\n"
    "1 Station Road, Prairia\n"
    "Telephone 555-0100";

}  // namespace

frmAbout::frmAbout(Desk& desk) : Window(desk, "frmAbout") {
  setCaption("About Verdalis");
  lblVersion.setCaption(versionLine);
  lblDisclaimer.setCaption(disclaimer);
  lblContact.setCaption(contactLines);
  onClick = [this] { close(); };
  onDeactivate = [this] { close(); };
}

}  // namespace verdalis
