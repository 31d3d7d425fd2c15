#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "explore/switchPrices.h"

namespace verdalis {

/// The answer of `explore switch`.
struct SwitchAnswer {
  FarmInput input;
  std::string unit;  ///< What a price is for, or a yield is counted in, such as "bu."; empty for fuel
  double now = 0;    ///< The value as it stands
  std::vector<SwitchSegment> segments;
};

/// Tells in words below which value which plan is the best.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeSwitchTable(std::ostream& out, const SwitchAnswer& answer);

}  // namespace verdalis
