#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>

#include "controls/Event.h"
#include "controls/HelpButtons.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "model/Crop.h"
#include "screens/FieldTable.h"
#include "screens/PageHints.h"
#include "screens/UnappliedMark.h"

namespace verdalis {

struct InputCostsField;

/// The pane for the production costs of one crop. Edits stay in its fields until Command6 stores them in the
/// crop.
class InputCostsPane : public Frame {
 public:
  InputCostsPane(Frame& window, Services& services);

  std::shared_ptr<Crop> activeCrop;  ///< The crop that the pane was last opened for; nullptr before

  Label lblHeader{*this, "lblHeader"};

  // General input costs
  TextBox txtNitrogenApplied{*this, "txtNitrogenApplied"};
  TextBox txtNitrogenCost{*this, "txtNitrogenCost"};
  CheckBox chkNOptimal{*this, "chkNOptimal", "Use optimal yield based nitrogen rate"};
  TextBox txtPApplied{*this, "txtPApplied"};
  TextBox txtPCost{*this, "txtPCost"};
  CheckBox chkPOptimal{*this, "chkPOptimal", "Use optimal yield based phosphorus rate"};
  TextBox txtSeedRate{*this, "txtSeedRate"};
  Label lblSeedRate{*this, "lblSeedRate"};
  TextBox txtSeedCost{*this, "txtSeedCost"};
  Label lblSeedUnits{*this, "lblSeedUnits"};
  CheckBox chkSeedOptimal{*this, "chkSeedOptimal", "Use optimal yield based seeding rate"};
  TextBox txtHerbicide{*this, "txtHerbicide"};
  TextBox txtInsecticide{*this, "txtInsecticide"};
  Label lblGICTOTAL{*this, "lblGICTOTAL"};

  // Operation costs
  Label lblApplicationCosts{*this, "lblApplicationCosts", "Operation Costs"};
  TextBox txtTillage{*this, "txtTillage"};
  TextBox txtPlanting{*this, "txtPlanting"};
  TextBox txtFertilizerApplication{*this, "txtFertilizerApplication"};
  TextBox txtHerbicideApplication{*this, "txtHerbicideApplication"};
  TextBox txtInsecticideApplication{*this, "txtInsecticideApplication"};
  Label lblOC{*this, "lblOC"};
  Label lblAnnualized{*this, "lblAnnualized",
                      "Seed, tillage, and planting costs automatically annualized over the life of stand"};

  // Harvesting costs of a grain crop
  TextBox txtHarvestBase{*this, "txtHarvestBase"};
  TextBox txtExceed{*this, "txtExceed"};
  Label lblUnits{*this, "lblUnits"};
  TextBox txtExceedCost{*this, "txtExceedCost"};
  TextBox txtHaulingCost{*this, "txtHaulingCost"};
  TextBox txtFlatRate{*this, "txtFlatRate"};
  std::array<Label, 3> lblperunits{
      {{*this, "lblperunits(0)"}, {*this, "lblperunits(1)"}, {*this, "lblperunits(2)"}}};

  // Harvesting costs of a forage crop, shown in place of those of a grain crop
  Frame frmICAlf{*this, "frmICAlf"};
  TextBox txtSwathing{frmICAlf, "txtSwathing"};
  TextBox txtSwathingNum{frmICAlf, "txtSwathingNum"};
  TextBox txtRaking{frmICAlf, "txtRaking"};
  TextBox txtRakingNum{frmICAlf, "txtRakingNum"};
  TextBox txtBaling{frmICAlf, "txtBaling"};
  TextBox txtBalingNum{frmICAlf, "txtBalingNum"};
  TextBox txtAlfFlat{frmICAlf, "txtAlfFlat"};
  Frame frmICAlf2{*this, "frmICAlf2"};
  TextBox txtStand{frmICAlf2, "txtStand"};

  TextBox txtMiscCost{*this, "txtMiscCost"};
  TextBox txtReturns{*this, "txtReturns"};

  Button cmdDefault{*this, "cmdDefault", "Load Default Values"};
  Button Command13{*this, "Command13", "Clear all values on this page"};
  Button Command6{*this, "Command6", "Apply Costs && Returns"};
  Button cmdCancel{*this, "cmdCancel(1)", "Cancel"};
  HelpButtons cmdHelp{*this, {11, 12, 13, 14, 21, 22, 23, 24}};
  Label lblNotApplied{*this, "lblCostsNotApplied", "Not applied"};  ///< While the fields differ from the crop
  Label lblHint{*this, "lblCostsHint"};  ///< How a field is read, where that is not what it looks like
  PageHints hints{*this, lblHint};

  /// The fields and their groups, in display order.
  [[nodiscard]] static std::span<const InputCostsField> fields();
  [[nodiscard]] static std::span<const FieldGroup<InputCostsPane>> groups();

  /// Shows the costs of a crop. Call it after showing the pane.
  /// \throws RunTimeError if `crop` is nullptr, and (overflow) if a subtotal is too large; all fields are
  /// filled by then
  void open(std::shared_ptr<Crop> crop);

  Event<> onApplied;  ///< The new costs are stored in the crop
  Event<> onBack;
  Event<int> onHelp;

 private:
  void wire();
  void boxChanged(const InputCostsField& field);
  void fill(const Crop& crop);
  void showUnits(const Crop& crop);
  void showGeneralSubtotal();
  void showOperationSubtotal();
  void showSubtotals();
  void showDefaults();
  void clear();
  void apply();
  void store(int group);
  [[nodiscard]] std::string cropType() const { return activeCrop ? activeCrop->cropType : std::string(); }

  Services& services_;
  bool filling_ = false;  ///< Several fields are being set; the subtotals are updated afterwards
  UnappliedMark unapplied_{*this, lblNotApplied};
};

}  // namespace verdalis
