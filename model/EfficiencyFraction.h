#pragma once

namespace verdalis {

/// Irrigation efficiency in force, as a fraction: net water that reaches the crop / gross water pumped. It is
/// that of the last run, 0 before the first. Only EfficiencyInForce sets it. The screens and the reports show
/// gross depths and costs by it; whatever searches or prices for a run is handed the efficiency of that run.
inline double EfficiencyFraction = 0;

}  // namespace verdalis
