#include "model/PricedField.h"

#include "model/checked.h"

namespace verdalis {

double totalCosts(const ProductionCosts& production, const PumpingCosts& irrigation) {
  return checked(irrigation.cost + production.cost, "The cost of a field");
}

double salesOf(const Crop& crop, double yield, double acres) {
  return checked(crop.price * yield * acres, "The return of a field");
}

double totalReturns(const Crop& crop, double sales, double acres) {
  return checked(sales + crop.inputCosts.getReturns(acres), "The return of a field");
}

PricedField priceField(const FieldPlan& plan, const Crop& crop, const IrrigationCosts& plant,
                       double efficiency, CostParts* parts) {
  PricedField priced;
  priced.Yield = crop.yieldAt(plan.Depth, plan.annualRain);
  priced.production =
      crop.inputCosts.price(plan.acres, priced.Yield, crop, grossFromNet(plan.Depth, efficiency), efficiency,
                            parts != nullptr ? &parts->production : nullptr);
  priced.irrigation =
      plant.price(plan.Depth, plan.acres, efficiency, parts != nullptr ? &parts->irrigation : nullptr);
  priced.costs = totalCosts(priced.production, priced.irrigation);
  priced.sales = salesOf(crop, priced.Yield, plan.acres);
  priced.returns = totalReturns(crop, priced.sales, plan.acres);
  return priced;
}

}  // namespace verdalis
