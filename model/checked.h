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

/// Returns the result of a calculation if it is finite.
/// \param what starts the message, for example "The return of the field".
/// \throws RunTimeError (overflow) if the result is infinite or not a number.
inline double checked(double result, std::string_view what) {
  if (!std::isfinite(result)) throwOverflow(what);
  return result;
}

/// Converts a net depth to the gross depth that must be pumped, both in inches.
/// \param efficiency as a fraction.
/// \throws RunTimeError (divisionByZero) if the efficiency is 0, (overflow) if it is almost 0.
double grossFromNet(double net, double efficiency = EfficiencyFraction);

}  // namespace verdalis
