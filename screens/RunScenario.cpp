#include "screens/RunScenario.h"

#include <optional>
#include <utility>

#include "engine/EfficiencyInForce.h"
#include "engine/evaluateScenario.h"
#include "screens/readScenario.h"

namespace verdalis {
namespace {

/// Stores the results of pricing a crop on the undivided farm in the crop of the library. Values typed on the
/// cost screen during the run are not overwritten.
void leaveInLibrary(const Crop& before, const Crop& priced, Crop& kept) {
  const inputCosts& costs = priced.inputCosts;
  kept.Yield = priced.Yield;
  kept.inputCosts.NPerAcre = costs.NPerAcre;
  kept.inputCosts.PPerAcre = costs.PPerAcre;
  if (kept.inputCosts.SeedOptimal && before.inputCosts.SeedRate != costs.SeedRate) {
    kept.inputCosts.SeedRate = costs.SeedRate;
  }
  if (kept.inputCosts.AlfalfaStand == 0.0 && before.inputCosts.AlfalfaStand != costs.AlfalfaStand) {
    kept.inputCosts.AlfalfaStand = costs.AlfalfaStand;
  }
}

}  // namespace

BestMix RunScenario(const ScenarioInputs& inputs, const CropScenario& library,
                    const std::shared_ptr<IrrigationCosts>& tempIrrigationCosts, ProgramState& state,
                    RunHooks& callerHooks, const std::string& description) {
  const double efficiency = readEfficiency(inputs);
  EfficiencyInForce hooks(efficiency, callerHooks);
  hooks.showProgress("Evaluating Possible Combinations");
  const auto beginProgress = [&](std::size_t splits) {
    hooks.setProgress(static_cast<double>(splits), description);
  };
  const Scenario scenario =
      readScenario(inputs, library, *tempIrrigationCosts, efficiency, state, beginProgress);
  const CropScenario crops = state.cs;  // a nested run has its own crops

  // The only place where pricing changes the library and the plant: the screens show these values.
  const auto leaveBehind = [&](std::size_t crop, const Field& priced) {
    leaveInLibrary(*scenario.combinations.crops()[crop], *priced.theCrop,
                   *crops.Item(static_cast<long>(crop) + 1));
    tempIrrigationCosts->hours = priced.irrigCosts->hours;
  };
  std::optional<BestMix> best = evaluateScenario(scenario, state, hooks, leaveBehind);
  if (!best) {
    state.TrendCancelled = state.TrendMode;
    return {};
  }
  return std::move(*best);
}

}  // namespace verdalis
