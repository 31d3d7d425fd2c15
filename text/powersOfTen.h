#pragma once

namespace verdalis {

// Powers of ten that are the same on every machine. The pow() and log10() of a C library may be wrong in the
// last bit, and each in its own way.

/// The float nearest to 10^exponent: 0 below the smallest float, infinity above the largest.
[[nodiscard]] double powerOfTen(int exponent);

/// The largest n with powerOfTen(n) <= |value|, such as 2 for 999.5; 0 for 0, infinity and NaN.
[[nodiscard]] int decimalExponent(double value);

}  // namespace verdalis
