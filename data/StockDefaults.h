#pragma once

#include <string_view>

#include "model/IrrigationCosts.h"
#include "model/StockCrops.h"
#include "model/inputCosts.h"

namespace verdalis {

/// Default price and yield of a crop, by lower-case name; nullptr for Fallow and any other crop.
[[nodiscard]] const StockPrice* defaultPrice(std::string_view lowerName);

/// Sets the default production costs of a crop. Costs without a default keep their values; a crop that is not
/// a stock crop keeps all. The three optimal switches are turned on in any case.
void loadDefaultCosts(std::string_view lowerName, inputCosts& costs);

/// Sets the default pumping plant and makes it active.
void loadDefaultPlant(IrrigationCosts& plant);

}  // namespace verdalis
