#include "results/explainField.h"

#include "model/PricedField.h"
#include "model/checked.h"
#include "results/explainParts.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view totalPattern = "###,##0";

void explainReturns(ExplainedSteps& steps, const ExplainedField& field) {
  const Crop& crop = field.crop;
  const PricedField& priced = field.priced;
  steps.addPerAcre("Sales",
                   "yield " + yieldText(crop, priced.Yield) + " x crop price " + rateText(crop.price) +
                       (crop.priceUnits().empty() ? "" : " /" + crop.priceUnits()) + " x " +
                       steps.acresText(),
                   priced.sales);
  const double land = crop.inputCosts.getReturns(field.plan.acres);
  steps.addMoney("Misc. returns",
                 dollarsAnAcre(crop.inputCosts.Returns, "###,##0.00") + " x " + steps.acresText(), land);
  steps.addPerAcre("Total returns",
                   "sales " + moneyText(priced.sales) + " + misc. returns " + moneyText(land), priced.returns,
                   totalPattern);
}

void explainOption(ExplainedSteps& steps, FieldCollection& option, double efficiency) {
  const double profit = option.getProfit(efficiency);
  std::string formula = "returns of all fields " + moneyText(option.getReturn()) + " - costs of all fields " +
                        moneyText(option.getCosts(efficiency));
  double acres = 0;
  std::size_t number = 0;
  std::string parts;
  for (const auto& field : option) {
    acres += field->acres;
    parts += (number == 0 ? "" : ", ") + ("field " + std::to_string(number + 1)) + " " +
             moneyText(field->getProfit(efficiency));
    ++number;
  }
  if (number > 1) formula += "; " + parts;
  steps.addPerAcre("Net return of the option", std::move(formula), profit, totalPattern, acres);
}

}  // namespace

std::vector<ExplainedStep> explainField(const FieldCollection& option, std::size_t number,
                                        double efficiency) {
  FieldCollection own = option.Copy();  // pricing changes the fields
  const Field& asked = *own.Item(static_cast<long>(number));
  const FieldPlan plan{asked.acres, asked.Depth, asked.annualRain};
  ExplainedField field{plan, *asked.theCrop, *asked.irrigCosts, efficiency, {}, {}};
  field.priced = priceField(plan, field.crop, field.plant, efficiency, &field.parts);
  ExplainedSteps steps(plan.acres);
  explainWater(steps, field);
  explainYield(steps, field);
  explainProduction(steps, field);
  explainIrrigation(steps, field);
  const PricedField& priced = field.priced;
  steps.addPerAcre("Total costs",
                   "irrigation costs " + moneyText(priced.irrigation.cost) + " + production costs " +
                       moneyText(priced.production.cost),
                   priced.costs, totalPattern);
  explainReturns(steps, field);
  steps.addPerAcre("Net return of the field",
                   "total returns " + moneyText(priced.returns) + " - total costs " + moneyText(priced.costs),
                   checked(priced.profit(), "The profit of a field"), totalPattern);
  explainOption(steps, own, efficiency);
  return steps.take();
}

}  // namespace verdalis
