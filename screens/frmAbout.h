#pragma once

#include "controls/displays.h"

namespace verdalis {

/// The window with the version, the disclaimer and the contact. It closes on a click anywhere on it and when
/// it is deactivated.
class frmAbout : public Window {
 public:
  explicit frmAbout(Desk& desk);

  Image imgBanner{*this, "imgBanner"};
  Image imgLogo{*this, "imgLogo"};
  Label lblVersion{*this, "lblVersion"};
  Label lblDisclaimer{*this, "lblDisclaimer"};
  Label lblMoreInfo{*this, "lblMoreInfo", "For more information, contact:"};
  Label lblContact{*this, "lblContact"};  ///< Lines are separated by "\n"
};

}  // namespace verdalis
