#pragma once

#include <sstream>
#include <string>

#include "cli/OptionsWriter.h"

namespace verdalis::testing {

/// What a writer makes of a result.
inline std::string written(OptionsWriter writer, const EvaluationResult& result) {
  std::ostringstream out;
  writer(out, result);
  return out.str();
}

/// A loss on two fields, and a gain on one with odd names.
inline EvaluationResult twoOptions() {
  FieldResult corn{62.5, "Corn",      11.9,    14,      176.34,   "bu.",   4.6,
                   205,  "Silt Loam", 31562.5, 50687.5, 25000.25, 6562.25, 605.5};
  FieldResult fallow{1250, "Fallow", 0, 0, 0, "", 0, 0, "Silt Loam", 50000, 0, 50000, 0, 0};
  FieldResult hay{10, "Hay, \"wet\"", 8.5, 10, 5.25, "ton", 120, 8, "Fine Sand", 1000, 6300, 900, 100, 12};
  EvaluationResult result;
  result.waterSplits = 286;
  result.cropCombinations = 1296;
  result.efficiency = 0.85;
  result.seconds = 0.25;
  result.options = {{-30875, 81562.5, 50687.5, 743.75, {corn, fallow}}, {5300, 1000, 6300, 85, {hay}}};
  return result;
}

}  // namespace verdalis::testing
