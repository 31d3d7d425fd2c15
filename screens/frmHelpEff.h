#pragma once

#include <array>
#include <string_view>

#include "controls/displays.h"

namespace verdalis {

/// An irrigation system and its typical efficiency.
struct SystemEfficiency {
  std::string_view system;
  std::string_view efficiency;
};

/// The window with the efficiencies of irrigation systems. It closes with its button and when it is
/// deactivated. No command opens it.
class frmHelpEff : public Window {
 public:
  explicit frmHelpEff(Desk& desk);

  static constexpr std::array<SystemEfficiency, 8> efficiencies{{
      {"Average surface irrigation", "50%"},
      {"Surface with surge valve", "60%"},
      {"Surface with tailwater recovery", "70%"},
      {"Surface with surge valve and tailwater recovery", "80%"},
      {"Sprinkler with heads on top of mainline", "85%"},
      {"Sprinkler with heads at top of canopy", "88%"},
      {"Sprinkler with heads in canopy", "90%"},
      {"Drip irrigation", "95%"},
  }};

  Button Command2{*this, "Command2", "Close"};
};

}  // namespace verdalis
