#pragma once

#include <string>

#include "explore/bestPlan.h"

namespace verdalis {

/// A message that no plan meets all wishes, with a line for each way to give up as few of them as possible.
[[nodiscard]] std::string noPlanText(const NoPlan& noPlan);

}  // namespace verdalis
