#pragma once

#include <memory>
#include <vector>

#include "controls/Event.h"
#include "controls/displays.h"

namespace verdalis {

/// Some of the "?" buttons of the main window, by their index, on the pane that they stand on. A press raises
/// `onHelp` with the index.
class HelpButtons {
 public:
  HelpButtons(Frame& container, const std::vector<int>& indices);

  Event<int> onHelp;

  [[nodiscard]] const std::vector<std::unique_ptr<Button>>& buttons() const { return buttons_; }

 private:
  std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace verdalis
