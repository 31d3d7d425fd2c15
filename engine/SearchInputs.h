#pragma once

#include <cstdint>

#include "engine/MakingCropCombos.h"
#include "engine/Split.h"
#include "engine/SplitCollection.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// Inputs of the search. They must not change while the search runs.
struct SearchInputs {
  const SplitCollection& depths;  ///< Net inches of each field, one split per way to distribute the water
  const CropCombinations& combinations;  ///< A crop for each field
  const Split& landSplit;                ///< Acres of each field
  double rain;                           ///< Annual rainfall, inches
  std::int16_t size;                     ///< Options to keep
  const IrrigationCosts& irrigationCosts;
  double efficiency;  ///< Irrigation efficiency as a fraction
};

}  // namespace verdalis
