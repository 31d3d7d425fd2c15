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

namespace verdalis {

class IrrigCostsPane;

/// One field of the irrigation cost pane.
struct IrrigCostsField {
  FieldRow row;
  TextBox IrrigCostsPane::*box = nullptr;
  ComboBox IrrigCostsPane::*list = nullptr;  ///< In place of the box: the list of fuels
  double IrrigationCosts::*value = nullptr;  ///< Where Apply puts its number; nullptr for the list of fuels
  bool changesHint = false;                  ///< A change also recomputes the pumping hint
};

/// The message that refuses a text as the price of a unit of fuel; nothing for one that passes.
[[nodiscard]] std::optional<std::string> fuelCostFault(const std::string& fuelType, const std::string& text);

/// The pane that edits the farm's one pumping plant. It works on its fields; the plant changes only when
/// Command9 is pressed.
class IrrigCostsPane : public Frame {
 public:
  IrrigCostsPane(Frame& window, Services& services, std::shared_ptr<IrrigationCosts> tempIrrigationCosts);

  TextBox txtGPM{*this, "txtGPM"};
  TextBox txtLift{*this, "txtLift"};
  TextBox txtPSI{*this, "txtPSI"};
  TextBox txtCost{*this, "txtCost"};
  TextBox txtLaborPerHour{*this, "txtLaborPerHour"};
  TextBox txtRepairsPerAcre{*this, "txtRepairsPerAcre"};
  TextBox txtEstHours{*this, "txtEstHours"};
  // Behind the fields, so that clearing the pane brings the subtotal down to 0 while the fuel still stands.
  ComboBox cboFuelType{*this, "cboFuelType", ComboBox::Style::freeText, fuelNames(), "Select fuel type"};
  Label lblICosts{*this, "lblICosts"};
  Label lblInchHint{*this, "lblInchHint"};
  Button Command4{*this, "Command4", "Clear all values on this page"};
  Button cmdDefaultIrrigCosts{*this, "cmdDefaultIrrigCosts", "Load Default Values"};
  Button Command9{*this, "Command9", "Apply Costs"};
  Button cmdCancel{*this, "cmdCancel(0)", "Back"};
  HelpButtons cmdHelp{*this, {7, 8, 15, 16, 17, 18, 19, 20}};

  /// The fuels on offer.
  [[nodiscard]] static std::vector<std::string> fuelNames();

  static constexpr std::string_view title = "Irrigation Costs";

  /// The fields in the order in which they are shown, and their groups.
  [[nodiscard]] static std::span<const IrrigCostsField> fields();
  [[nodiscard]] static std::span<const FieldGroup<IrrigCostsPane>> groups();

  /// Makes the pane ready once it is shown: the pumping hint, and no zeros in the fields of the window.
  void open();

  /// Puts the default values into the fields; the plant stays.
  void showDefaults();

  Event<> onApplied;  ///< The plant has its new values
  Event<> onBack;
  Event<int> onHelp;

  /// The text of the total acres; empty without one.
  std::function<std::string()> areaText;

 private:
  void wire();
  void showCosts();
  void showInchHint();
  void apply();

  Services& services_;
  std::shared_ptr<IrrigationCosts> tempIrrigationCosts_;
};

}  // namespace verdalis
