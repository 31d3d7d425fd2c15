#include "screens/modInputTest.h"

#include "controls/ask.h"
#include "screens/rangeTest.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

template <class WithText>
void emptyText(WithText& control) {
  try {
    control.setText("");
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the text is empty by then
  }
}

/// Empties a text field or free-text combo box if `counts` returns true for its text.
template <class Counts>
void emptyIf(Control& control, Counts counts) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    if (counts(box->text())) emptyText(*box);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (combo->style() == ComboBox::Style::freeText && counts(combo->text())) emptyText(*combo);
  }
}

}  // namespace

void testInput(TextBox* control, double limit, const std::string& label, MessageBoxService& messageBox) {
  if (control == nullptr) return;
  if (const auto fault = rangeFault(control->text(), limit, label)) {
    showInputError(*fault, *control, messageBox);
  }
}

void showInputError(const std::string& message, TextBox& control, MessageBoxService& messageBox) {
  ask(control.desk(), messageBox, {"Input error", message, MessageKind::refusal, MessageIcon::exclamation});
  try {
    if (control.canUndo()) control.undo();
  } catch (const RunTimeError&) {
    // A handler of the restored text failed. The text and the focus are restored anyway.
    control.desk().moveFocus(control);
    throw;
  }
  control.desk().moveFocus(control);
}

void emptyZeroTexts(Frame& window) {
  for (Control* control : window.controls()) {
    emptyIf(*control, [](const std::string& text) { return text == "0"; });
    if (auto* frame = dynamic_cast<Frame*>(control)) emptyZeroTexts(*frame);
  }
}

void emptyTexts(Frame& frame) {
  for (Control* control : frame.controls())
    emptyIf(*control, [](const std::string&) { return true; });
}

}  // namespace verdalis
