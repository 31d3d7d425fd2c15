#include "controls/displays.h"

#include <algorithm>

namespace verdalis {

void Captioned::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

void Button::click() {
  act([this] { onClick(); });
}

void MenuEntry::setChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  changed();
}

void MenuEntry::click() {
  act([this] { onClick(); }, false);
}

void ProgressBar::setValue(double value) {
  value_ = value;
  changed();
}

void ProgressBar::setMaximum(double maximum) {
  maximum_ = maximum;
  changed();
}

void ScrollBar::setValue(int value) {
  const int inside = std::clamp(value, 0, maximum_);
  if (inside == value_) return;
  value_ = inside;
  const Life::Watch here(life());
  changed();
  if (!here.expired()) onChange();
}

void ScrollBar::setMaximum(int maximum) {
  maximum_ = std::max(maximum, 0);
  const Life::Watch here(life());
  changed();
  if (!here.expired()) setValue(value_);
}

void ScrollBar::scroll(int value) {
  const bool moves = std::clamp(value, 0, maximum_) != value_;
  act([&] { setValue(value); }, moves);
}

}  // namespace verdalis
