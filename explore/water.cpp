#include "explore/water.h"

#include <algorithm>
#include <utility>

#include "explore/FarmInput.h"
#include "model/checked.h"

namespace verdalis {
namespace {

const FarmInput water{FarmInput::Kind::water, {}};
constexpr std::size_t usualCount = 20;

double perAcreInch(double dollars, const Farm& farm) {
  return checked(dollars / farm.acres, "The worth of an inch of water");
}

/// The value of the last inch; nothing if there is no plan without it, and after a cancel.
std::optional<double> lastInch(const Farm& farm, const Plan& now, ProgramState& state, RunHooks& hooks) {
  const double rest = farm.grossDepth - 1;
  if (rest < 0 || !isWater(farm, rest)) return std::nullopt;
  try {
    const std::optional<Plan> plan = bestPlan(withInput(farm, water, rest), state, hooks);
    if (!plan) return std::nullopt;
    return perAcreInch(now.profit - plan->profit, farm);
  } catch (const NoPlan&) {
    return std::nullopt;  // the wishes require the last inch
  }
}

}  // namespace

bool isWater(const Farm& farm, double grossInches) {
  Farm watered;
  watered.acres = farm.acres;
  watered.takeWater(grossInches);
  return watered.grossVolume != 0;
}

std::vector<double> usualAmounts(const Farm& farm) {
  std::vector<double> amounts = evenValues(farm.grossDepth / 10, farm.grossDepth * 2, usualCount);
  std::erase_if(amounts, [&](double gross) { return !isWater(farm, gross); });
  return amounts;
}

std::optional<WaterResult> exploreWater(const Farm& farm, const std::vector<double>& amounts,
                                        ProgramState& state, RunHooks& hooks, unsigned jobs) {
  // The present amount, one inch more, and then the requested amounts.
  std::vector<double> all{farm.grossDepth, farm.grossDepth + 1};
  const std::size_t first = all.size();
  all.insert(all.end(), amounts.begin(), amounts.end());

  hooks.showProgress("Exploring Water");
  hooks.setProgress(static_cast<double>(all.size()), "");
  const FarmOfPoint farmOf = [&](const Farm& base, std::size_t point) {
    return point == 0 ? base.Copy() : withInput(base, water, all[point]);
  };
  const NameOfPoint nameOf = [&](std::size_t point) { return inputText(water, all[point]); };
  std::optional<std::vector<Plan>> plans = bestPlans(farm, all.size(), farmOf, nameOf, state, hooks, jobs);
  if (!plans) return std::nullopt;

  WaterResult result;
  result.nextInch = perAcreInch((*plans)[1].profit - (*plans)[0].profit, farm);
  result.now = {farm.grossDepth, std::move((*plans)[0])};
  result.lastInch = lastInch(farm, result.now.best, state, hooks);
  if (state.CancelRequested) return std::nullopt;
  hooks.closeProgress();
  for (std::size_t i = first; i < all.size(); ++i)
    result.points.push_back({all[i], std::move((*plans)[i])});
  const auto most = std::max_element(
      result.points.begin(), result.points.end(),
      [](const WaterPoint& a, const WaterPoint& b) { return a.best.profit < b.best.profit; });
  result.most = static_cast<std::size_t>(most - result.points.begin());
  return result;
}

}  // namespace verdalis
