#pragma once

#include <cstdint>

#include "engine/MakingCropCombos.h"
#include "engine/Split.h"
#include "engine/SplitCollection.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// What the search works on, prepared by RunScenario. Nothing of it may change while the search runs.
struct SearchInputs {
  const SplitCollection& depths;  ///< Net inches of each field, a split for each way to share the water
  const CropCombinations& combinations;  ///< A crop for each field
  const Split& landSplit;                ///< Acres of each field
  double rain;                           ///< Annual rainfall, inches
  std::int16_t size;                     ///< Options to keep
  const IrrigationCosts& irrigationCosts;
  double efficiency;  ///< Irrigation efficiency as a fraction
};

}  // namespace verdalis
