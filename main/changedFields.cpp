#include "main/changedFields.h"

#include <optional>
#include <utility>

#include "main/Comparison.h"
#include "model/LandDivision.h"
#include "model/savedFields.h"
#include "screens/InputCostsTable.h"
#include "screens/IrrigCostsPane.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr const char* othersThen = "Others at the last run.";

std::string toldThen(const std::string& value) {
  return "At the last run: " + (value.empty() ? std::string("empty") : value);
}

/// The number that a text is, as a comparison of inputs reads it.
std::optional<double> numberOf(const std::string& text) {
  if (!isNumeric(text) || text.find(',') != std::string::npos) return std::nullopt;
  try {
    return toDouble(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// "6.50" is the same as "6.5".
bool isSame(const std::string& then, const std::string& now) {
  if (then == now) return true;
  const std::optional<double> number = numberOf(then);
  return number && number == numberOf(now);
}

/// What is in force of an amount of a crop: mostly the number that is typed.
bool isSameAmount(const std::string& then, const std::optional<double>& inForceThen, const std::string& now,
                  const std::optional<double>& inForceNow) {
  if (!inForceThen && !inForceNow) return isSame(then, now);
  const std::optional<double> before = inForceThen ? inForceThen : numberOf(then);
  return before && before == (inForceNow ? inForceNow : numberOf(now));
}

/// Rates that a run fills in are no change.
bool areSameCosts(const inputCosts& then, const inputCosts& now) {
  for (const InputCostsField& field : InputCostsPane::fields()) {
    const auto isOptimal = [&](const inputCosts& costs) {
      return field.optimalFlag != nullptr && costs.*field.optimalFlag;
    };
    if (isOptimal(then) != isOptimal(now)) return false;
    if (isOptimal(then)) continue;
    const auto value = [&](const inputCosts& costs) {
      const double number = field.figure.value(costs);
      // Without a life of stand, pricing stores one year.
      return number == 0 && field.figure == CostField(&inputCosts::AlfalfaStand) ? 1 : number;
    };
    if (value(then) != value(now)) return false;
  }
  return true;
}

/// A text that is no fuel leaves the plant its former performance.
bool isSamePlant(const IrrigationCosts& then, const IrrigationCosts& now) {
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    if (field.value != nullptr && then.*field.value != now.*field.value) return false;
  }
  return then.active == now.active && then.FuelType == now.FuelType && then.NPC == now.NPC;
}

const DocumentCrop* cropNamed(const std::string& name, const FarmInputs& inputs) {
  for (const auto& crop : inputs.crops) {
    if (crop->name == name) return crop.get();
  }
  return nullptr;
}

const CropRecord* rowOf(const std::string& crop, const MainPane& pane) {
  for (const auto& row : pane.cr) {
    if (row->GetCrop() == crop) return row.get();
  }
  return nullptr;
}

void addFarm(std::vector<FieldHint>& changes, const MainPane& pane, const DocumentFarm& then,
             const DocumentFarm& now) {
  const auto add = [&](const Control& field, const std::string& before, const std::string& after) {
    if (!isSame(before, after)) changes.push_back({&field, toldThen(before)});
  };
  add(pane.txtArea, then.txtArea, now.txtArea);
  add(pane.txtMax, then.txtMax, now.txtMax);
  add(pane.txtAnnRain, then.txtAnnRain, now.txtAnnRain);
  add(pane.txtEff, then.txtEff, now.txtEff);
  if (then.split != now.split && then.split && *then.split < landDivisions().size() && now.split &&
      *now.split < pane.Option1.size()) {
    changes.push_back(
        {pane.Option1[*now.split].get(), toldThen(captionHead(landDivisions().at(*then.split).caption))});
  }
  if (then.noSplit != now.noSplit)
    changes.push_back({&pane.chkNoSplit, toldThen(then.noSplit ? "ticked" : "not ticked")});
}

void addCrop(std::vector<FieldHint>& changes, const CropRecord& row, const DocumentCrop* then,
             const DocumentCrop& now) {
  const bool wasChosen = then != nullptr && then->chosen;
  if (wasChosen != now.chosen)
    changes.push_back({&row.chkCrop, toldThen(wasChosen ? "ticked" : "not ticked")});
  if (!wasChosen || !now.chosen) return;
  if (!isSameAmount(then->price, then->priceInForce, now.price, now.priceInForce))
    changes.push_back({&row.txtPrice, toldThen(then->price)});
  if (!isSameAmount(then->maxYield, then->maxYieldInForce, now.maxYield, now.maxYieldInForce))
    changes.push_back({&row.txtMaxYield, toldThen(then->maxYield)});
  if (!areSameCosts(then->costs, now.costs)) changes.push_back({&row.cmdInputCosts, othersThen});
}

}  // namespace

std::vector<FieldHint> changedFields(const MainPane& pane, const FarmInputs& then, const FarmInputs& now) {
  std::vector<FieldHint> changes;
  addFarm(changes, pane, then.farm, now.farm);
  for (std::size_t i = 0; i < now.crops.size(); ++i) {
    const SharedList<DocumentCrop>::Item& crop = now.crops.item(i);
    if (i < then.crops.size() && then.crops.item(i) == crop) continue;
    if (const CropRecord* const row = rowOf(crop->name, pane))
      addCrop(changes, *row, cropNamed(crop->name, then), *crop);
  }
  if (!isSamePlant(then.plant.plant, now.plant.plant)) changes.push_back({&pane.Command8, othersThen});
  if (!isSame(then.options.keep, now.options.keep))
    changes.push_back({&pane.txtArraySize, toldThen(then.options.keep)});
  return changes;
}

}  // namespace verdalis
