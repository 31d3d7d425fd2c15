#include "engine/evaluateScenario.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "engine/CandidateBuilder.h"
#include "engine/FieldCalculator.h"
#include "engine/meetsWishes.h"
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

/// Takes a candidate. Pricing it may change it.
using Submit = std::function<void(FieldCollection&)>;

/// Submits each crop on the undivided farm that meets the wishes. The fields share one plant, so a dry field
/// shows the pumping hours of the crop before it.
void submitNoSplit(const Scenario& scenario, const Submit& submit, const NoSplitListener& onNoSplit) {
  const double depth = farmDepth(scenario);
  const auto plant = std::make_shared<IrrigationCosts>(scenario.plant.Copy());
  const auto& crops = scenario.combinations.crops();
  for (std::size_t i = 0; i < crops.size(); ++i) {
    auto field = std::make_shared<Field>();
    field->theCrop = std::make_shared<Crop>(crops[i]->Copy());
    field->acres = scenario.acres;
    field->annualRain = scenario.rain;
    field->Depth = netDepthOf(*crops[i], depth);
    field->irrigCosts = plant;
    FieldCollection candidate;
    candidate.Add(field);
    if (!meetsWishes(scenario.wishes, wishedFields(candidate, scenario.efficiency))) continue;
    double netDepth =
        field->Depth;  // setYield limits its argument to the table; the field keeps its own depth
    field->theCrop->setYield(netDepth, scenario.rain);
    submit(candidate);
    if (onNoSplit) onNoSplit(i, *field);
  }
}

/// Acres and crops of an option, sorted.
std::vector<std::pair<double, std::string>> mixOf(const FieldCollection& option) {
  std::vector<std::pair<double, std::string>> mix;
  for (const auto& field : option)
    mix.emplace_back(field->acres, field->theCrop->cropType);
  std::sort(mix.begin(), mix.end());
  return mix;
}

/// Adds the crops on the undivided farm to a ranking of mixes. On a farm with one field they are the same
/// mixes.
void mixNoSplit(const Scenario& scenario, BestMix& best, const NoSplitListener& onNoSplit) {
  std::vector<BestMix::Option> ranking = best.Copy().returnCollection(false);
  const auto submit = [&](FieldCollection& candidate) {
    const double profit = candidate.getProfit(scenario.efficiency);
    const auto place = std::find_if(ranking.begin(), ranking.end(), [&](const BestMix::Option& option) {
      return option->isNew || option->getProfit(scenario.efficiency) <= profit;
    });
    ranking.insert(place, std::make_shared<FieldCollection>(candidate.Copy()));
  };
  submitNoSplit(scenario, submit, onNoSplit);
  std::set<std::vector<std::pair<double, std::string>>> seen;
  const auto hasStood = [&](const BestMix::Option& option) {
    return !option->isNew && !seen.insert(mixOf(*option)).second;
  };
  ranking.erase(std::remove_if(ranking.begin(), ranking.end(), hasStood), ranking.end());
  while (ranking.size() < static_cast<std::size_t>(scenario.size)) {
    ranking.push_back(std::make_shared<FieldCollection>());
    ranking.back()->isNew = true;
  }
  ranking.resize(static_cast<std::size_t>(scenario.size));
  best.SetBestArray(ranking);
  best.LowEnd = ranking.back()->getProfit(scenario.efficiency);
}

}  // namespace

std::optional<BestMix> evaluateScenario(const Scenario& scenario, ProgramState& state, RunHooks& hooks,
                                        const NoSplitListener& onNoSplit) {
  std::optional<BestMix> best =
      evaluateWithWishes(scenario.searchInputs(), scenario.wishes, scenario.mixes, state, hooks);
  if (!best || state.CancelRequested) return std::nullopt;
  if (!scenario.noSplit) return best;
  if (scenario.mixes) {
    mixNoSplit(scenario, *best, onNoSplit);
  } else {
    const auto submit = [&](FieldCollection& candidate) { best->submit(candidate, scenario.efficiency); };
    submitNoSplit(scenario, submit, onNoSplit);
  }
  return best;
}

}  // namespace verdalis
