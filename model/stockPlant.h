#pragma once

#include <span>
#include <string_view>

#include "model/savedFields.h"

namespace verdalis {

/// Default value of a field of the plant.
struct PlantDefault {
  SavedField<IrrigationCosts> field;
  std::string_view text;  ///< As shown; the plant gets the value read from it
};

/// Default repairs as shown, $ per acre-inch. The pane starts with it too.
inline constexpr std::string_view stockRepairsText = "0.33";

/// All fields of the plant with a default value, each once.
[[nodiscard]] std::span<const PlantDefault> stockPlant();

/// Default value of a field as shown; empty if it has none.
[[nodiscard]] std::string_view defaultPlantText(const SavedField<IrrigationCosts>& field);

}  // namespace verdalis
