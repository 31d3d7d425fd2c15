#pragma once

namespace verdalis {

/// Whether two yields (units per acre) look the same on the option pages, which show whole numbers.
/// \throws RunTimeError (overflow) for a value that is infinite or not a number
[[nodiscard]] bool sameShownYield(double a, double b);

/// Whether two depths (inches) look the same on the option pages, which show two decimals.
/// \throws RunTimeError (overflow) for a value that is infinite or not a number
[[nodiscard]] bool sameShownDepth(double a, double b);

}  // namespace verdalis
