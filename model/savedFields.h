#pragma once

#include <span>

#include "model/Crop.h"
#include "model/IrrigationCosts.h"
#include "model/SavedField.h"
#include "model/inputCosts.h"

// What the saved inputs keep of the plant and of a crop, in the order of the lines. They are written and read
// by these tables, so that the order stands once.

namespace verdalis {

using CostField = SavedField<inputCosts>;

/// The 11 lines of the plant.
[[nodiscard]] std::span<const SavedField<IrrigationCosts>> plantFields();

/// The lines of a crop behind its name and in front of its costs: price and maximum yield.
[[nodiscard]] std::span<const SavedField<Crop>> cropFields();

/// The 31 lines of a crop's production costs.
[[nodiscard]] std::span<const CostField> costFields();

}  // namespace verdalis
