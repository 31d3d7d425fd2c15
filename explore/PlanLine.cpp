#include "explore/PlanLine.h"

#include <cmath>
#include <cstddef>
#include <memory>

#include "model/PricedField.h"
#include "model/checked.h"

namespace verdalis {

PlanLine::PlanLine(const Farm& farm, const FarmInput& input, const FieldCollection& option)
    : farm_(farm), input_(input) {
  farm_.crops = CropScenario();
  for (const auto& field : option) {
    farm_.crops.Add(std::make_shared<Crop>(field->theCrop->Copy()));
    fields_.push_back({field->acres, field->Depth});
  }
}

PlanLine::Point PlanLine::at(double value) const {
  const Farm varied = withInput(farm_, input_, value);
  const double efficiency = varied.efficiency / 100;
  Point point;
  double returns = 0;
  double costs = 0;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const auto [acres, depth] = fields_[i];
    const Crop& crop = *varied.crops.NewEnum()[i];
    const PricedField priced = priceField({acres, depth, varied.rain}, crop, varied.plant, efficiency);
    returns += priced.returns;
    costs += priced.costs;
    point.magnitude += std::fabs(priced.returns) + std::fabs(priced.costs);
    point.plan.fields.push_back({acres, crop.cropType, depth, grossFromNet(depth, efficiency), priced.Yield});
  }
  point.plan.profit =
      checked(checked(returns, "The return of the farm") - checked(costs, "The cost of the farm"),
              "The profit of the farm");
  return point;
}

}  // namespace verdalis
