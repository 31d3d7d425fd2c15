#pragma once

#include <memory>
#include <string>

#include "model/Crop.h"
#include "model/EfficiencyFraction.h"
#include "model/FirstUse.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// A piece of the farm with one crop and one irrigation depth: the smallest unit that has a cost, a return
/// and a profit. The code that builds a field calls theCrop->setYield() before the first getReturn() or
/// getCosts(). The operations store their results in the field, its crop and its plant, where the screens
/// read them; priceField() computes the same numbers without storing anything.
class Field {
 public:
  double acres = 0;
  double Depth = 0;  ///< Net irrigation, inches. 0 for a fallow field
  FirstUse<Crop> theCrop;
  double annualRain = 0;  ///< Inches
  FirstUse<IrrigationCosts> irrigCosts;
  double TotalCost = 0;    ///< Cached getCosts(), dollars for the field. 0 means not computed
  double TotalReturn = 0;  ///< Cached getReturn(), dollars for the field. 0 means not computed

  /// Report of four lines, separated by CR LF.
  /// \throws RunTimeError as getCosts() and getReturn()
  std::string toString();

  /// Sales and other income, dollars for the field; cached.
  /// \throws RunTimeError (overflow)
  double getReturn();

  /// Sets the crop to Fallow and the irrigation to 0.
  void makeFallow();

  /// Net irrigation volume, acre-inches.
  [[nodiscard]] double getVolume() const { return Depth * acres; }

  /// Production and irrigation costs, dollars for the field; cached.
  /// \throws RunTimeError (overflow; divisionByZero if the irrigation efficiency is 0)
  double getCosts(double efficiency = EfficiencyFraction);

  /// getCosts() without irrigation; never cached.
  double getProductionCosts(double efficiency = EfficiencyFraction);

  /// Return minus costs, dollars for the field.
  double getProfit(double efficiency = EfficiencyFraction);

  /// A copy with its own crop and plant. TotalCost is copied; TotalReturn is not, so that the copy computes
  /// its return from its own crop.
  [[nodiscard]] Field Copy() const;
};

}  // namespace verdalis
