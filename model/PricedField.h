#pragma once

#include "model/Crop.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// A field as it is grown: its size and its water.
struct FieldPlan {
  double acres = 0;
  double Depth = 0;       ///< Net irrigation, inches
  double annualRain = 0;  ///< Inches
};

/// What a crop on a field yields, costs and returns. Plain numbers: pricing changes neither the crop nor the
/// plant.
struct PricedField {
  double Yield = 0;            ///< Yield units per acre
  ProductionCosts production;  ///< Dollars for the field
  PumpingCosts irrigation;     ///< Dollars for the field
  double costs = 0;            ///< Production and irrigation, dollars for the field
  double sales = 0;            ///< Dollars for the field
  double returns = 0;          ///< Sales and other income, dollars for the field

  [[nodiscard]] double profit() const { return returns - costs; }
};

/// Prices a field. `efficiency` is the irrigation efficiency as a fraction.
/// \throws RunTimeError (subscript) outside the yield table, (divisionByZero) for an efficiency of 0,
/// (overflow)
[[nodiscard]] PricedField priceField(const FieldPlan& plan, const Crop& crop, const IrrigationCosts& plant,
                                     double efficiency);

/// Production and irrigation of a field whose yield is known, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double totalCosts(const ProductionCosts& production, const PumpingCosts& irrigation);

/// What a field whose yield is known is sold for, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double salesOf(const Crop& crop, double yield, double acres);

/// Sales and other income of a field, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double totalReturns(const Crop& crop, double sales, double acres);

}  // namespace verdalis
