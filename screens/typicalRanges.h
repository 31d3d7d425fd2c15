#pragma once

#include <string>
#include <vector>

#include "model/Crop.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

// What is usual for the fields of the main pane, told from the program's own tables: the defaults and limits
// of the stock crops, the yield tables, and the plant. Each is empty if nothing is known.

/// How many acres the plant can water. `txtMax` is the gross irrigation.
[[nodiscard]] std::string acresRange(const IrrigationCosts& plant, const std::string& txtMax);

/// Up to which irrigation the yield tables of these crops go. `txtEff` is the irrigation efficiency.
[[nodiscard]] std::string waterRange(const std::vector<const Crop*>& crops, const std::string& txtEff);

/// For which rain all these crops have yields.
[[nodiscard]] std::string rainRange(const std::vector<const Crop*>& crops);

[[nodiscard]] std::string efficiencyRange();

/// The default and the limit of a stock crop.
[[nodiscard]] std::string priceRange(const Crop& crop);

/// The same for the yield, and what the yield table makes of the maximum yield with this rain.
[[nodiscard]] std::string maxYieldRange(const Crop& crop, const std::string& txtMaxYield,
                                        const std::string& txtAnnRain);

}  // namespace verdalis
