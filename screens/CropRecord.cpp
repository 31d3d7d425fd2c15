#include "screens/CropRecord.h"

#include "model/StockCrops.h"
#include "screens/modInputTest.h"
#include "screens/rangeTest.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Only stock crops have limits; nullptr for any other crop.
const RowLimits* limitsOf(const Crop& crop) {
  const StockCrop* const stock = stockCrop(cropKind(crop.cropType));
  return stock != nullptr ? &stock->limits : nullptr;
}

}  // namespace

std::optional<std::string> priceFault(const Crop& crop, const std::string& text) {
  const RowLimits* const limits = limitsOf(crop);
  if (limits == nullptr) return std::nullopt;
  return rangeFault(text, limits->price, "Crop Price - " + crop.cropType);
}

std::optional<std::string> maxYieldFault(const Crop& crop, const std::string& text) {
  const RowLimits* const limits = limitsOf(crop);
  if (limits == nullptr) return std::nullopt;
  return rangeFault(text, limits->maxYield, "Maximum Yield - " + crop.cropType);
}

CropRecord::CropRecord(Frame& container, int index, MessageBoxService& messageBox)
    : Frame(container, "cr(" + std::to_string(index) + ")", Scope::named), messageBox_(messageBox) {
  chkCrop.onClick.connect([this] { showActivity(); });
  cmdInputCosts.onClick.connect([this] { onInputCosts(); });
  // While typing, a price that is not a number yet leaves the crop's price unchanged, but an incomplete yield
  // stores its leading digits. Both are intended.
  txtPrice.onChange.connect([this] {
    if (Crop && isNumeric(txtPrice.text())) Crop->price = toDouble(txtPrice.text());
  });
  txtMaxYield.onChange.connect([this] {
    if (Crop) Crop->maxYield = getMaxYield();
  });
  wireTest(txtPrice, priceFault);
  wireTest(txtMaxYield, maxYieldFault);
  showActivity();
}

void CropRecord::loadInfo(const std::string& crop, const std::string& priceUnits,
                          const std::string& /*inputCostUnits*/, const std::string& yieldUnits) {
  const bool fallow = cropKind(crop) == CropKind::fallow;
  chkCrop.setCaption(crop);
  lblPriceUnits.setCaption(fallow ? "" : priceUnits);
  txtPrice.setVisible(!fallow);
  txtMaxYield.setVisible(!fallow);
  lblYieldUnits.setCaption(yieldUnits);
}

double CropRecord::getPrice() const {
  return Val(txtPrice.text());
}

void CropRecord::setPrice(double price) {
  txtPrice.setText(generalText(price));
}

void CropRecord::setMaxYield(double yield) {
  txtMaxYield.setText(generalText(yield));
}

double CropRecord::getMaxYield() const {
  return Val(txtMaxYield.text());
}

void CropRecord::setDefault(double price, double yield) {
  txtPrice.setText(formatNumber(price, "#0.00"));
  txtMaxYield.setText(generalText(yield));
}

void CropRecord::refresh() {
  if (!Crop) return;
  // Read before txtPrice changes, because that writes the price back into the crop.
  const std::string yield = generalText(Crop->maxYield);
  txtPrice.setText(formatNumber(Crop->price, "#,##0.00"));
  txtMaxYield.setText(yield);
}

void CropRecord::showActivity() {
  const bool active = isActive();
  background.setVisible(active);
  for (Control* control : controls())
    control->setEnabled(active);
  chkCrop.setEnabled(true);
}

void CropRecord::wireTest(TextBox& box, Test* test) {
  box.onLeave.connect([this, &box, test] {
    if (!Crop) return;
    if (const auto fault = test(*Crop, box.text())) showInputError(*fault, box, messageBox_);
  });
}

}  // namespace verdalis
