#include "engine/evaluateScenario.h"

#include <memory>
#include <utility>

#include "engine/CandidateBuilder.h"
#include "engine/FieldCalculator.h"
#include "model/checked.h"

namespace verdalis {
namespace {

/// Net inches of the undivided farm.
double farmDepth(const Scenario& scenario) {
  if (scenario.acres == 0) {
    throw RunTimeError(
        ErrorNumber::divisionByZero,
        "The farm has 0 acres, so no depth of water can be calculated. Enter the acres in \"Total "
        "Acres:\".");
  }
  return checked(scenario.netVolume / scenario.acres, "The irrigation depth of the farm");
}

/// Offers each crop on the undivided farm. The fields share one plant, so a dry one shows the pumping hours
/// of the crop before it.
void submitNoSplit(const Scenario& scenario, BestMix& best, const NoSplitListener& onNoSplit) {
  const double depth = farmDepth(scenario);
  const auto plant = std::make_shared<IrrigationCosts>(scenario.plant.Copy());
  const auto& crops = scenario.combinations.crops();
  for (std::size_t i = 0; i < crops.size(); ++i) {
    auto field = std::make_shared<Field>();
    field->theCrop = std::make_shared<Crop>(crops[i]->Copy());
    field->acres = scenario.acres;
    field->annualRain = scenario.rain;
    field->Depth = netDepthOf(*crops[i], depth);
    double netDepth =
        field->Depth;  // setYield limits what it is handed to the table; the field keeps its own
    field->theCrop->setYield(netDepth, scenario.rain);
    field->irrigCosts = plant;
    FieldCollection candidate;
    candidate.Add(field);
    best.submit(candidate, scenario.efficiency);
    if (onNoSplit) onNoSplit(i, *field);
  }
}

}  // namespace

std::optional<BestMix> evaluateScenario(const Scenario& scenario, ProgramState& state, RunHooks& hooks,
                                        const NoSplitListener& onNoSplit) {
  std::optional<BestMix> best = evaluateCombinations(scenario.searchInputs(), state, hooks);
  if (!best || state.CancelRequested) return std::nullopt;
  if (scenario.noSplit) submitNoSplit(scenario, *best, onNoSplit);
  return best;
}

}  // namespace verdalis
