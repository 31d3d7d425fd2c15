#include "trend/TrendVariables.h"

#include "model/checked.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Sets the yield at the field's water and rain. setYield() limits the depth to the table; the field keeps
/// its own depth.
void lookUpYield(Field& field) {
  double depth = field.Depth;
  field.theCrop->setYield(depth, field.annualRain);
}

void productionCostsToInputs(TrendInputs& inputs, std::size_t row, double value) {
  inputCosts& costs = cropOfRow(inputs, static_cast<double>(row))->inputCosts;
  costs.UseBatch = true;
  costs.BatchGeneralCosts = value;
}

void irrigationCostsToInputs(TrendInputs& inputs, std::size_t /*row*/, double value) {
  IrrigationCosts& plant = inputs.tempIrrigationCosts();
  plant.UseBatch = true;
  plant.BatchIrrigationCosts = value;
}

void productionCostsToField(Field& field, double value) {
  field.theCrop->inputCosts.BatchGeneralCosts = value;
  field.theCrop->inputCosts.UseBatch = true;
}

void maxYieldToField(Field& field, double value) {
  field.theCrop->maxYield = value;
  field.theCrop->setNormal(value, field.annualRain);
  lookUpYield(field);
}

/// Sets the net water from the unchanged gross water and the new efficiency.
void efficiencyToField(Field& field, double value) {
  field.Depth = checked((value / 100) * grossFromNet(field.Depth), "The net irrigation of a field");
  lookUpYield(field);
}

void irrigationCostsToField(Field& field, double value) {
  field.irrigCosts->BatchIrrigationCosts = value;
  field.irrigCosts->UseBatch = true;
}

void rainToField(Field& field, double value) {
  field.annualRain = value;
  lookUpYield(field);
}

/// The word of the crop's units that the unit contains.
std::string cropUnit(const TrendVariable& variable, const Crop* crop) {
  if (variable.cropUnit < 0 || crop == nullptr) return {};
  return crop->cropUnitsArray.at(static_cast<std::size_t>(variable.cropUnit));
}

}  // namespace

const std::array<TrendVariable, trendVariableCount>& trendVariables() {
  // The production costs are headed "Product" after a fixed trend and "Production" elsewhere. This is
  // intended.
  static constexpr std::array<TrendVariable, trendVariableCount> variables{{
      {"Price per Unit", "Crop Price", "Crop Price", true, 0, "($ / ", ")", "$", "/ ", "",
       [](TrendInputs& inputs, std::size_t row, double value) { inputs.setPrice(row, value); },
       [](Field& field, double value) { field.theCrop->price = value; }},
      {"Total Production Costs*", "General Production Costs", "General Product Costs", true, -1, "($ / ac",
       ")", "$", "/ ac", "", productionCostsToInputs, productionCostsToField},
      {"Maximum Yield", "Maximum Yield", "Maximum Yield", true, 1, "(", " / acre)", "", "", " / acre",
       [](TrendInputs& inputs, std::size_t row, double value) { inputs.setMaxYield(row, value); },
       maxYieldToField},
      {"Irrigation System Efficiency", "Irrigation System Efficiency", "Irrigation System Efficiency", false,
       -1, "(%", ")", "", "%", "",
       [](TrendInputs& inputs, std::size_t, double value) { inputs.setTxtEff(generalText(value)); },
       efficiencyToField},
      {"Irrigation Costs", "Irrigation Costs", "Irrigation Costs", false, -1, "($ / ac-in", ")", "$",
       "/ ac-in", "", irrigationCostsToInputs, irrigationCostsToField},
      {"Effective Annual Rainfall", "Annual Rainfall", "Annual Rainfall", false, -1, "(inches", ")", "",
       "inches", "",
       [](TrendInputs& inputs, std::size_t, double value) { inputs.setTxtAnnRain(generalText(value)); },
       rainToField},
  }};
  return variables;
}

const TrendVariable& trendVariable(double index) {
  const std::int16_t position = toInt16(index, "The trend variable");
  if (position < 0 || static_cast<std::size_t>(position) >= trendVariableCount) {
    throw RunTimeError(ErrorNumber::subscript,
                       "There is no trend variable " + std::to_string(position) + ", only 0 to 5.");
  }
  return trendVariables().at(static_cast<std::size_t>(position));
}

std::string TrendVariable::unitCaption(const Crop* crop) const {
  return captionFront + verdalis::cropUnit(*this, crop) + captionBack;
}

UnitsPair TrendVariable::units(const Crop* crop) const {
  return {prefix, suffixFront + verdalis::cropUnit(*this, crop) + suffixBack};
}

UnitsPair GetVariableUnits(const TrendInputs& inputs, double variableIndex, double cropRowIndex) {
  const TrendVariable& variable = trendVariable(variableIndex);
  if (variable.cropUnit < 0) return variable.units(nullptr);
  return variable.units(cropOfRow(inputs, cropRowIndex).get());
}

}  // namespace verdalis
