#include "explore/inputMap.h"

#include <algorithm>
#include <utility>

namespace verdalis {
namespace {

std::size_t placeOf(Mix mix, std::vector<Mix>& mixes) {
  const auto found = std::find(mixes.begin(), mixes.end(), mix);
  const auto place = static_cast<std::size_t>(found - mixes.begin());
  if (found == mixes.end()) mixes.push_back(std::move(mix));
  return place;
}

}  // namespace

std::optional<InputMap> exploreMap(const Farm& farm, const MapAxis& x, const MapAxis& y, ProgramState& state,
                                   RunHooks& hooks, unsigned jobs) {
  const std::size_t columns = x.values.size();
  const std::size_t count = columns * y.values.size();
  // The second input is set on the copy with the first, so the scale of a crop is correct for its yield and
  // the rain in either order.
  const FarmOfPoint farmOf = [&](const Farm& base, std::size_t point) {
    Farm changed = withInput(base, x.input, x.values[point % columns]);
    setInput(changed, y.input, y.values[point / columns]);
    return changed;
  };
  const NameOfPoint nameOf = [&](std::size_t point) {
    return inputText(x.input, x.values[point % columns]) + ", " +
           inputText(y.input, y.values[point / columns]);
  };
  hooks.showProgress("Exploring a Map");
  hooks.setProgress(static_cast<double>(count), "");
  const std::optional<std::vector<Plan>> plans = bestPlans(farm, count, farmOf, nameOf, state, hooks, jobs);
  if (!plans) return std::nullopt;
  hooks.closeProgress();

  InputMap map{x, y, {}, {}, {}};
  for (const Plan& plan : *plans) {
    map.profit.push_back(plan.profit);
    map.mix.push_back(placeOf(mixOf(plan), map.mixes));
  }
  return map;
}

}  // namespace verdalis
