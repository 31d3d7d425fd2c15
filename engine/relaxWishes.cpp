#include "engine/relaxWishes.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>

#include "engine/evaluateScenario.h"

namespace verdalis {

std::optional<std::vector<Relaxation>> relaxWishes(const Scenario& scenario, ProgramState& state,
                                                   RunHooks& hooks) {
  const std::size_t count = scenario.wishes.size();
  std::vector<Relaxation> relaxations;
  Scenario relaxed = scenario;
  relaxed.size = 1;
  relaxed.mixes = false;
  for (std::size_t size = 1; size <= count && relaxations.empty(); ++size) {
    for (std::uint32_t set = 0; set < 1U << count; ++set) {
      if (static_cast<std::size_t>(std::popcount(set)) != size) continue;
      Relaxation relaxation;
      relaxed.wishes.clear();
      for (std::size_t i = 0; i < count; ++i)
        ((set >> i & 1U) != 0 ? relaxation.without : relaxed.wishes).push_back(scenario.wishes[i]);
      std::optional<BestMix> best = evaluateScenario(relaxed, state, hooks);
      if (!best) return std::nullopt;
      const std::shared_ptr<FieldCollection> option = best->returnCollection(false).front();
      if (option->isNew) continue;
      relaxation.profit = option->getProfit(scenario.efficiency);
      relaxations.push_back(std::move(relaxation));
    }
  }
  std::stable_sort(relaxations.begin(), relaxations.end(),
                   [](const Relaxation& a, const Relaxation& b) { return a.profit > b.profit; });
  return relaxations;
}

}  // namespace verdalis
