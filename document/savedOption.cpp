#include "document/savedOption.h"

#include <algorithm>
#include <string>

#include "document/copyFields.h"
#include "model/savedFields.h"

namespace verdalis {
namespace {

const DocumentCrop* find(const FarmInputs& inputs, const std::string& crop) {
  for (const auto& each : inputs.crops) {
    if (each->name == crop) return each.get();
  }
  return nullptr;
}

SavedOptionField saveField(const Field& field, const FarmInputs& inputs) {
  const Crop& crop = *field.theCrop;
  SavedOptionField saved;
  saved.crop = crop.cropType;
  saved.acres = field.acres;
  saved.depth = field.Depth;
  saved.rain = field.annualRain;
  saved.price = crop.price;
  saved.maxYield = crop.maxYield;
  saved.normalFactor = crop.normalFactor;
  saved.yield = crop.Yield;
  saved.soil = crop.soilName;
  saved.units = crop.cropUnits;
  saved.costs = field.TotalCost;
  saved.returns = field.TotalReturn;
  if (crop.inputCosts.UseBatch) saved.trendedCosts = crop.inputCosts.BatchGeneralCosts;
  if (field.irrigCosts->UseBatch) saved.trendedIrrigation = field.irrigCosts->BatchIrrigationCosts;
  const DocumentCrop* const entered = find(inputs, crop.cropType);
  if (entered == nullptr || !enteredAlike(crop.inputCosts, entered->costs)) saved.ownCosts = crop.inputCosts;
  if (!samePlant(*field.irrigCosts, inputs.plant.plant)) saved.ownPlant = *field.irrigCosts;
  return saved;
}

std::shared_ptr<Crop> cropOf(const SavedOptionField& saved, const FarmInputs& inputs,
                             const CropScenario& library) {
  auto crop = std::make_shared<Crop>();
  for (const auto& each : library) {
    if (each->cropType == saved.crop) *crop = each->Copy();
  }
  crop->cropType = saved.crop;
  crop->cropUnits = saved.units;
  const std::size_t comma = saved.units.find(',');
  crop->cropUnitsArray = {saved.units.substr(0, comma), {}};
  if (comma != std::string::npos) {
    const std::string rest = saved.units.substr(comma + 1);
    crop->cropUnitsArray[1] = rest.substr(0, rest.find(','));
  }
  crop->price = saved.price;
  crop->maxYield = saved.maxYield;
  crop->normalFactor = saved.normalFactor;
  crop->Yield = saved.yield;
  crop->soilName = saved.soil;
  crop->inputCosts = {};
  const DocumentCrop* const entered = find(inputs, saved.crop);
  if (saved.ownCosts) {
    copyFields(costFields(), *saved.ownCosts, crop->inputCosts);
  } else if (entered != nullptr) {
    copyFields(costFields(), entered->costs, crop->inputCosts);
  }
  crop->inputCosts.UseBatch = saved.trendedCosts.has_value();
  crop->inputCosts.BatchGeneralCosts = saved.trendedCosts.value_or(0);
  return crop;
}

std::shared_ptr<Field> fieldOf(const SavedOptionField& saved, const FarmInputs& inputs,
                               const CropScenario& library) {
  auto field = std::make_shared<Field>();
  field->acres = saved.acres;
  field->Depth = saved.depth;
  field->annualRain = saved.rain;
  field->theCrop = cropOf(saved, inputs, library);
  auto plant = std::make_shared<IrrigationCosts>();
  copyFields(plantFields(), saved.ownPlant ? *saved.ownPlant : inputs.plant.plant, *plant);
  plant->UseBatch = saved.trendedIrrigation.has_value();
  plant->BatchIrrigationCosts = saved.trendedIrrigation.value_or(0);
  field->irrigCosts = std::move(plant);
  field->TotalCost = saved.costs;
  field->TotalReturn = saved.returns;
  return field;
}

}  // namespace

SavedOption saveOption(const std::shared_ptr<FieldCollection>& option, const FarmInputs& inputs) {
  SavedOption saved;
  saved.inputs = withChosenCrops(inputs);
  saved.costs = option->TotalCost;
  for (const auto& field : *option)
    saved.fields.push_back(saveField(*field, saved.inputs));
  for (std::size_t i = 0; i < option->theVariable.size(); ++i) {
    saved.trend.push_back(
        {option->theVariable[i], option->theValue[i], option->theUnits[i][0], option->theUnits[i][1], {}});
  }
  saved.shown = option;
  return saved;
}

const std::shared_ptr<FieldCollection>& optionOf(const SavedOption& saved, const CropScenario& library) {
  if (saved.shown) return saved.shown;
  saved.shown = std::make_shared<FieldCollection>();
  for (const SavedOptionField& field : saved.fields)
    saved.shown->Add(fieldOf(field, saved.inputs, library));
  saved.shown->TotalCost = saved.costs;
  for (const SavedOptionTrend& trend : saved.trend)
    saved.shown->AddBatchDescription(trend.variable, trend.value, {trend.before, trend.after});
  return saved.shown;
}

FarmInputs withChosenCrops(const FarmInputs& inputs) {
  FarmInputs chosen = inputs;
  chosen.unknown.clear();
  chosen.crops = {};
  for (const auto& crop : inputs.crops) {
    if (crop->chosen) chosen.crops.add(crop);
  }
  return chosen;
}

}  // namespace verdalis
