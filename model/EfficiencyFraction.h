#pragma once

namespace verdalis {

/// Current irrigation efficiency as a fraction: net water that reaches the crop / gross water pumped. It is
/// the efficiency of the last run, 0 before the first. Only EfficiencyInForce sets it. Screens and reports
/// use it for gross depths and costs; code that searches or prices for a run receives the efficiency of that
/// run as an argument.
inline double EfficiencyFraction = 0;

}  // namespace verdalis
