#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "model/StockCrops.h"
#include "model/savedFields.h"

namespace verdalis {

/// What the default values do to one cost of one crop. The production cost pane shows them as texts, and the
/// main pane loads them into the crop; where the two differ, both are meant.
struct DefaultCost {
  const char* text = nullptr;  ///< Put into the field of the pane; nullptr leaves it as it is
  bool loaded = false;         ///< Whether the crop gets its number; else the crop keeps what it has
};

/// The default values of one cost: of the stock crops in their order, and of Fallow.
struct DefaultCosts {
  CostField field;
  std::array<DefaultCost, stockCrops.size() + 1> cells;
};

/// All costs that have default values, each once.
[[nodiscard]] std::span<const DefaultCosts> stockCosts();

/// The default value of a cost of a crop; one that leaves everything where there is none.
[[nodiscard]] DefaultCost defaultCost(CropKind kind, const CostField& field);

}  // namespace verdalis
