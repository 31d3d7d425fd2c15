#include "questions/inputTexts.h"

#include <algorithm>

#include "questions/planText.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

constexpr double leastRain = 11;  // inches, as the yield tables of the stock crops
constexpr double mostRain = 21;

}  // namespace

std::string inputLabel(const FarmInput& input) {
  switch (input.kind) {
    case Kind::water:
      return "Water";
    case Kind::rain:
      return "Rain";
    case Kind::efficiency:
      return "Irrigation efficiency";
    case Kind::fuel:
      return "Price of fuel";
    case Kind::price:
      return "Price of " + printable(input.crop);
    case Kind::maxYield:
      break;
  }
  return "Maximum yield of " + printable(input.crop);
}

std::string inputUnit(const FarmInput& input, const Farm& farm) {
  const auto crop = std::find_if(farm.crops.begin(), farm.crops.end(),
                                 [&](const auto& each) { return each->cropType == input.crop; });
  const std::string unit = crop == farm.crops.end() ? std::string() : printable((*crop)->priceUnits());
  switch (input.kind) {
    case Kind::water:
      return "gross inches over the farm";
    case Kind::rain:
      return "inches a year";
    case Kind::efficiency:
      return "%";
    case Kind::fuel:
      return "$ per unit of fuel";
    case Kind::price:
      return unit.empty() ? "$" : "$ per " + unit;
    case Kind::maxYield:
      break;
  }
  return unit.empty() ? "per acre" : unit + " per acre";
}

NumberStyle inputStyle(const FarmInput& input) {
  switch (input.kind) {
    case Kind::water:
    case Kind::rain:
      return {"", " in", 0, false};
    case Kind::efficiency:
      return {"", "%", 0, false};
    case Kind::fuel:
    case Kind::price:
      return {"$", "", 2, true};
    case Kind::maxYield:
      break;
  }
  return {"", "", 0, true};
}

ChartAxis inputAxis(const FarmInput& input, const Farm& farm) {
  if (input.kind == Kind::water) return {inputUnit(input, farm), inputStyle(input)};
  return {inputLabel(input) + ", " + inputUnit(input, farm), inputStyle(input)};
}

ChartAxis returnAxis() {
  return {"", {"$", "", 0, true}};  // the title of the chart says what it is
}

ValueRange usualRange(const FarmInput& input, const Farm& farm) {
  const InputBounds bounds = inputBounds(input, farm);
  const double now = valueOf(farm, input);
  if (input.kind == Kind::rain) return {leastRain, mostRain, 0};
  if (input.kind == Kind::water) return {now / 10, now * 2, 0};
  ValueRange range{bounds.held(now / 2), bounds.held(now * 3 / 2), 0};
  if (!(range.from < range.to)) range = {0, bounds.held(1), 0};  // nothing is known of a price of 0
  return range;
}

std::vector<std::string> cropNames(const Farm& farm) {
  std::vector<std::string> names;
  for (const auto& crop : farm.crops) {
    if (std::find(names.begin(), names.end(), crop->cropType) == names.end()) names.push_back(crop->cropType);
  }
  return names;
}

std::vector<std::size_t> categoriesOf(const std::vector<PlannedField>& fields,
                                      const std::vector<std::string>& crops) {
  std::vector<std::size_t> categories;
  for (const PlannedField& field : fields) {
    const auto found = std::find(crops.begin(), crops.end(), field.crop);
    categories.push_back(static_cast<std::size_t>(found - crops.begin()));
  }
  return categories;
}

}  // namespace verdalis
