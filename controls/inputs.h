#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// A text field for one line.
class TextBox : public Control {
 public:
  TextBox(Frame& container, std::string name, std::string text = {})
      : Control(ControlKind::TextBox, container, std::move(name)), text_(std::move(text)), before_(text_) {}

  [[nodiscard]] const std::string& text() const { return text_; }
  void setText(const std::string& text);

  /// User action: replace the text in one change.
  void type(const std::string& text);

  /// Whether the user has changed the text since the field got the focus or the program last set the text,
  /// whichever came later.
  [[nodiscard]] bool canUndo() const { return edited_; }

  /// Restores the text of that moment. After that there is nothing to undo.
  void undo();

  Event<> onChange;

  /// The user has pressed a key in the field. Raised before the text changes.
  Event<> onKey;

 protected:
  void focused() override;

 private:
  void replace(const std::string& text);

  std::string text_;
  std::string before_;
  bool edited_ = false;
};

/// A list from which one entry can be selected. With `Style::freeText` the user can type any other text.
class ComboBox : public Control {
 public:
  enum class Style { list, freeText };

  ComboBox(Frame& container, std::string name, Style style, std::vector<std::string> items = {},
           const std::string& text = {});

  [[nodiscard]] Style style() const { return style_; }
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }

  /// The index of the selected entry, from 0; -1 for none.
  [[nodiscard]] int index() const { return index_; }

  /// Sets the text and selects the first entry with this text, if there is one.
  void setText(const std::string& text);

  /// Selects an entry; -1 deselects it and clears the text.
  void setIndex(int index);

  /// Clears the list and the text without raising onChange or onClick.
  void clear();
  void addItem(const std::string& item);

  /// User actions: type a text (only with `Style::freeText`); select an entry.
  void type(const std::string& text);
  void pick(int index);

  Event<> onChange;  ///< The text has changed
  Event<> onClick;   ///< An entry has been selected; not raised while disabled

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

  /// User action: toggle the box.
  void click();
  Event<> onClick;

 private:
  std::string caption_;
  bool checked_;
};

class OptionButton;

/// A group of option buttons, of which at most one is checked.
class OptionGroup {
 public:
  /// The index of the checked button, the highest one if there are several; -1 for none.
  [[nodiscard]] int selected() const;

  /// Checks one button and unchecks the others; -1 unchecks all.
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

  /// Checking a button unchecks the others of its group.
  void setChecked(bool checked);

  /// User action: choose this option. Raises onClick even if it is already checked.
  void click();
  Event<> onClick;

 private:
  OptionGroup& group_;
  std::string caption_;
  bool checked_ = false;
};

}  // namespace verdalis
