#include "model/CropKind.h"
#include "model/StockCrops.h"
#include "model/checked.h"
#include "results/explainParts.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Production costs: each takes the acres, some the life of the stand.
class ProductionSteps {
 public:
  ProductionSteps(ExplainedSteps& steps, const ExplainedField& field)
      : steps_(steps), field_(field), costs_(field.crop.inputCosts), parts_(field.parts.production) {}

  void explain() {
    const NutrientRates rates = nutrientRates(cropKind(field_.crop.cropType));
    const ProductionCosts& priced = field_.priced.production;
    addNutrient("Nitrogen", costs_.NOptimal, rates.nitrogen, priced.nitrogen, costs_.NitrogenCost,
                parts_.nitrogen);
    addNutrient("Phosphorus", costs_.POptimal, rates.phosphorus, priced.phosphorus, costs_.PCost,
                parts_.phosphorus);
    addSeed();
    addRate("Herbicide cost", costs_.Herbicide, parts_.herbicide);
    addRate("Insecticide cost", costs_.Insecticide, parts_.insecticide);
    addRate("Tillage cost", costs_.Tillage, parts_.tillage, perStand());
    addRate("Planting cost", costs_.Planting, parts_.planting, perStand());
    addRate("Fertilizer application cost", costs_.FertilizerApplication, parts_.fertilizerApplication);
    addRate("Herbicide application cost", costs_.HerbicideApplication, parts_.herbicideApplication);
    addRate("Insecticide application cost", costs_.InsecticideApplication, parts_.insecticideApplication);
    steps_.addPerAcre("Harvesting costs", harvestFormula() + " x " + steps_.acresText(), parts_.harvest);
    addRate("Misc. costs", costs_.MiscCost, parts_.misc);
    steps_.addPerAcre("Production costs", "the sum of the costs of nitrogen to misc.", priced.cost);
  }

 private:
  void addNutrient(const std::string& name, bool byYield, double rate, double applied, double price,
                   double cost) {
    const std::string digits = formatNumber(applied, "###,##0.0");
    steps_.add(
        name + " applied",
        byYield ? "yield " + yield() + " x " + generalText(rate) + " lb for each " + unit() : "as entered",
        applied, digits, "lb/ac");
    steps_.addPerAcre(name + " cost",
                      "applied " + digits + " lb/ac x " + rateText(price) + "/lb x " + steps_.acresText(),
                      cost);
  }

  void addSeed() {
    const double rate = field_.priced.production.seedRate;
    const SeedUnits units = seedUnits(field_.crop.cropType);
    const std::string digits = formatNumber(rate, "###,###");
    const std::string shown = digits.empty() ? "0" : digits;
    const bool byWater =
        costs_.SeedOptimal && optimalSeedRate(cropKind(field_.crop.cropType), field_.plan.Depth).has_value();
    steps_.add(
        "Seeds planting rate",
        byWater ? "the rate for net irrigation " + inches(field_.plan.Depth, "###,##0.0") : "as entered",
        rate, shown, std::string(units.rate.substr(1)));
    steps_.addPerAcre("Seed cost",
                      shown + std::string(units.rate) + " x $" + formatNumber(costs_.SeedCost, "##0.00") +
                          std::string(units.cost) + " x " + steps_.acresText() + perStand(),
                      parts_.seed);
  }

  void addRate(const std::string& what, double rate, double cost, const std::string& end = {}) {
    const std::string formula = dollarsAnAcre(rate, "###,##0.00") + " x " + steps_.acresText() + end;
    if (end.empty()) {
      steps_.addMoney(what, formula, cost);
    } else {
      steps_.addPerAcre(what, formula, cost);
    }
  }

  /// The establishment of a forage crop is spread over its stand.
  [[nodiscard]] std::string perStand() const {
    if (!field_.crop.isForage()) return {};
    return " / life of stand " + counted(field_.priced.production.stand, "year");
  }

  [[nodiscard]] std::string harvestFormula() const {
    const CropKind kind = cropKind(field_.crop.cropType);
    if (kind == CropKind::alfalfa) {
      if (costs_.AlfalfaPerTon > 0)
        return "yield " + yield() + " x " + rateText(costs_.AlfalfaPerTon) + " per ton";
      const auto operations = [](const char* name, double price, double count) {
        return std::string(name) + " " + rateText(price) + " x " + generalText(count);
      };
      return "(" + operations("swathing", costs_.AlfalfaSwathing, costs_.AlfalfaSwathingNum) + " + " +
             operations("raking", costs_.AlfalfaRaking, costs_.AlfalfaRakingNum) + " + " +
             operations("baling", costs_.AlfalfaBaling, costs_.AlfalfaBalingNum) + ")";
    }
    const bool sunflower = kind == CropKind::sunflower;  // its rates are for 100 lb
    const std::string per = " per " + (sunflower ? "100 lb" : unit());
    const std::string hundreds = sunflower ? " / 100" : "";
    if (costs_.HarvestFlatRate > 0)
      return "yield " + yield() + hundreds + " x flat rate " + rateText(costs_.HarvestFlatRate) + per;
    return "(base charge " + rateText(costs_.HarvestBasePerAcre) + " + extra " +
           rateText(costs_.HarvestExceedRate) + per + " x (yield " + yield() + " - " +
           generalText(costs_.HarvestExceedBu) + ")" + hundreds + " + hauling " +
           rateText(costs_.HarvestHauling) + per + " x yield" + hundreds + ")";
  }

  [[nodiscard]] std::string yield() const { return yieldText(field_.crop, field_.priced.Yield); }
  [[nodiscard]] std::string unit() const {
    return field_.crop.priceUnits().empty() ? "unit" : field_.crop.priceUnits();
  }

  ExplainedSteps& steps_;
  const ExplainedField& field_;
  const inputCosts& costs_;
  const ProductionParts& parts_;
};

std::string hoursText(double hours) {
  const std::string text = formatNumber(hours, "###,###");
  return (text.empty() ? "0" : text);
}

/// Why a field's irrigation costs nothing.
std::string whyNothing(const ExplainedField& field) {
  if (!field.plant.active) return "no irrigation costs have been applied to the farm, so water costs nothing";
  if (!(field.plan.Depth > 0)) return "without water there is nothing to pump";
  return "the plant has no discharge rate or no fuel performance, so water costs nothing";
}

void explainPumping(ExplainedSteps& steps, const ExplainedField& field) {
  const IrrigationCosts& plant = field.plant;
  const PumpingCosts& priced = field.priced.irrigation;
  const std::string gross = inches(grossFromNet(field.plan.Depth, field.efficiency), "###,##0.0");
  const std::string power = formatNumber(field.parts.irrigation.waterHorsepower, "###,##0.0");
  steps.add("Water horsepower",
            "(pressure " + generalText(plant.PSI) + " psi x " + generalText(feetPerPsi) + " + lift " +
                generalText(plant.Lift) + " feet) x discharge rate " + generalText(plant.GPM) + " GPM / " +
                formatNumber(gallonFeetPerHorsepower, "###,###"),
            field.parts.irrigation.waterHorsepower, power, "hp");
  steps.add("Pumping hours",
            "gross irrigation " + gross + " x " + steps.acresText() + " / (" + generalText(plant.GPM) +
                " GPM / " + generalText(gpmPerAcreInchHour) + ")",
            priced.hours, hoursText(priced.hours), "hrs");
  steps.addPerAcre("Labor cost",
                   generalText(laborHoursPerAcre) + " hours an acre x " + rateText(plant.LaborPerHour) +
                       " /hr x " + steps.acresText(),
                   field.parts.irrigation.labor);
  steps.addPerAcre("Fuel cost",
                   "water horsepower " + power + " / " + generalText(plant.NPC) + " a unit of " +
                       plant.FuelType + " x " + hoursText(priced.hours) + " hrs x $" +
                       formatNumber(plant.cost, "##0.00") + "/ unit",
                   field.parts.irrigation.fuel);
  steps.addPerAcre("Maintenance & repairs",
                   rateText(plant.RepairsPerAcreInch) + " /acre-inch x " + gross + " x " + steps.acresText(),
                   field.parts.irrigation.repairs);
}

}  // namespace

void explainProduction(ExplainedSteps& steps, const ExplainedField& field) {
  const inputCosts& costs = field.crop.inputCosts;
  if (!costs.UseBatch) {
    ProductionSteps(steps, field).explain();
    return;
  }
  steps.addPerAcre("Production costs",
                   "general production costs of the trend " + rateText(costs.BatchGeneralCosts) +
                       " /acre x " + steps.acresText(),
                   field.priced.production.cost);
}

void explainIrrigation(ExplainedSteps& steps, const ExplainedField& field) {
  const IrrigationCosts& plant = field.plant;
  const double cost = field.priced.irrigation.cost;
  if (plant.UseBatch) {
    steps.addPerAcre("Irrigation costs",
                     "irrigation costs of the trend " + rateText(plant.BatchIrrigationCosts) +
                         " /acre-inch x net irrigation " + inches(field.plan.Depth, "###,##0.0") + " x " +
                         steps.acresText(),
                     cost);
    return;
  }
  const bool pumps = plant.pumps(field.plan.Depth);
  if (pumps) explainPumping(steps, field);
  steps.addPerAcre("Irrigation costs", pumps ? "labor + fuel + maintenance & repairs" : whyNothing(field),
                   cost);
}

}  // namespace verdalis
