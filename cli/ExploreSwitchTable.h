#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "explore/switchPrices.h"

namespace verdalis {

/// The answer of `explore switch`.
struct SwitchAnswer {
  FarmInput input;
  std::string unit;  ///< Unit of the crop, such as "bu."; empty for fuel
  double now = 0;    ///< Current value
  std::vector<SwitchSegment> segments;
};

/// Writes the best plan for each range of values.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeSwitchTable(std::ostream& out, const SwitchAnswer& answer);

}  // namespace verdalis
