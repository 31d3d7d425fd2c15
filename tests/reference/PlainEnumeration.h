#pragma once

#include <cstdint>
#include <vector>

#include "engine/Split.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

// The enumerations as they are defined: with stacks of whole lists. What the engine does must come out the
// same.

struct WaterSplits {
  std::vector<Split> percentages;
  double splitCounter = 0;  ///< Completed and overfull splits met on the way
};

/// All water splits over n fields in percent, for an iteration factor of 1 or more.
[[nodiscard]] WaterSplits waterSplits(std::int16_t n, std::int16_t fineFactor);

/// All assignments of the crops to n fields, n of 1 or more.
[[nodiscard]] std::vector<CropScenario> cropCombos(const CropScenario& crops, std::int16_t n);

}  // namespace verdalis::reference
