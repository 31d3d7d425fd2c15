#include "explore/inputs.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "explore/mixOf.h"
#include "model/CropKind.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

/// The range of rain in the yield tables, inches.
constexpr double leastRain = 11;
constexpr double mostRain = 21;

/// An input with its value, its lower and its higher value; the profits are not set.
InputEffect around(const Farm& farm, const FarmInput& input, double percent, const InputBounds& bounds) {
  InputEffect effect;
  effect.input = input;
  effect.now = valueOf(farm, input);
  const auto held = [&](double value) {
    const double inBounds = bounds.held(value);
    return input.kind == Kind::rain ? std::clamp(inBounds, leastRain, mostRain) : inBounds;
  };
  const double change = std::fabs(effect.now) * percent / 100;
  effect.low = held(effect.now - change);
  effect.high = held(effect.now + change);
  return effect;
}

}  // namespace

double InputBounds::held(double value) const {
  if (least && value < *least) return *least;
  if (most && value > *most) return *most;
  return value;
}

std::vector<FarmInput> inputsOf(const Farm& farm) {
  std::vector<FarmInput> inputs{
      {Kind::water, {}}, {Kind::rain, {}}, {Kind::efficiency, {}}, {Kind::fuel, {}}};
  for (const auto& crop : farm.crops) {
    const FarmInput price{Kind::price, crop->cropType};
    const bool seen = std::find(inputs.begin(), inputs.end(), price) != inputs.end();
    if (seen || cropKind(crop->cropType) == CropKind::fallow) continue;
    inputs.push_back(price);
    inputs.push_back({Kind::maxYield, crop->cropType});
  }
  return inputs;
}

std::optional<InputsResult> exploreInputs(const Farm& farm, double percent,
                                          const std::function<InputBounds(const FarmInput&)>& boundsOf,
                                          ProgramState& state, RunHooks& hooks, unsigned jobs) {
  InputsResult result;
  for (const FarmInput& input : inputsOf(farm))
    result.inputs.push_back(around(farm, input, percent, boundsOf(input)));

  // The present farm, then low and high for each input.
  const std::size_t count = 1 + 2 * result.inputs.size();
  const FarmOfPoint farmOf = [&](const Farm& base, std::size_t point) {
    if (point == 0) return base.Copy();
    const InputEffect& effect = result.inputs[(point - 1) / 2];
    return withInput(base, effect.input, point % 2 == 1 ? effect.low : effect.high);
  };
  const NameOfPoint nameOf = [&](std::size_t point) {
    if (point == 0) return std::string("the farm as it stands");
    const InputEffect& effect = result.inputs[(point - 1) / 2];
    return inputText(effect.input, point % 2 == 1 ? effect.low : effect.high);
  };
  hooks.showProgress("Exploring Inputs");
  hooks.setProgress(static_cast<double>(count), "");
  std::optional<std::vector<Plan>> plans = bestPlans(farm, count, farmOf, nameOf, state, hooks, jobs);
  if (!plans) return std::nullopt;
  hooks.closeProgress();

  result.now = std::move((*plans)[0]);
  const Mix mix = mixOf(result.now);
  for (std::size_t i = 0; i < result.inputs.size(); ++i) {
    const Plan& low = (*plans)[1 + 2 * i];
    const Plan& high = (*plans)[2 + 2 * i];
    InputEffect& effect = result.inputs[i];
    effect.profitLow = low.profit;
    effect.profitHigh = high.profit;
    effect.changesPlan = mixOf(low) != mix || mixOf(high) != mix;
  }
  const auto change = [&](const InputEffect& effect) {
    return std::max(std::fabs(effect.profitLow - result.now.profit),
                    std::fabs(effect.profitHigh - result.now.profit));
  };
  std::stable_sort(result.inputs.begin(), result.inputs.end(),
                   [&](const InputEffect& a, const InputEffect& b) { return change(a) > change(b); });
  return result;
}

}  // namespace verdalis
