#pragma once

#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

// Lines of the text reports of the ranking and of the splits.

/// "Profit = $" with dollars and cents, then CR LF.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string profitLine(double dollars);

/// "Return = $" with whole dollars, then CR LF.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string returnLine(double dollars);

/// The gross irrigation volume of an option in acre-inches, with two decimals or none, then an empty line.
/// \throws RunTimeError (divisionByZero) if the irrigation efficiency is 0, (overflow)
[[nodiscard]] std::string grossVolumeLine(const FieldCollection& option, bool twoDecimals);

/// Each volume as a general number with its unit, acre-inches.
[[nodiscard]] std::string volumesText(const std::vector<double>& acreInches);

}  // namespace verdalis
