#pragma once

#include "model/Crop.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// Size and water of a field.
struct FieldPlan {
  double acres = 0;
  double Depth = 0;       ///< Net irrigation, inches
  double annualRain = 0;  ///< Inches
};

/// Parts of the costs of a field.
struct CostParts {
  ProductionParts production;  ///< All 0 if a trend replaces the production costs
  PumpingParts irrigation;     ///< All 0 if no water is pumped or a trend replaces the irrigation costs
};

/// Yield, costs and returns of a crop on a field. Pricing changes neither the crop nor the plant.
struct PricedField {
  double Yield = 0;            ///< Yield units per acre
  ProductionCosts production;  ///< Dollars for the field
  PumpingCosts irrigation;     ///< Dollars for the field
  double costs = 0;            ///< Production and irrigation costs, dollars for the field
  double sales = 0;            ///< Dollars for the field
  double returns = 0;          ///< Sales and other income, dollars for the field

  [[nodiscard]] double profit() const { return returns - costs; }
};

/// Prices a field.
/// \param efficiency irrigation efficiency as a fraction.
/// \param parts gets the parts of the costs, if it is given.
/// \throws RunTimeError (subscript) outside the yield table, (divisionByZero) if the efficiency is 0,
/// (overflow)
[[nodiscard]] PricedField priceField(const FieldPlan& plan, const Crop& crop, const IrrigationCosts& plant,
                                     double efficiency, CostParts* parts = nullptr);

/// Production and irrigation costs of a field with known yield, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double totalCosts(const ProductionCosts& production, const PumpingCosts& irrigation);

/// Sales of a field with known yield, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double salesOf(const Crop& crop, double yield, double acres);

/// Sales and other income of a field, dollars.
/// \throws RunTimeError (overflow)
[[nodiscard]] double totalReturns(const Crop& crop, double sales, double acres);

}  // namespace verdalis
