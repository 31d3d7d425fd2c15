#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "model/StockCrops.h"
#include "model/savedFields.h"

namespace verdalis {

/// Default value of one cost of one crop. The production cost pane shows the text, and the main pane loads
/// the number into the crop. Where the two differ, this is intended.
struct DefaultCost {
  const char* text = nullptr;  ///< Text for the field on the pane; nullptr leaves the field unchanged
  bool loaded = false;  ///< Whether the number is loaded into the crop; if not, the crop keeps its value
};

/// Default values of one cost: for the stock crops in their order, then for Fallow.
struct DefaultCosts {
  CostField field;
  std::array<DefaultCost, stockCrops.size() + 1> cells;
};

/// All costs with default values, each once.
[[nodiscard]] std::span<const DefaultCosts> stockCosts();

/// Default value of a cost of a crop. If there is none, the result leaves pane and crop unchanged.
[[nodiscard]] DefaultCost defaultCost(CropKind kind, const CostField& field);

}  // namespace verdalis
