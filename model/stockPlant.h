#pragma once

#include <span>
#include <string_view>

#include "model/savedFields.h"

namespace verdalis {

/// The default value of a field of the plant.
struct PlantDefault {
  SavedField<IrrigationCosts> field;
  std::string_view text;  ///< As it is shown; the plant gets what it reads from it
};

/// All fields of the plant that have a default value, each once.
[[nodiscard]] std::span<const PlantDefault> stockPlant();

/// The default value of a field as it is shown; empty where it has none.
[[nodiscard]] std::string_view defaultPlantText(const SavedField<IrrigationCosts>& field);

}  // namespace verdalis
