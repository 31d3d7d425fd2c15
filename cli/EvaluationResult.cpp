#include "cli/EvaluationResult.h"

#include "model/EfficiencyFraction.h"
#include "screens/wishText.h"

namespace verdalis {
namespace {

void addOptions(EvaluationResult& result, const std::vector<std::shared_ptr<FieldCollection>>& options) {
  for (const auto& option : options) {
    if (option->Count() > 0) result.options.push_back(describeOption(*option, result.efficiency));
  }
}

}  // namespace

EvaluationResult describeScenario(const Scenario& scenario,
                                  const std::vector<std::shared_ptr<FieldCollection>>& options) {
  EvaluationResult result;
  result.waterSplits = static_cast<std::size_t>(scenario.depths.Count());
  result.cropCombinations = scenario.combinations.Count();
  result.efficiency = scenario.efficiency;
  for (const Wish& wish : scenario.wishes)
    result.wishes.push_back(wishText(wish));
  result.mixes = scenario.mixes;
  addOptions(result, options);
  return result;
}

EvaluationResult describeRun(const std::vector<std::shared_ptr<FieldCollection>>& options,
                             const ProgramState& state, double seconds) {
  EvaluationResult result;
  result.waterSplits = state.waterSplits;
  result.cropCombinations = state.cropCombinations;
  result.efficiency = EfficiencyFraction;
  result.seconds = seconds;
  addOptions(result, options);
  return result;
}

}  // namespace verdalis
