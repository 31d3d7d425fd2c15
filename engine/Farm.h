#pragma once

#include <cstdint>
#include <vector>

#include "engine/Scenario.h"
#include "engine/Split.h"
#include "engine/Wish.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// A farm in the numbers that a person enters. A question changes one of them and makes a scenario of the
/// rest.
struct Farm {
  double acres = 0;          ///< Total
  Split division;            ///< Percent of each field
  double grossDepth = 0;     ///< Gross irrigation over the farm, inches
  double grossVolume = 0;    ///< Acre-inches, whole: what `grossDepth` comes to; see takeWater()
  double rain = 0;           ///< Annual rainfall, inches
  double efficiency = 0;     ///< Irrigation efficiency, percent
  CropScenario crops;        ///< The chosen crops, with price, maximum yield and the table of the soil
  IrrigationCosts plant;     ///< The pumping plant
  std::int16_t factor = 0;   ///< Irrigation iteration factor: steps of water between 0 and 100 %
  std::int16_t size = 0;     ///< Options to keep
  bool noSplit = false;      ///< Also price each crop on the undivided farm
  std::vector<Wish> wishes;  ///< What every plan must meet
  bool mixes = false;        ///< Keep the best plan of each mix of crops alone

  /// The same farm with crops of its own.
  [[nodiscard]] Farm Copy() const;

  /// Sets the gross irrigation, inches, and the volume that follows from it.
  /// \throws RunTimeError (overflow)
  void takeWater(double grossInches);

  /// Sets the rainfall, inches, and scales the yield tables of the crops to it.
  void takeRain(double inches);
};

/// The scenario of a farm.
/// \throws RunTimeError for numbers that make no scenario, in the order in which an evaluation meets them
[[nodiscard]] Scenario scenarioOf(const Farm& farm);

}  // namespace verdalis
