#pragma once

#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

// Numbers as the text reports of the ranking and of the splits print them.

/// "Profit = $" and the dollars with cents, then CR LF. \throws RunTimeError (overflow)
[[nodiscard]] std::string profitLine(double dollars);

/// "Return = $" and the whole dollars, then CR LF. \throws RunTimeError (overflow)
[[nodiscard]] std::string returnLine(double dollars);

/// The gross irrigated volume of an option in acre-inches, with two decimals or whole, then an empty line.
/// \throws RunTimeError (divisionByZero) while the irrigation efficiency is 0, (overflow)
[[nodiscard]] std::string grossVolumeLine(const FieldCollection& option, bool twoDecimals);

/// Each volume as general number text with its unit, acre-inches.
[[nodiscard]] std::string volumesText(const std::vector<double>& acreInches);

}  // namespace verdalis
