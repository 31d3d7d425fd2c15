#pragma once

namespace verdalis {

/// Irrigation efficiency of the current run as a fraction: net water that reaches the crop / gross water
/// pumped. The one true global of the program. Only the run driver sets it; everything that turns a net depth
/// into a gross depth divides by it. 0 until the first run.
inline double EfficiencyFraction = 0;

}  // namespace verdalis
