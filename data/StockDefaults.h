#pragma once

#include <string_view>

#include "model/IrrigationCosts.h"
#include "model/StockCrops.h"
#include "model/inputCosts.h"

namespace verdalis {

/// The default price and yield of a crop by its name in lower case; nullptr for Fallow and any other crop.
[[nodiscard]] const StockPrice* defaultPrice(std::string_view lowerName);

/// Puts the default production costs of a crop into `costs`. What has no default, and all of a crop that is
/// no stock crop, stays as it is; the three optimal switches are turned on in any case.
void loadDefaultCosts(std::string_view lowerName, inputCosts& costs);

/// Puts the default pumping plant into `plant` and makes it active.
void loadDefaultPlant(IrrigationCosts& plant);

}  // namespace verdalis
