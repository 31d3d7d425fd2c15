#include "controls/HelpButtons.h"

#include <string>
#include <utility>

namespace verdalis {

HelpButtons::HelpButtons(Frame& container, const std::vector<int>& indices) : indices_(indices) {
  for (const int index : indices) {
    auto button = std::make_unique<Button>(container, "cmdHelp(" + std::to_string(index) + ")", "?");
    button->onClick.connect([this, index] { onHelp(index); });
    buttons_.push_back(std::move(button));
  }
}

Button* HelpButtons::button(int index) const {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    if (indices_[i] == index) return buttons_[i].get();
  }
  return nullptr;
}

}  // namespace verdalis
