#pragma once

#include <memory>
#include <vector>

#include "controls/Event.h"
#include "controls/displays.h"

namespace verdalis {

/// The "?" buttons on one pane. Their indices are those of the main window's array of "?" buttons; a click
/// raises `onHelp` with the index.
class HelpButtons {
 public:
  HelpButtons(Frame& container, const std::vector<int>& indices);

  Event<int> onHelp;

  [[nodiscard]] const std::vector<std::unique_ptr<Button>>& buttons() const { return buttons_; }

  /// The button with an index; nullptr if the pane does not have it.
  [[nodiscard]] Button* button(int index) const;

 private:
  std::vector<int> indices_;
  std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace verdalis
