#include "screens/InputCostsPane.h"

#include <utility>

#include "controls/ask.h"
#include "model/StockCrops.h"
#include "model/checked.h"
#include "model/stockCosts.h"
#include "screens/InputCostsTable.h"
#include "screens/modInputTest.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view moneyPattern = "###,##0.00";

std::string subtotalText(double dollarsPerAcre, std::string_view what) {
  return "$" + formatNumber(checked(dollarsPerAcre, what), moneyPattern) + " / ac";
}

/// Sets a flag during its lifetime, while several fields are set.
class Hold {
 public:
  explicit Hold(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  ~Hold() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

InputCostsPane::InputCostsPane(Frame& window, Services& services)
    : Frame(window, "pneInputCosts"), services_(services) {
  frmICAlf.setVisible(false);
  frmICAlf2.setVisible(false);
  lblAnnualized.setVisible(false);
  wire();
}

void InputCostsPane::wire() {
  for (const InputCostsField& field : fields()) {
    TextBox& box = this->*field.box;
    wireField(box, field.row, services_.messageBox, [this] { return cropType(); });
    hints.add(box, fieldName(field.row), field.box == &InputCostsPane::txtStand);
    if (field.recomputes != Recomputes::nothing) box.onChange.connect([this, &field] { boxChanged(field); });
  }
  cmdDefault.onClick.connect([this] { showDefaults(); });
  Command13.onClick.connect([this] { clear(); });
  Command6.onClick.connect([this] { apply(); });
  cmdCancel.onClick.connect([this] { onBack(); });
  cmdHelp.onHelp.connect([this](int index) { onHelp(index); });
}

void InputCostsPane::boxChanged(const InputCostsField& field) {
  // A typed rate replaces the optimal one; an empty field means the optimal rate.
  if (field.optimal != nullptr) (this->*field.optimal).setChecked((this->*field.box).text().empty());
  if (filling_) return;
  if (field.recomputes == Recomputes::generalSubtotal) {
    showGeneralSubtotal();
  } else {
    showOperationSubtotal();
  }
}

void InputCostsPane::open(std::shared_ptr<Crop> crop) {
  if (!crop) {
    throw RunTimeError(ErrorNumber::invalidCall,
                       "This row has no crop, so it has no production costs. Check the folder of crops.");
  }
  // Set first: if a later step fails, nothing may be applied to the previous crop.
  activeCrop = std::move(crop);
  {
    const Hold hold(filling_);
    fill(*activeCrop);
    emptyZeroTexts(window());
  }
  showSubtotals();
  unapplied_.opened();
  hints.refresh();
}

void InputCostsPane::fill(const Crop& crop) {
  // Only stock crops have defaults and optimal rates.
  cmdDefault.setEnabled(!crop.Custom);
  cmdDefault.setCaption("Load Default " + crop.cropType + " Values");
  lblHeader.setCaption("Production Costs for " + crop.cropType);
  lblApplicationCosts.setCaption(crop.isForage() ? crop.cropType + " Operation Costs" : "Operation Costs");
  frmICAlf.setVisible(crop.isForage());
  frmICAlf2.setVisible(crop.isForage());
  lblAnnualized.setVisible(crop.isForage());
  showUnits(crop);

  const inputCosts& costs = crop.inputCosts;
  for (const InputCostsField& field : fields()) {
    const bool forageOnly = field.row.group == forageHarvestGroup || field.row.group == standGroup;
    if (forageOnly && !crop.isForage()) continue;
    std::string text = field.shown == Shown::money ? formatNumber(field.figure.value(costs), moneyPattern)
                                                   : field.figure.text(costs);
    if (field.box == &InputCostsPane::txtSeedRate && costs.SeedOptimal) text.clear();
    (this->*field.box).setText(text);
    if (field.optimal != nullptr) {
      CheckBox& optimal = this->*field.optimal;
      optimal.setEnabled(!crop.Custom);
      optimal.setChecked(costs.*field.optimalFlag);
    }
  }
}

void InputCostsPane::showUnits(const Crop& crop) {
  const bool byPound = isSeedPricedByPound(cropKind(crop.cropType));
  lblSeedRate.setCaption(byPound ? "lb/acre" : "seeds/acre");
  lblSeedUnits.setCaption(byPound ? "/lb" : "/1000 seeds");
  lblUnits.setCaption(crop.cropUnitsArray[1]);
  for (Label& label : lblperunits)
    label.setCaption("/ " + crop.cropUnitsArray[0]);
}

void InputCostsPane::showGeneralSubtotal() {
  const double nitrogen = Val(txtNitrogenCost.text()) * Val(txtNitrogenApplied.text());
  const double phosphorus = Val(txtPCost.text()) * Val(txtPApplied.text());
  const double divisor = isSeedPricedByPound(cropKind(cropType())) ? 1 : 1000;
  const double seed = Val(txtSeedRate.text()) / divisor * Val(txtSeedCost.text());
  lblGICTOTAL.setCaption(
      subtotalText(nitrogen + phosphorus + seed + Val(txtHerbicide.text()) + Val(txtInsecticide.text()),
                   "The subtotal of the general input costs"));
}

void InputCostsPane::showOperationSubtotal() {
  const double sum = Val(txtFertilizerApplication.text()) + Val(txtHerbicideApplication.text()) +
                     Val(txtInsecticideApplication.text()) + Val(txtPlanting.text()) + Val(txtTillage.text());
  lblOC.setCaption(subtotalText(sum, "The subtotal of the operation costs"));
}

void InputCostsPane::showSubtotals() {
  showOperationSubtotal();
  showGeneralSubtotal();
}

void InputCostsPane::showDefaults() {
  {
    const Hold hold(filling_);
    for (const InputCostsField& field : fields()) {
      if (field.optimal == nullptr) continue;
      (this->*field.box).setText("");
      (this->*field.optimal).setChecked(true);
    }
    const CropKind kind = cropKind(cropType());
    for (const InputCostsField& field : fields()) {
      const char* const text = defaultCost(kind, field.figure).text;
      if (text != nullptr) (this->*field.box).setText(text);
    }
  }
  showSubtotals();
}

void InputCostsPane::clear() {
  {
    const Hold hold(filling_);
    emptyTexts(*this);
    emptyTexts(frmICAlf);
    emptyTexts(frmICAlf2);
    // Clearing the rates has just ticked these boxes.
    chkNOptimal.setChecked(false);
    chkPOptimal.setChecked(false);
    chkSeedOptimal.setChecked(false);
  }
  showSubtotals();
}

void InputCostsPane::store(int group) {
  inputCosts& costs = activeCrop->inputCosts;
  for (const InputCostsField& field : fields()) {
    if (field.row.group != group) continue;
    field.figure.set(costs, Val((this->*field.box).text()));
    if (field.optimal != nullptr) costs.*field.optimalFlag = (this->*field.optimal).checked();
  }
}

void InputCostsPane::apply() {
  if (!activeCrop) return;
  store(generalGroup);
  store(operationGroup);
  if (activeCrop->isForage()) {
    // Values stored before the error stay stored. This is intended.
    if (!isNumeric(txtStand.text())) {
      ask(desk(), services_.messageBox,
          {defaultTitle, "Please enter a 'Life of Stand' value for the Forage crop", MessageKind::refusal,
           MessageIcon::critical});
      return;
    }
    store(standGroup);
    store(forageHarvestGroup);
  } else {
    store(harvestGroup);
  }
  store(returnsGroup);
  store(miscGroup);
  onApplied();
}

}  // namespace verdalis
