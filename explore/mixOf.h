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

/// The acres and crops of a plan without regard to the order of its fields.
using Mix = std::vector<MixPart>;

/// The mix of a plan: most acres first, equal ones by the name of the crop. So two plans have one mix where
/// these lists are equal.
[[nodiscard]] Mix mixOf(const Plan& plan);

}  // namespace verdalis
