#include "controls/HelpButtons.h"

#include <string>
#include <utility>

namespace verdalis {

HelpButtons::HelpButtons(Frame& container, const std::vector<int>& indices) {
  for (const int index : indices) {
    auto button = std::make_unique<Button>(container, "cmdHelp(" + std::to_string(index) + ")", "?");
    button->onClick.connect([this, index] { onHelp(index); });
    buttons_.push_back(std::move(button));
  }
}

}  // namespace verdalis
