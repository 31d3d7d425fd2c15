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

/// The messages that refuse a text as the price or the maximum yield of a crop; nothing for one that passes,
/// as each does for a crop that is no stock crop.
[[nodiscard]] std::optional<std::string> priceFault(const Crop& crop, const std::string& text);
[[nodiscard]] std::optional<std::string> maxYieldFault(const Crop& crop, const std::string& text);

/// A row of the crop list: the tick that makes a crop a candidate, its price, its maximum yield and the way
/// to its production costs. What is typed goes into the crop at once; the crop is the library's own.
class CropRecord : public Frame {
 public:
  CropRecord(Frame& container, int index, MessageBoxService& messageBox);

  std::shared_ptr<verdalis::Crop> Crop;  ///< None in the row of an empty library

  Image background{*this, "background"};  ///< The tint F3F3F3 behind an active row
  CheckBox chkCrop{*this, "chkCrop", "BLANK_CROP"};
  TextBox txtPrice{*this, "txtPrice"};
  Label lblPriceUnits{*this, "lblPriceUnits", "PRICE_UNITS"};
  TextBox txtMaxYield{*this, "txtMaxYield"};
  Label lblYieldUnits{*this, "lblYieldUnits", "YIELD_UNITS"};
  Button cmdInputCosts{*this, "cmdInputCosts", "Costs/Returns"};

  /// Shows a crop. `inputCostUnits` takes no part. Fallow has neither price nor yield.
  void loadInfo(const std::string& crop, const std::string& priceUnits, const std::string& inputCostUnits,
                const std::string& yieldUnits);

  [[nodiscard]] bool isActive() const { return chkCrop.checked(); }

  /// The leading number of the text, $ per yield unit; 0 without one.
  [[nodiscard]] double getPrice() const;
  void setPrice(double price);
  void setMaxYield(double yield);

  /// Always 20, whatever the crop costs: nothing depends on it.
  [[nodiscard]] static double getInputCost() { return 20; }

  /// The leading number of the text, yield units per acre; 0 without one.
  [[nodiscard]] double getMaxYield() const;

  /// The name that the row shows.
  [[nodiscard]] const std::string& GetCrop() const { return chkCrop.caption(); }

  void setDefault(double price, double yield);

  /// The price and the yield of the crop, as texts.
  void refresh();

  /// What a run needs of the row.
  [[nodiscard]] CropRowInput input() const { return {isActive(), txtPrice.text(), txtMaxYield.text()}; }

  Event<> onInputCosts;

 private:
  using Test = std::optional<std::string>(const verdalis::Crop& crop, const std::string& text);

  void showActivity();
  void wireTest(TextBox& box, Test* test);

  MessageBoxService& messageBox_;
};

}  // namespace verdalis
