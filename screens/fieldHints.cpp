#include "screens/fieldHints.h"

#include <algorithm>
#include <cmath>

#include "engine/MakingSplits.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The leading number of a text; nothing if it is too large.
std::optional<double> leadingNumber(const std::string& text) {
  try {
    return Val(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// The number that a reader sees in a text; nothing if it is none.
std::optional<double> seenNumber(const std::string& text) {
  if (!isNumeric(text)) return std::nullopt;
  try {
    return toDouble(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> readingHint(const std::string& what, const std::string& text, bool isWhole) {
  if (text.find_first_not_of(" \t") == std::string::npos) return std::nullopt;
  const std::optional<double> read = leadingNumber(text);
  if (!read) return what + ": this number is too large.";
  const std::optional<double> seen = seenNumber(text);
  if (seen == read) return *read < 0 ? std::optional(what + ": this is below 0.") : std::nullopt;
  if (!seen && isWhole) return what + ": this is not a number.";
  const bool hasComma = text.find(',') != std::string::npos;
  if (!seen && *read == 0 && !hasComma) return what + ": this is not a number. It counts as 0.";
  return what + ": read as " + generalText(*read) +
         (hasComma ? ". Leave out the comma." : ". Enter digits only.");
}

std::optional<std::string> rainHint(const Crop& crop, const std::string& txtAnnRain) {
  if (!isNumeric(txtAnnRain)) return std::nullopt;
  const std::optional<double> rain = leadingNumber(txtAnnRain);
  if (!crop.yieldTable || !rain) return std::nullopt;
  const int first = crop.yieldTable->firstRain();
  const int last = crop.yieldTable->lastRain();
  const double year = std::nearbyint(*rain);
  if (year >= first && year <= last) return std::nullopt;
  return "Annual rainfall: the yields of " + crop.cropType + " are known from " + std::to_string(first) +
         " to " + std::to_string(last) + " inches.";
}

std::optional<std::string> capacityHint(const IrrigationCosts& plant, const std::string& txtArea,
                                        const std::string& txtMax) {
  if (plant.GPM <= 0 || plant.dblEstHours <= 0) return std::nullopt;
  const std::optional<double> acres = leadingNumber(txtArea);
  const std::optional<double> asked = leadingNumber(txtMax);
  if (!acres || !asked || *acres <= 0) return std::nullopt;
  try {
    const double inches = plant.getMaxInches(*acres);
    if (*asked <= inches) return std::nullopt;
    return "Gross irrigation: the plant pumps no more than " + formatNumber(inches, "#,##0.0") +
           " inches in its hours.";
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

std::optional<MissingInput> missingInput(const ScenarioInputs& inputs) {
  using Field = MissingInput::Field;
  const auto isAbove0 = [](const std::string& text) {
    const std::optional<double> value = leadingNumber(text);
    return value && *value > 0;
  };
  if (!isAbove0(inputs.txtArea)) return MissingInput{Field::acres, "Enter the total acres"};
  if (!isNumeric(inputs.txtArea)) return MissingInput{Field::acres, "Correct the total acres"};
  if (!isAbove0(inputs.txtMax)) return MissingInput{Field::irrigation, "Enter the gross irrigation"};
  if (inputs.lblVolume.empty())
    return MissingInput{Field::irrigation, "The water comes to less than half an acre-inch"};
  if (!isNumeric(inputs.txtAnnRain)) return MissingInput{Field::rain, "Enter the annual rainfall"};
  if (std::none_of(inputs.Option1.begin(), inputs.Option1.end(), [](bool chosen) { return chosen; }))
    return MissingInput{Field::landSplit, "Choose a land split"};
  if (std::none_of(inputs.cr.begin(), inputs.cr.end(), [](const CropRowInput& row) { return row.isActive; }))
    return MissingInput{Field::crops, "Tick the crops to compare"};
  return std::nullopt;
}

std::optional<std::size_t> waterSplits(std::int16_t fields, std::int16_t factor) {
  ProgramState state;
  state.FineFactor = factor;
  try {
    return static_cast<std::size_t>(makeWaterSplits(fields, 0, 0, state).Count());
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace verdalis
