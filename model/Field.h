#pragma once

#include <memory>
#include <string>

#include "model/Crop.h"
#include "model/EfficiencyFraction.h"
#include "model/FirstUse.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// One piece of the farm, planted to one crop and watered to one depth: the smallest unit that has a cost, a
/// return and a profit. Whoever builds it calls theCrop->setYield() before the first getReturn() or
/// getCosts(). Its operations leave their results in the field, its crop and its plant, where the screens
/// look for them; priceField() works out the same numbers and leaves nothing.
class Field {
 public:
  double acres = 0;
  double Depth = 0;  ///< Net irrigation, inches. 0 for a fallow field
  FirstUse<Crop> theCrop;
  double annualRain = 0;  ///< Inches
  FirstUse<IrrigationCosts> irrigCosts;
  double TotalCost = 0;    ///< Cached getCosts(), dollars for the field. 0: not computed
  double TotalReturn = 0;  ///< Cached getReturn(), dollars for the field. 0: not computed

  /// Report of four lines, CR LF between them.
  /// \throws RunTimeError as getCosts() and getReturn()
  std::string toString();

  /// Sales and other income, dollars for the field; cached.
  /// \throws RunTimeError (overflow)
  double getReturn();

  /// Plants the field to Fallow and takes its water away.
  void makeFallow();

  /// Net acre-inches.
  [[nodiscard]] double getVolume() const { return Depth * acres; }

  /// Production and irrigation, dollars for the field; cached.
  /// \throws RunTimeError (overflow, divisionByZero while the irrigation efficiency is 0)
  double getCosts(double efficiency = EfficiencyFraction);

  /// getCosts() without irrigation, never cached.
  double getProductionCosts(double efficiency = EfficiencyFraction);

  /// Return minus costs, dollars for the field.
  double getProfit(double efficiency = EfficiencyFraction);

  /// A field with a crop and a plant of its own. TotalCost is carried over; TotalReturn is not, so that the
  /// copy works its return out of its own crop.
  [[nodiscard]] Field Copy() const;
};

}  // namespace verdalis
