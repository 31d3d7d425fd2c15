#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "model/IrrigationCosts.h"
#include "screens/CropRecord.h"
#include "screens/ScenarioInputs.h"

namespace verdalis {

/// What a user should know about a field.
struct FieldHint {
  const Control* field = nullptr;
  std::string text;  ///< Such as "Total acres: read as 1. Leave out the comma."

  friend bool operator==(const FieldHint&, const FieldHint&) = default;
};

/// How a run reads a number, where that is not what the text looks like; nothing where it is.
/// \param what the field as a sentence names it, such as "Total acres"
/// \param isWhole whether a run refuses a text that is not one number as a whole
[[nodiscard]] std::optional<std::string> readingHint(const std::string& what, const std::string& text,
                                                     bool isWhole = false);

/// The years that the yield table of a chosen crop lacks; nothing if it has this rainfall.
[[nodiscard]] std::optional<std::string> rainHint(const Crop& crop, const std::string& txtAnnRain);

/// The irrigation that is above what the plant can pump; nothing where it is not.
[[nodiscard]] std::optional<std::string> capacityHint(const IrrigationCosts& plant,
                                                      const std::string& txtArea, const std::string& txtMax);

/// What is still missing for a run.
struct MissingInput {
  enum class Field { acres, irrigation, rain, landSplit, crops };
  Field field;
  std::string text;  ///< Such as "Enter the total acres"
};

/// The first input that is missing; nothing if a run can start.
[[nodiscard]] std::optional<MissingInput> missingInput(const ScenarioInputs& inputs);

/// The number of ways to share the water among `fields` fields; nothing for a factor that a run refuses.
[[nodiscard]] std::optional<std::size_t> waterSplits(std::int16_t fields, std::int16_t factor);

}  // namespace verdalis
