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

  /// The button of an index; nullptr where the pane has none.
  [[nodiscard]] Button* button(int index) const;

 private:
  std::vector<int> indices_;
  std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace verdalis
