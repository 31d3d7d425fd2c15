#include "explore/mixes.h"

#include <utility>

#include "engine/evaluateScenario.h"
#include "engine/relaxWishes.h"

namespace verdalis {

std::optional<std::vector<Plan>> exploreMixes(const Farm& farm, std::int16_t count, ProgramState& state,
                                              RunHooks& hooks) {
  Scenario scenario = scenarioOf(farm);
  scenario.size = count;
  scenario.mixes = true;
  hooks.setProgress(static_cast<double>(scenario.depths.Count()), "");
  std::optional<BestMix> best = evaluateScenario(scenario, state, hooks);
  if (!best) return std::nullopt;
  std::vector<Plan> plans;
  for (const BestMix::Option& option : best->returnCollection(true, scenario.efficiency)) {
    if (!option->isNew) plans.push_back(planOf(*option, scenario.efficiency));
  }
  if (!plans.empty()) return plans;
  std::optional<std::vector<Relaxation>> relaxations = relaxWishes(scenario, state, hooks);
  if (!relaxations) return std::nullopt;
  throw NoPlan(std::move(*relaxations), {}, !scenario.wishes.empty());
}

}  // namespace verdalis
