#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "model/EfficiencyFraction.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {

[[noreturn]] inline void throwOverflow(std::string_view what) {
  throw RunTimeError(
      ErrorNumber::overflow,
      std::string(what) + " is too large to calculate with. Check the numbers that were entered.");
}

/// The result of a calculation. `what` begins the message, such as "The return of the field".
/// \throws RunTimeError (overflow) when the result is infinite or not a number.
inline double checked(double result, std::string_view what) {
  if (!std::isfinite(result)) throwOverflow(what);
  return result;
}

/// A net depth (inches) as the gross depth that must be pumped for it. `efficiency` is a fraction.
/// \throws RunTimeError (divisionByZero) for an efficiency of 0, (overflow) for one that is all but 0.
double grossFromNet(double net, double efficiency = EfficiencyFraction);

}  // namespace verdalis
