#pragma once

#include "controls/displays.h"

namespace verdalis {

/// The window that tells the version, the disclaimer and whom to ask. It closes by a click anywhere on it and
/// when it loses the activation.
class frmAbout : public Window {
 public:
  explicit frmAbout(Desk& desk);

  Image imgBanner{*this, "imgBanner"};
  Image imgLogo{*this, "imgLogo"};
  Label lblVersion{*this, "lblVersion"};
  Label lblDisclaimer{*this, "lblDisclaimer"};
  Label lblMoreInfo{*this, "lblMoreInfo", "For more information, contact:"};
  Label lblContact{*this, "lblContact"};  ///< Its lines are parted by "\n"
};

}  // namespace verdalis
