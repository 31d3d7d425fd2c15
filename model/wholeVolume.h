#pragma once

namespace verdalis {

/// A volume of water in acre-inches, rounded to a whole number as on the main pane, halves away from zero; 0
/// if the pane shows nothing. The run uses this number, so the rounding affects every result.
/// \throws RunTimeError (overflow)
[[nodiscard]] double wholeVolume(double acreInches);

}  // namespace verdalis
