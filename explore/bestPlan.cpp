#include "explore/bestPlan.h"

#include <memory>

#include "engine/evaluateScenario.h"
#include "model/checked.h"

namespace verdalis {
namespace {

/// Hooks for one of several searches. A search resets a cancel at its start; these hooks set it again.
class StandingCancel : public RunHooks {
 public:
  StandingCancel(const ProgramState& caller, RunHooks& hooks, ProgramState& own)
      : caller_(caller), hooks_(hooks), own_(own) {}

  void pumpEvents() override {
    hooks_.pumpEvents();
    own_.CancelRequested = caller_.CancelRequested;
  }

 private:
  const ProgramState& caller_;
  RunHooks& hooks_;
  ProgramState& own_;
};

}  // namespace

BestMix::Option bestOption(const Farm& farm, ProgramState& state, RunHooks& hooks) {
  ProgramState own;
  StandingCancel standing(state, hooks, own);
  Scenario scenario = scenarioOf(farm);
  scenario.size = 1;
  scenario.mixes = false;  // the best plan is also the best of its mix
  std::optional<BestMix> best = evaluateScenario(scenario, own, standing);
  if (!best || state.CancelRequested) return nullptr;
  BestMix::Option option = best->returnCollection(false, scenario.efficiency).front();
  if (!option->isNew) return option;
  std::optional<std::vector<Relaxation>> relaxations = relaxWishes(scenario, own, standing);
  if (!relaxations || state.CancelRequested) return nullptr;
  throw NoPlan(std::move(*relaxations), {}, !scenario.wishes.empty());
}

Plan planOf(FieldCollection& option, double efficiency) {
  Plan plan;
  plan.profit = option.getProfit(efficiency);
  for (const auto& field : option) {
    plan.fields.push_back({field->acres, field->theCrop->cropType, field->Depth,
                           grossFromNet(field->Depth, efficiency), field->theCrop->Yield});
  }
  return plan;
}

std::optional<Plan> bestPlan(const Farm& farm, ProgramState& state, RunHooks& hooks) {
  const BestMix::Option option = bestOption(farm, state, hooks);
  if (!option) return std::nullopt;
  return planOf(*option, farm.efficiency / 100);
}

}  // namespace verdalis
