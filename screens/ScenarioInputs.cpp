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

void getVolume(ScenarioInputs& inputs) {
  const double volume = checked(Val(inputs.txtArea) * Val(inputs.txtMax), "The gross water volume");
  inputs.lblVolume = formatNumber(volume, "###,###");
}

}  // namespace verdalis
