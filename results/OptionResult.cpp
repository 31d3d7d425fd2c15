#include "results/OptionResult.h"

#include "model/checked.h"

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

}  // namespace verdalis
