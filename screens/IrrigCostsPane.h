#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "controls/HelpButtons.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "model/IrrigationCosts.h"
#include "screens/FieldTable.h"
#include "screens/PageHints.h"
#include "screens/UnappliedMark.h"

namespace verdalis {

class IrrigCostsPane;

/// A field of the irrigation cost pane.
struct IrrigCostsField {
  FieldRow row;
  TextBox IrrigCostsPane::*box = nullptr;
  ComboBox IrrigCostsPane::*list = nullptr;  ///< The list of fuels, in place of a box
  double IrrigationCosts::*value = nullptr;  ///< Where Apply stores the number; nullptr for the list of fuels
  bool changesHint = false;                  ///< A change also recomputes the pumping hint
};

/// Message that rejects a text as the price of a unit of fuel; nothing if it passes.
[[nodiscard]] std::optional<std::string> fuelCostFault(const std::string& fuelType, const std::string& text);

/// The pane for the farm's only pumping plant. Edits stay in its fields until Command9 stores them in the
/// plant.
class IrrigCostsPane : public Frame {
 public:
  IrrigCostsPane(Frame& window, Services& services, std::shared_ptr<IrrigationCosts> tempIrrigationCosts);

  static constexpr const char* fuelPrompt = "Select fuel type";  ///< Before a fuel is chosen

  TextBox txtGPM{*this, "txtGPM"};
  TextBox txtLift{*this, "txtLift"};
  TextBox txtPSI{*this, "txtPSI"};
  TextBox txtCost{*this, "txtCost"};
  TextBox txtLaborPerHour{*this, "txtLaborPerHour"};
  TextBox txtRepairsPerAcre{*this, "txtRepairsPerAcre"};
  TextBox txtEstHours{*this, "txtEstHours"};
  // Declared after the fields: the pane is cleared in this order, so the subtotal falls to 0 while the fuel
  // is still set.
  ComboBox cboFuelType{*this, "cboFuelType", ComboBox::Style::freeText, fuelNames(), fuelPrompt};
  Label lblICosts{*this, "lblICosts"};
  Label lblInchHint{*this, "lblInchHint"};
  Label lblFuelUnit{*this, "lblFuelUnit"};  ///< What the price of the fuel counts in
  Label lblNotApplied{*this, "lblPlantNotApplied",
                      "Not applied"};    ///< While the fields differ from the plant
  Label lblHint{*this, "lblPlantHint"};  ///< How a field is read, where that is not what it looks like
  PageHints hints{*this, lblHint};
  Button Command4{*this, "Command4", "Clear all values on this page"};
  Button cmdDefaultIrrigCosts{*this, "cmdDefaultIrrigCosts", "Load Default Values"};
  Button Command9{*this, "Command9", "Apply Costs"};
  Button cmdCancel{*this, "cmdCancel(0)", "Back"};
  HelpButtons cmdHelp{*this, {7, 8, 15, 16, 17, 18, 19, 20}};

  /// The fuels on offer.
  [[nodiscard]] static std::vector<std::string> fuelNames();

  static constexpr std::string_view title = "Irrigation Costs";

  /// The fields and their groups, in display order.
  [[nodiscard]] static std::span<const IrrigCostsField> fields();
  [[nodiscard]] static std::span<const FieldGroup<IrrigCostsPane>> groups();

  /// Prepares the pane after it is shown: updates the pumping hint and empties the fields of the window that
  /// contain "0".
  void open();

  /// Shows the default values in the fields. The plant does not change.
  void showDefaults();

  /// Shows what the fields contain when the program starts without saved inputs.
  void showStartTexts();

  Event<> onApplied;  ///< The new values are stored in the plant
  Event<> onBack;
  Event<int> onHelp;

  /// Returns the text of the total acres. May be empty.
  std::function<std::string()> areaText;

 private:
  void wire();
  void showCosts();
  void showInchHint();
  void showFuelUnit();
  void apply();

  Services& services_;
  std::shared_ptr<IrrigationCosts> tempIrrigationCosts_;
  UnappliedMark unapplied_{*this, lblNotApplied};
};

}  // namespace verdalis
