#include "main/SavedInputsControls.h"

#include "main/frmMain.h"

namespace verdalis {

SavedInputsControls::SavedInputsControls(frmMain& window) : window_(window) {
  for (const auto& row : window.pneMain.cr)
    rowCrops_.push_back(row->Crop);
}

void SavedInputsControls::setText(std::string_view control, const std::string& text) {
  Control* found = window_.desk().find(control);
  if (auto* box = dynamic_cast<TextBox*>(found)) box->setText(text);
  if (auto* combo = dynamic_cast<ComboBox*>(found)) combo->setText(text);
}

void SavedInputsControls::chooseLandSplit(std::optional<int> index) {
  window_.pneMain.landSplits.select(index.value_or(-1));
}

GeneralInputs& SavedInputsControls::generalInputs() {
  return window_.generalInputs;
}

IrrigationCosts& SavedInputsControls::tempIrrigationCosts() {
  return *window_.tempIrrigationCosts;
}

void SavedInputsControls::refreshRows() {
  for (const auto& row : window_.pneMain.cr)
    row->refresh();
}

void SavedInputsControls::setTrendEnabled() {
  window_.TrendEnabled = true;
}

}  // namespace verdalis
