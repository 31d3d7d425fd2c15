#pragma once

#include <cstdint>
#include <vector>

#include "engine/Split.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

// Simple versions of the enumerations, with stacks of whole lists. The engine must give the same results.

struct WaterSplits {
  std::vector<Split> percentages;
  double splitCounter = 0;  ///< Number of completed and overfull splits encountered
};

/// All water splits over n fields, in percent, for an iteration factor of at least 1.
[[nodiscard]] WaterSplits waterSplits(std::int16_t n, std::int16_t fineFactor);

/// All assignments of the crops to n fields, for n of at least 1.
[[nodiscard]] std::vector<CropScenario> cropCombos(const CropScenario& crops, std::int16_t n);

}  // namespace verdalis::reference
