#include "cli/EvaluationResult.h"

#include "model/EfficiencyFraction.h"
#include "model/checked.h"

namespace verdalis {
namespace {

FieldResult describeField(const Field& kept) {
  Field field = kept.Copy();  // pricing leaves its traces in the field, and the option may be used further
  const Crop& crop = *field.theCrop;
  FieldResult result;
  result.acres = field.acres;
  result.crop = crop.cropType;
  result.netDepth = field.Depth;
  result.grossDepth = grossFromNet(field.Depth);
  result.yield = crop.Yield;
  result.yieldUnit = crop.priceUnits();
  result.price = crop.price;
  result.maxYield = crop.maxYield;
  result.soil = crop.soilName;
  result.costs = field.getCosts();
  result.returns = field.getReturn();
  result.production = field.getProductionCosts();
  result.irrigation = field.irrigCosts->Copy().getCosts(field.Depth, field.acres);
  result.hours = kept.irrigCosts->hours;
  return result;
}

}  // namespace

double OptionResult::acres() const {
  double sum = 0;
  for (const FieldResult& field : fields)
    sum += field.acres;
  return sum;
}

OptionResult describeOption(FieldCollection& option) {
  OptionResult result;
  result.profit = option.getProfit();
  result.costs = option.getCosts();
  result.returns = option.getReturn();
  result.netVolume = option.getVolume();
  for (const auto& field : option)
    result.fields.push_back(describeField(*field));
  return result;
}

EvaluationResult describeRun(const std::vector<std::shared_ptr<FieldCollection>>& options,
                             const ProgramState& state, double seconds) {
  EvaluationResult result;
  result.waterSplits = state.waterSplits;
  result.cropCombinations = state.cropCombinations;
  result.efficiency = EfficiencyFraction;
  result.seconds = seconds;
  for (const auto& option : options) {
    if (option->Count() > 0) result.options.push_back(describeOption(*option));
  }
  return result;
}

}  // namespace verdalis
