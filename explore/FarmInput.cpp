#include "explore/FarmInput.h"

#include <algorithm>
#include <memory>

#include "text/numbers.h"

namespace verdalis {
namespace {

bool isOf(const Crop& crop, const FarmInput& input) {
  return crop.cropType == input.crop;
}

const Crop* cropOf(const Farm& farm, const FarmInput& input) {
  const auto found = std::find_if(farm.crops.begin(), farm.crops.end(),
                                  [&](const std::shared_ptr<Crop>& crop) { return isOf(*crop, input); });
  return found == farm.crops.end() ? nullptr : found->get();
}

}  // namespace

std::string inputName(const FarmInput& input) {
  const std::string word(inputWords.at(static_cast<std::size_t>(input.kind)));
  return isOfCrop(input.kind) ? word + " " + input.crop : word;
}

std::string inputText(const FarmInput& input, double value) {
  return inputName(input) + " " + generalText(value);
}

bool hasInput(const Farm& farm, const FarmInput& input) {
  return !isOfCrop(input.kind) || cropOf(farm, input) != nullptr;
}

double valueOf(const Farm& farm, const FarmInput& input) {
  switch (input.kind) {
    case FarmInput::Kind::water:
      return farm.grossDepth;
    case FarmInput::Kind::rain:
      return farm.rain;
    case FarmInput::Kind::efficiency:
      return farm.efficiency;
    case FarmInput::Kind::fuel:
      return farm.plant.cost;
    case FarmInput::Kind::price:
      return cropOf(farm, input)->price;
    case FarmInput::Kind::maxYield:
      break;
  }
  return cropOf(farm, input)->maxYield;
}

void setInput(Farm& farm, const FarmInput& input, double value) {
  switch (input.kind) {
    case FarmInput::Kind::water:
      farm.takeWater(value);
      return;
    case FarmInput::Kind::rain:
      farm.takeRain(value);
      return;
    case FarmInput::Kind::efficiency:
      farm.efficiency = value;
      return;
    case FarmInput::Kind::fuel:
      farm.plant.cost = value;
      return;
    case FarmInput::Kind::price:
    case FarmInput::Kind::maxYield:
      break;
  }
  for (const auto& crop : farm.crops) {
    if (!isOf(*crop, input)) continue;
    if (input.kind == FarmInput::Kind::price) {
      crop->price = value;
    } else {
      crop->maxYield = value;
      crop->setNormal(value, farm.rain);
    }
  }
}

Farm withInput(const Farm& farm, const FarmInput& input, double value) {
  Farm changed = farm.Copy();
  setInput(changed, input, value);
  return changed;
}

std::vector<double> evenValues(double from, double to, std::size_t count) {
  std::vector<double> values(count);
  for (std::size_t i = 0; i < count; ++i)
    values[i] = from + (to - from) * static_cast<double>(i) / static_cast<double>(count - 1);
  values.back() = to;
  return values;
}

}  // namespace verdalis
