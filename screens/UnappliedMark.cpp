#include "screens/UnappliedMark.h"

#include "controls/inputs.h"

namespace verdalis {
namespace {

void collect(const Frame& frame, std::vector<std::string>& inputs) {
  for (const Control* control : frame.controls()) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) inputs.push_back(box->text());
    if (const auto* combo = dynamic_cast<const ComboBox*>(control)) inputs.push_back(combo->text());
    if (const auto* check = dynamic_cast<const CheckBox*>(control))
      inputs.emplace_back(check->checked() ? "1" : "");
    if (const auto* inner = dynamic_cast<const Frame*>(control)) collect(*inner, inputs);
  }
}

std::vector<std::string> inputsOf(const Frame& page) {
  std::vector<std::string> inputs;
  collect(page, inputs);
  return inputs;
}

}  // namespace

UnappliedMark::UnappliedMark(Frame& page, Label& label) : page_(page), label_(label) {
  label_.setVisible(false);
  acts_ = page.desk().onSettled.connectScoped([this] { refresh(); });
}

void UnappliedMark::opened() {
  inForce_ = inputsOf(page_);
  label_.setVisible(false);
}

void UnappliedMark::refresh() {
  if (page_.visible()) label_.setVisible(inputsOf(page_) != inForce_);
}

}  // namespace verdalis
