#pragma once

#include <string>
#include <utility>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// Base of the controls that show a caption.
class Captioned : public Control {
 public:
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

 protected:
  Captioned(ControlKind kind, Frame& container, std::string name, std::string caption)
      : Control(kind, container, std::move(name)), caption_(std::move(caption)) {}

 private:
  std::string caption_;
};

class Label : public Captioned {
 public:
  Label(Frame& container, std::string name, std::string caption = {})
      : Captioned(ControlKind::Label, container, std::move(name), std::move(caption)) {}
};

class Button : public Captioned {
 public:
  Button(Frame& container, std::string name, std::string caption)
      : Captioned(ControlKind::Button, container, std::move(name), std::move(caption)) {}

  /// User action: click the button.
  void click();
  Event<> onClick;
};

/// A menu in the menu bar, or an entry of a menu. It never takes the focus.
class MenuEntry : public Captioned {
 public:
  MenuEntry(Frame& container, std::string name, std::string caption, MenuEntry* menu = nullptr)
      : Captioned(ControlKind::MenuEntry, container, std::move(name), std::move(caption)), menu_(menu) {}

  /// The menu that contains this entry; nullptr for a menu in the menu bar.
  [[nodiscard]] MenuEntry* menu() const { return menu_; }

  [[nodiscard]] bool checked() const { return checked_; }
  void setChecked(bool checked);

  void click();
  Event<> onClick;

 private:
  MenuEntry* menu_;
  bool checked_ = false;
};

/// A progress bar from 0 to its maximum.
class ProgressBar : public Control {
 public:
  ProgressBar(Frame& container, std::string name)
      : Control(ControlKind::ProgressBar, container, std::move(name)) {}

  [[nodiscard]] double value() const { return value_; }
  [[nodiscard]] double maximum() const { return maximum_; }
  void setValue(double value);
  void setMaximum(double maximum);

 private:
  double value_ = 0;
  double maximum_ = 100;
};

/// A scroll bar with a position from 0 to its maximum.
class ScrollBar : public Control {
 public:
  ScrollBar(Frame& container, std::string name)
      : Control(ControlKind::ScrollBar, container, std::move(name)) {}

  [[nodiscard]] int value() const { return value_; }
  [[nodiscard]] int maximum() const { return maximum_; }
  void setValue(int value);
  void setMaximum(int maximum);

  int smallStep = 1;
  int largeStep = 1;

  /// User action: scroll to a position, limited to the ends of the bar. Takes the focus only if the position
  /// changes.
  void scroll(int value);
  Event<> onChange;

 private:
  int value_ = 0;
  int maximum_ = 0;
};

class Image : public Control {
 public:
  Image(Frame& container, std::string name) : Control(ControlKind::Image, container, std::move(name)) {}
};

}  // namespace verdalis
