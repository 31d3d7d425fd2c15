#pragma once

#include <span>

#include "model/Crop.h"
#include "model/IrrigationCosts.h"
#include "model/SavedField.h"
#include "model/inputCosts.h"

// The fields of the plant and of a crop in the saved inputs, in the order of their lines. Writing and reading
// both use these tables, so the order is defined once.

namespace verdalis {

using CostField = SavedField<inputCosts>;

/// The 11 lines of the plant.
[[nodiscard]] std::span<const SavedField<IrrigationCosts>> plantFields();

/// The lines of a crop between its name and its costs: price and maximum yield.
[[nodiscard]] std::span<const SavedField<Crop>> cropFields();

/// The 31 lines of a crop's production costs.
[[nodiscard]] std::span<const CostField> costFields();

}  // namespace verdalis
