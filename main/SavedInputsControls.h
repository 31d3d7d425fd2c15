#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/SavedInputs.h"

namespace verdalis {

class frmMain;

/// The main window's controls and objects, as the reader of the saved inputs fills them.
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
