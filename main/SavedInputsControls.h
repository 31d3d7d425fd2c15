#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/SavedInputs.h"

namespace verdalis {

class frmMain;

/// Fills the controls and objects of the main window from the saved inputs.
class SavedInputsControls : public SavedInputsTarget {
 public:
  explicit SavedInputsControls(frmMain& window);

  void setText(std::string_view control, const std::string& text) override;
  void chooseLandSplit(std::optional<int> index) override;
  GeneralInputs& generalInputs() override;
  IrrigationCosts& tempIrrigationCosts() override;
  const std::vector<std::shared_ptr<Crop>>& rowCrops() override { return rowCrops_; }
  void refreshRows() override;
  void setTrendEnabled() override;

 private:
  frmMain& window_;
  std::vector<std::shared_ptr<Crop>> rowCrops_;
};

}  // namespace verdalis
