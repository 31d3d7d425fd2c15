#include "screens/ScenarioInputs.h"

#include <algorithm>

#include "model/checked.h"
#include "text/numbers.h"

namespace verdalis {

double CropRowInput::getPrice() const {
  return Val(txtPrice);
}
double CropRowInput::getMaxYield() const {
  return Val(txtMaxYield);
}

bool ready(const ScenarioInputs& inputs) {
  const bool fieldsGood = !inputs.txtArea.empty() && !inputs.txtMax.empty() && !inputs.lblVolume.empty() &&
                          isNumeric(inputs.txtAnnRain);
  const bool selectionGood =
      std::any_of(inputs.cr.begin(), inputs.cr.end(), [](const CropRowInput& row) { return row.isActive; });
  return fieldsGood && selectionGood;
}

std::string volumeText(const std::string& txtArea, const std::string& txtMax) {
  return formatNumber(checked(Val(txtArea) * Val(txtMax), "The gross water volume"), "###,###");
}

void getVolume(ScenarioInputs& inputs) {
  inputs.lblVolume = volumeText(inputs.txtArea, inputs.txtMax);
}

}  // namespace verdalis
