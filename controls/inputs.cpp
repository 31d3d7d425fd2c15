#include "controls/inputs.h"

#include <algorithm>

namespace verdalis {

void TextBox::setText(const std::string& text) {
  before_ = text;
  edited_ = false;
  replace(text);
}

void TextBox::type(const std::string& text) {
  act([&] {
    const Life::Watch here(life());
    onKey();
    if (here.expired()) return;
    edited_ = edited_ || text != text_;
    replace(text);
  });
}

void TextBox::undo() {
  edited_ = false;
  replace(before_);
}

void TextBox::focused() {
  before_ = text_;
  edited_ = false;
}

void TextBox::replace(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  const Life::Watch here(life());
  changed();
  if (!here.expired()) onChange();
}

ComboBox::ComboBox(Frame& container, std::string name, Style style, std::vector<std::string> items,
                   const std::string& text)
    : Control(ControlKind::ComboBox, container, std::move(name)), style_(style), items_(std::move(items)) {
  replace(text);
}

void ComboBox::setText(const std::string& text) {
  replace(text);
}

void ComboBox::setIndex(int index) {
  if (index < 0) {
    index_ = -1;
    text_.clear();
    changed();
    return;
  }
  if (static_cast<std::size_t>(index) >= items_.size() || index == index_) return;
  select(index);
}

void ComboBox::clear() {
  items_.clear();
  text_.clear();
  index_ = -1;
  changed();
}

void ComboBox::addItem(const std::string& item) {
  items_.push_back(item);
  changed();
}

void ComboBox::type(const std::string& text) {
  if (style_ != Style::freeText) return;
  act([&] { replace(text); });
}

void ComboBox::pick(int index) {
  act([&] {
    if (index >= 0 && static_cast<std::size_t>(index) < items_.size()) select(index);
  });
}

void ComboBox::select(int index) {
  index_ = index;
  text_ = items_[static_cast<std::size_t>(index)];
  const Life::Watch here(life());
  changed();
  if (!here.expired() && enabled()) onClick();
}

void ComboBox::replace(const std::string& text) {
  if (text == text_) return;
  const auto entry = std::find(items_.begin(), items_.end(), text);
  const int before = index_;
  text_ = text;
  index_ = entry == items_.end() ? -1 : static_cast<int>(entry - items_.begin());
  const Life::Watch here(life());
  changed();
  if (here.expired()) return;
  onChange();
  if (!here.expired() && index_ >= 0 && index_ != before && enabled()) onClick();
}

void CheckBox::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

void CheckBox::setChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  const Life::Watch here(life());
  changed();
  if (!here.expired()) onClick();
}

void CheckBox::click() {
  act([this] { setChecked(!checked_); });
}

int OptionGroup::selected() const {
  for (std::size_t i = buttons_.size(); i-- > 0;) {
    if (buttons_[i]->checked()) return static_cast<int>(i);
  }
  return -1;
}

void OptionGroup::select(int index) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    if (static_cast<int>(i) != index) buttons_[i]->setChecked(false);
  }
  if (index >= 0 && static_cast<std::size_t>(index) < buttons_.size()) {
    buttons_[static_cast<std::size_t>(index)]->setChecked(true);
  }
}

OptionButton::OptionButton(Frame& container, std::string name, OptionGroup& group, std::string caption)
    : Control(ControlKind::OptionButton, container, std::move(name)),
      group_(group),
      caption_(std::move(caption)) {
  group.buttons_.push_back(this);
}

void OptionButton::setChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  const Life::Watch here(life());
  if (checked) {
    for (OptionButton* other : group_.buttons_) {
      if (other != this) other->setChecked(false);
    }
  }
  if (here.expired()) return;
  changed();
  if (!here.expired() && checked) onClick();
}

void OptionButton::click() {
  act([this] {
    if (checked_) {
      onClick();
    } else {
      setChecked(true);
    }
  });
}

}  // namespace verdalis
