#include "cli/EvaluationResult.h"

#include "model/EfficiencyFraction.h"
#include "model/checked.h"
#include "screens/wishText.h"

namespace verdalis {
namespace {

FieldResult describeField(const Field& kept, double efficiency) {
  Field field = kept.Copy();  // pricing changes the field, and the option may be used again
  const Crop& crop = *field.theCrop;
  FieldResult result;
  result.acres = field.acres;
  result.crop = crop.cropType;
  result.netDepth = field.Depth;
  result.grossDepth = grossFromNet(field.Depth, efficiency);
  result.yield = crop.Yield;
  result.yieldUnit = crop.priceUnits();
  result.price = crop.price;
  result.maxYield = crop.maxYield;
  result.soil = crop.soilName;
  result.costs = field.getCosts(efficiency);
  result.returns = field.getReturn();
  result.production = field.getProductionCosts(efficiency);
  result.irrigation = field.irrigCosts->price(field.Depth, field.acres, efficiency).cost;
  result.hours = kept.irrigCosts->hours;
  return result;
}

void addOptions(EvaluationResult& result, const std::vector<std::shared_ptr<FieldCollection>>& options) {
  for (const auto& option : options) {
    if (option->Count() > 0) result.options.push_back(describeOption(*option, result.efficiency));
  }
}

}  // namespace

double OptionResult::acres() const {
  double sum = 0;
  for (const FieldResult& field : fields)
    sum += field.acres;
  return sum;
}

OptionResult describeOption(FieldCollection& option, double efficiency) {
  OptionResult result;
  result.profit = option.getProfit(efficiency);
  result.costs = option.getCosts(efficiency);
  result.returns = option.getReturn();
  result.netVolume = option.getVolume();
  for (const auto& field : option)
    result.fields.push_back(describeField(*field, efficiency));
  return result;
}

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
