#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// A field for one line of text.
class TextBox : public Control {
 public:
  TextBox(Frame& container, std::string name, std::string text = {})
      : Control(ControlKind::TextBox, container, std::move(name)), text_(std::move(text)), before_(text_) {}

  [[nodiscard]] const std::string& text() const { return text_; }
  void setText(const std::string& text);

  /// A person replaces the text in one change.
  void type(const std::string& text);

  /// Whether a person has changed the text since the focus came or the program last set it.
  [[nodiscard]] bool canUndo() const { return edited_; }

  /// Back to the text of that moment; nothing to undo is left.
  void undo();

  Event<> onChange;

  /// A person has pressed a key in it, before the change.
  Event<> onKey;

 protected:
  void focused() override;

 private:
  void replace(const std::string& text);

  std::string text_;
  std::string before_;
  bool edited_ = false;
};

/// A list of texts, of which one can be selected; with free text any other can be typed.
class ComboBox : public Control {
 public:
  enum class Style { list, freeText };

  ComboBox(Frame& container, std::string name, Style style, std::vector<std::string> items = {},
           const std::string& text = {});

  [[nodiscard]] Style style() const { return style_; }
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }

  /// The selected entry, from 0; -1 for none.
  [[nodiscard]] int index() const { return index_; }

  /// Shows the text; that of an entry selects the first such entry.
  void setText(const std::string& text);

  /// Selects an entry, or with -1 none, which empties the text.
  void setIndex(int index);

  /// Empties list and text, without an event.
  void clear();
  void addItem(const std::string& item);

  /// A person types (only with free text) or selects an entry.
  void type(const std::string& text);
  void pick(int index);

  Event<> onChange;  ///< The text has changed
  Event<> onClick;   ///< An entry has been selected; not while disabled

 private:
  void replace(const std::string& text);
  void select(int index);

  Style style_;
  std::vector<std::string> items_;
  std::string text_;
  int index_ = -1;
};

class CheckBox : public Control {
 public:
  CheckBox(Frame& container, std::string name, std::string caption, bool checked = false)
      : Control(ControlKind::CheckBox, container, std::move(name)),
        caption_(std::move(caption)),
        checked_(checked) {}

  [[nodiscard]] const std::string& caption() const { return caption_; }
  [[nodiscard]] bool checked() const { return checked_; }
  void setCaption(const std::string& caption);
  void setChecked(bool checked);

  /// A person toggles it.
  void click();
  Event<> onClick;

 private:
  std::string caption_;
  bool checked_;
};

class OptionButton;

/// Option buttons of which at most one is on.
class OptionGroup {
 public:
  /// The index of the button that is on, the highest if there were several; -1 for none.
  [[nodiscard]] int selected() const;

  /// Turns one button on and the others off; with -1 all off.
  void select(int index);

  [[nodiscard]] const std::vector<OptionButton*>& buttons() const { return buttons_; }

 private:
  friend class OptionButton;
  std::vector<OptionButton*> buttons_;
};

class OptionButton : public Control {
 public:
  OptionButton(Frame& container, std::string name, OptionGroup& group, std::string caption);

  [[nodiscard]] const std::string& caption() const { return caption_; }
  [[nodiscard]] bool checked() const { return checked_; }

  /// Turning it on turns the others of its group off.
  void setChecked(bool checked);

  /// A person chooses it.
  void click();
  Event<> onClick;

 private:
  OptionGroup& group_;
  std::string caption_;
  bool checked_ = false;
};

}  // namespace verdalis
