#pragma once

namespace verdalis {

/// A volume of water, acre-inches, rounded to a whole number as the main pane shows it, halves away from
/// zero. The run reads that number, so the rounding is part of every result. 0 where the pane shows nothing.
/// \throws RunTimeError (overflow)
[[nodiscard]] double wholeVolume(double acreInches);

}  // namespace verdalis
