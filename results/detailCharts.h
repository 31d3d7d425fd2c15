#pragma once

#include <optional>

#include "charts/Chart.h"
#include "model/Field.h"

namespace verdalis {

/// The yield of the field's crop by gross irrigation at the field's rain, with the point of the field.
/// Nothing for a crop without a yield table.
/// \throws RunTimeError (subscript) if the rain is outside of the table, (divisionByZero) without efficiency
[[nodiscard]] std::optional<Chart> yieldChart(const Field& field);

/// The way from the returns of a field over its costs to its net return, dollars per acre. Pricing stores
/// sums in the field.
/// \throws RunTimeError (divisionByZero, overflow) for a figure that cannot be calculated
[[nodiscard]] Chart returnChart(Field& field);

}  // namespace verdalis
