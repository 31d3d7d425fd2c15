#pragma once

#include <string>
#include <vector>

#include "explore/bestPlan.h"

namespace verdalis {

/// A part of a mix.
struct MixPart {
  double acres = 0;
  std::string crop;

  friend bool operator==(const MixPart&, const MixPart&) = default;
};

/// The acres and crops of a plan; the order of the fields does not matter.
using Mix = std::vector<MixPart>;

/// The mix of a plan, by acres, most first, then by crop name. Two plans have the same mix if these lists are
/// equal.
[[nodiscard]] Mix mixOf(const Plan& plan);

}  // namespace verdalis
