#pragma once

#include <cstdint>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "engine/SearchInputs.h"
#include "engine/Split.h"
#include "engine/SplitCollection.h"
#include "engine/Wish.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// All inputs of a run, as numbers with units. Independent of the screens, the crop library and the plant, so
/// a run keeps the inputs it started with whatever is typed meanwhile.
struct Scenario {
  double acres = 0;               ///< Of the whole farm
  Split landSplit;                ///< Acres of each field
  double netVolume = 0;           ///< Net water of the farm, acre-inches
  double efficiency = 0;          ///< Irrigation efficiency as a fraction
  double rain = 0;                ///< Annual rainfall, inches
  SplitCollection depths;         ///< Net inches of each field, one split per way to distribute the water
  CropCombinations combinations;  ///< The crops, and all ways to assign them to the fields
  IrrigationCosts plant;
  std::int16_t size = 0;     ///< Options to keep
  bool noSplit = false;      ///< Also price each crop on the undivided farm
  std::vector<Wish> wishes;  ///< What every plan must meet
  bool mixes = false;        ///< Keep the best plan of each mix of crops alone

  /// Inputs of the search, which refer to this scenario.
  [[nodiscard]] SearchInputs searchInputs() const {
    return {depths, combinations, landSplit, rain, size, plant, efficiency};
  }
};

}  // namespace verdalis
