#include "trend/TrendExecution.h"

#include <algorithm>
#include <utility>

#include "engine/EfficiencyInForce.h"
#include "model/EfficiencyFraction.h"
#include "model/listIndex.h"
#include "text/numbers.h"
#include "trend/TrendVariables.h"

namespace verdalis {

void TrendExecution::UpdateVariable(std::int16_t cropRowIndex, std::int16_t variableIndex, double value) {
  const TrendVariable& variable = trendVariable(variableIndex);
  inputCosts& costs = cropOfRow(inputs_, cropRowIndex)->inputCosts;
  costs.UseBatch = false;
  costs.BatchGeneralCosts = 0;
  IrrigationCosts& plant = inputs_.tempIrrigationCosts();
  plant.UseBatch = false;
  plant.BatchIrrigationCosts = 0;
  variable.toInputs(inputs_, static_cast<std::size_t>(cropRowIndex), value);
  name(variable.label, variable.ofCrop);
}

FieldCollection TrendExecution::UpdateOption(std::int16_t cropRowIndex, std::int16_t variableIndex,
                                             double value, FieldCollection option) {
  const TrendVariable& variable = trendVariable(variableIndex);
  const std::string cropType = variable.ofCrop ? cropOfRow(inputs_, cropRowIndex)->cropType : "";
  option.TotalCost = 0;
  for (const auto& field : option) {
    if (!variable.ofCrop || field->theCrop->cropType == cropType) variable.toField(*field, value);
  }
  name(variable.fixedLabel, variable.ofCrop);
  const std::string text = variable.ofCrop ? std::string(variable.label) + " - " + cropType : variable.label;
  option.AddBatchDescription(text, value, GetVariableUnits(inputs_, variableIndex, cropRowIndex));
  return option.Copy();
}

void TrendExecution::name(const char* label, bool ofCrop) {
  trend_.TrendVariableName = label;
  trend_.TrendVariableCrop = ofCrop ? cropText_ : std::string();
}

TrendExecution::Outline TrendExecution::outline(std::size_t process) const {
  const auto& processes = trend_.ProcessCollection;
  const BatchProcess& found = processes[listIndex(static_cast<long>(process) + 1, processes.size())];
  return {toInt16(found.cropIndex, "The crop row"), toInt16(found.VariableIndex, "The trend variable"),
          found.GetValueArray()};
}

bool TrendExecution::runVariable() {
  // While this trend pumps events, another one may start and overwrite the TrendState. So this one works on
  // copies and stores its outcome at its end.
  const Outline process = outline(0);
  const std::size_t count = process.values.size();
  trend_.TrendValues = process.values;
  std::vector<BestMix> batches;
  std::vector<TrendEvaluation> evaluations;
  for (std::size_t i = 0; i < count; ++i) {
    const double value = numberOf(process.values[i]);
    UpdateVariable(process.row, process.variable, value);
    const BestMix best = inputs_.RunScenario(std::to_string(count - i) + " evaluations left");
    // Only a cancel gives a ranking of size 0, even one that was meant for a run inside this one.
    if (state_.TrendCancelled || best.getSize() == 0) {
      state_.TrendCancelled = false;
      trend_.BatchCollection = std::move(batches);
      return false;
    }
    batches.push_back(best.Copy());
    evaluations.push_back({value, EfficiencyFraction, state_.waterSplits, state_.cropCombinations});
  }
  trend_.BatchCollection = std::move(batches);
  evaluations_ = std::move(evaluations);
  trend_.TrendValues = process.values;
  const TrendVariable& variable = trendVariable(process.variable);
  name(variable.label, variable.ofCrop);
  return true;
}

void TrendExecution::pump() {
  // A run started by an event sets its own efficiency.
  EfficiencyInForce(EfficiencyFraction, inputs_.hooks()).pumpEvents();
}

void TrendExecution::step() {
  inputs_.hooks().update();
  pump();
}

FieldCollection TrendExecution::apply(const Outline& process, std::size_t i, const FieldCollection& option) {
  return UpdateOption(process.row, process.variable, numberOf(process.values[i]), option.Copy());
}

void TrendExecution::Candidates::submit(const FieldCollection& option) {
  options_.push_back(std::make_shared<FieldCollection>(option.Copy()));
  (void)options_.back()->getProfit();
}

BestMix TrendExecution::Candidates::rank(std::int16_t size) {
  // The same order as submitting them to BestMix one by one, with the last of equals first. With as many
  // places as candidates, BestMix::submit() would take quadratic time.
  std::reverse(options_.begin(), options_.end());
  std::stable_sort(options_.begin(), options_.end(),
                   [](const auto& a, const auto& b) { return a->getProfit() > b->getProfit(); });
  BestMix best;
  best.setSize(size);
  best.SetBestArray(options_);
  best.LowEnd = options_.back()->getProfit();
  return best;
}

bool TrendExecution::runSecond(const FieldCollection& outer, std::size_t i, const Outline& second,
                               Candidates& candidates, TrendOptionArray& options) {
  for (std::size_t j = 0; j < second.values.size(); ++j) {
    pump();
    const FieldCollection option = apply(second, j, outer);
    candidates.submit(option);
    options.set(i, j, std::make_shared<FieldCollection>(option.Copy()));
    step();
    if (state_.CancelRequested) {
      inputs_.hooks().closeProgress();
      state_.CancelRequested = false;
      return false;
    }
  }
  return true;
}

bool TrendExecution::runFixed() {
  trend_.SelectedOption->ResetBatch();
  // Pricing stores sums in an option. The copy protects the trend from screens that price the option
  // meanwhile.
  const FieldCollection selected = trend_.SelectedOption->Copy();
  const Outline first = outline(0);
  std::optional<Outline> second;
  if (trend_.ProcessCollection.size() > 1) second = outline(1);

  RunHooks& hooks = inputs_.hooks();
  hooks.showProgress("Evaluating Trend Combinations");
  const double count =
      static_cast<double>(first.values.size()) * static_cast<double>(second ? second->values.size() : 1);
  const std::int16_t size = toInt16(count, "The number of combinations");
  Candidates candidates;
  hooks.setProgress(count, "Evaluating Trends...");

  TrendOptionArray options = second ? TrendOptionArray(first.values.size(), second->values.size())
                                    : TrendOptionArray(first.values.size());
  for (std::size_t i = 0; i < first.values.size(); ++i) {
    pump();
    if (state_.CancelRequested) return false;
    const FieldCollection option = apply(first, i, selected);
    if (second) {
      if (!runSecond(option, i, *second, candidates, options)) return false;
    } else {
      candidates.submit(option);
      step();
      options.set(i, 0, std::make_shared<FieldCollection>(option.Copy()));
    }
  }
  hooks.closeProgress();
  state_.CancelRequested = false;
  trend_.BatchCollection = {candidates.rank(size)};
  trend_.TrendOptionArray = std::move(options);
  return true;
}

}  // namespace verdalis
