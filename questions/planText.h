#pragma once

#include <string>
#include <vector>

#include "explore/bestPlan.h"
#include "explore/mixOf.h"
#include "text/quote.h"

namespace verdalis {

// How the questions tell numbers and plans. Control characters in names become blanks.

/// A number with up to four decimals and without commas, as a field takes it: "1234.5".
[[nodiscard]] std::string fieldText(double value);

/// A number with up to four decimals, such as "6.5".
[[nodiscard]] std::string valueText(double value);

/// Whole dollars, such as "-$1,234".
[[nodiscard]] std::string dollarsText(double amount);

/// Inches with one decimal.
[[nodiscard]] std::string inchesText(double depth);

/// Acres with up to two decimals, such as "52.8 ac".
[[nodiscard]] std::string acresText(double acres);

/// A plan with gross inches, such as "50 ac Corn 12.0 in., 50 ac Wheat 3.5 in.".
[[nodiscard]] std::string planText(const std::vector<PlannedField>& fields);

/// A mix with the total acres of each crop, such as "50 ac Corn + 50 ac Wheat".
[[nodiscard]] std::string mixText(const Mix& mix);

/// What a plan grows, field by field: "Corn, Corn, Wheat". A plan of fewer fields than `fields` is one of the
/// undivided farm: "Corn (undivided)".
[[nodiscard]] std::string cropsText(const std::vector<PlannedField>& plan, std::size_t fields);

}  // namespace verdalis
