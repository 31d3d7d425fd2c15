#pragma once

#include <cstdint>
#include <vector>

#include "engine/Scenario.h"
#include "engine/Split.h"
#include "engine/Wish.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// A farm as the numbers that a user enters. Questions change one of them and evaluate the resulting
/// scenario.
struct Farm {
  double acres = 0;          ///< Total
  Split division;            ///< Percent of each field
  double grossDepth = 0;     ///< Gross irrigation over the farm, inches
  double grossVolume = 0;    ///< Whole acre-inches that `grossDepth` amounts to; see takeWater()
  double rain = 0;           ///< Annual rainfall, inches
  double efficiency = 0;     ///< Irrigation efficiency, percent
  CropScenario crops;        ///< The chosen crops, with price, maximum yield and the table of the soil
  IrrigationCosts plant;     ///< The pumping plant
  std::int16_t factor = 0;   ///< Irrigation iteration factor: steps of water between 0 and 100 %
  std::int16_t size = 0;     ///< Options to keep
  bool noSplit = false;      ///< Also price each crop on the undivided farm
  std::vector<Wish> wishes;  ///< Wishes that every plan must meet
  bool mixes = false;        ///< Keep only the best plan of each mix of crops

  /// A copy with its own crops.
  [[nodiscard]] Farm Copy() const;

  /// Sets the gross irrigation, inches, and the resulting volume.
  /// \throws RunTimeError (overflow)
  void takeWater(double grossInches);

  /// Sets the rainfall, inches, and scales the yield tables of the crops to it.
  void takeRain(double inches);
};

/// Makes the scenario of a farm.
/// \throws RunTimeError for invalid numbers, in the order in which an evaluation finds them
[[nodiscard]] Scenario scenarioOf(const Farm& farm);

}  // namespace verdalis
