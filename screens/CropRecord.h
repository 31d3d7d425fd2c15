#pragma once

#include <memory>
#include <optional>
#include <string>

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "model/Crop.h"
#include "screens/ScenarioInputs.h"

namespace verdalis {

/// Messages that reject a text as the price or the maximum yield of a crop; nothing if it passes. Only stock
/// crops have limits.
[[nodiscard]] std::optional<std::string> priceFault(const Crop& crop, const std::string& text);
[[nodiscard]] std::optional<std::string> maxYieldFault(const Crop& crop, const std::string& text);

/// A row of the crop list: a check box that selects the crop for evaluation, its price, its maximum yield,
/// and a button that opens its production costs. Typed values are stored in the crop at once. The crop is the
/// library's object, not a copy.
class CropRecord : public Frame {
 public:
  CropRecord(Frame& container, int index, MessageBoxService& messageBox);

  std::shared_ptr<verdalis::Crop> Crop;  ///< nullptr in the row of an empty library

  Image background{*this, "background"};  ///< The tint F3F3F3 behind an active row
  CheckBox chkCrop{*this, "chkCrop", "BLANK_CROP"};
  TextBox txtPrice{*this, "txtPrice"};
  Label lblPriceUnits{*this, "lblPriceUnits", "PRICE_UNITS"};
  TextBox txtMaxYield{*this, "txtMaxYield"};
  Label lblYieldUnits{*this, "lblYieldUnits", "YIELD_UNITS"};
  Button cmdInputCosts{*this, "cmdInputCosts", "Costs/Returns"};

  /// Shows a crop. `inputCostUnits` is not used. Fallow has neither price nor yield.
  void loadInfo(const std::string& crop, const std::string& priceUnits, const std::string& inputCostUnits,
                const std::string& yieldUnits);

  [[nodiscard]] bool isActive() const { return chkCrop.checked(); }

  /// The leading number of the price text, $ per yield unit; 0 if there is none.
  [[nodiscard]] double getPrice() const;
  void setPrice(double price);
  void setMaxYield(double yield);

  /// Always 20, regardless of the costs of the crop. Nothing uses it.
  [[nodiscard]] static double getInputCost() { return 20; }

  /// The leading number of the yield text, yield units per acre; 0 if there is none.
  [[nodiscard]] double getMaxYield() const;

  /// The name that the row shows.
  [[nodiscard]] const std::string& GetCrop() const { return chkCrop.caption(); }

  void setDefault(double price, double yield);

  /// Shows the price and maximum yield of the crop.
  void refresh();

  /// The inputs of a run from this row.
  [[nodiscard]] CropRowInput input() const { return {isActive(), txtPrice.text(), txtMaxYield.text()}; }

  Event<> onInputCosts;

 private:
  using Test = std::optional<std::string>(const verdalis::Crop& crop, const std::string& text);

  void showActivity();
  void wireTest(TextBox& box, Test* test);

  MessageBoxService& messageBox_;
};

}  // namespace verdalis
