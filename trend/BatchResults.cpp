#include "trend/BatchResults.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "model/EfficiencyFraction.h"
#include "model/listIndex.h"
#include "results/passOver.h"
#include "text/numbers.h"
#include "trend/FixedTrendExport.h"
#include "trend/TrendVariables.h"
#include "trend/VariableTrendExport.h"
#include "trend/saveExport.h"

namespace verdalis {

BatchResults::BatchResults(Frame& container, Services& services, ProgramState& state, TrendState& trend,
                           TrendHost& host)
    : Frame(container, "theBatchResults", Scope::named),
      theResults(*this, "theResults", services, state),
      services_(services),
      trend_(trend),
      host_(host) {
  pnlBatchSteps.setVisible(false);
  cmdBatchStep[0].onClick.connect([this] { LoadBatchResults(step_ + 1); });
  cmdBatchStep[1].onClick.connect([this] { LoadBatchResults(step_ - 1); });
  cmdExcel.onClick.connect([this] { exportVariable(); });
  theResults.onExcel.connect([this] { exportFixed(); });
  chtTrend.setVisible(false);
  chtTrend.onPick.connect([this](std::size_t index) { showPicked(index); });
  theResults.trendedVariables = [this] { return trendedVariables(trend_.ProcessCollection); };
  theResults.trendOption = [this](std::int16_t i, std::int16_t j) {
    return trend_.TrendOptionArray.at(static_cast<std::size_t>(i), static_cast<std::size_t>(j));
  };
}

void BatchResults::EnableBatch(bool on) {
  pnlBatchSteps.setVisible(on);
}

void BatchResults::setBatchCollection(const std::vector<BestMix>& batches, const BatchProcess& process) {
  batches_ = batches;
  bp = process;
  trendValues_ = trend_.TrendValues;
  variableName_ = trend_.TrendVariableName;
  variableCrop_ = trend_.TrendVariableCrop;
  const bool steps = batches_.size() >= 2;
  EnableBatch(steps);
  theResults.ShowBatchedVariables(!steps);
}

void BatchResults::LoadBatchResults(long step) {
  if (step < 1 || static_cast<std::size_t>(step) > batches_.size()) return;
  const auto place = static_cast<std::size_t>(step) - 1;
  showStep(step, [&] { return batches_[place].returnCollection(true); });
}

void BatchResults::showOutcome(const TrendOutcome& outcome, const BatchProcess& process) {
  setArray(outcome.values);
  setBatchCollection(outcome.rankings, process);
  takeOutcome(outcome);
  takeCharts(outcome);
  if (!batches_.empty()) showStep(1, [&] { return outcome.shown; });
}

void BatchResults::takeCharts(const TrendOutcome& outcome) {
  bests_.clear();
  grid_ = {};
  gridPicks_.clear();
  std::optional<Chart> chart;
  passOver([&] {
    if (outcome.grid.dimensions() > 0) {
      FixedTrendChart fixed = fixedTrendChart(outcome.grid);
      grid_ = outcome.grid;
      gridPicks_ = std::move(fixed.options);
      chart = std::move(fixed.chart);
      return;
    }
    // With one value there is no line.
    for (std::size_t i = 0; i < batches_.size() && batches_.size() > 1; ++i)
      bests_.push_back({numberOf(trendValues_.at(i)), batches_[i].best()});
  });
  chtTrend.setVisible(chart.has_value());
  chtTrend.setChart(std::move(chart));
}

void BatchResults::takeOutcome(const TrendOutcome& outcome) {
  outcome_ = outcome;
  efficiency_ = EfficiencyFraction;
  input_ = {variableCrop_ + " " + variableName_, {}};
  passOver([&] { input_.units = GetVariableUnits(host_, bp.VariableIndex, bp.cropIndex); });
}

HandoutSection BatchResults::section(std::optional<std::size_t> rows) const {
  if (outcome_.grid.dimensions() > 0) return fixedTrendSection(outcome_.grid, efficiency_, rows);
  return variableTrendSection(stepsOf(outcome_), input_, rows);
}

HandoutSection BatchResults::fieldsSection() const {
  if (outcome_.grid.dimensions() > 0) return fixedTrendFieldsSection(outcome_.grid, efficiency_);
  return variableTrendFieldsSection(stepsOf(outcome_), input_);
}

void BatchResults::drawSteps() {
  if (bests_.empty()) return;
  std::optional<Chart> chart;
  passOver([&] {
    const UnitsPair units = GetVariableUnits(host_, bp.VariableIndex, bp.cropIndex);
    chart = variableTrendChart(bests_, {variableCrop_ + " " + variableName_, units},
                               static_cast<std::size_t>(step_) - 1);
  });
  chtTrend.setVisible(chart.has_value());
  chtTrend.setChart(std::move(chart));
}

void BatchResults::showPicked(std::size_t index) {
  if (index < bests_.size()) {
    LoadBatchResults(static_cast<long>(index) + 1);
  } else if (index < gridPicks_.size()) {
    const auto [row, column] = gridPicks_[index];
    showOptionOf(grid_.at(row, column));
  }
}

void BatchResults::showOptionOf(const Results::Option& picked) {
  const std::vector<Results::Option>& options = theResults.FieldCollection;
  auto found = std::find_if(options.begin(), options.end(), [&](const Results::Option& option) {
    return option->Count() > 0 && option->theValue == picked->theValue;
  });
  if (found == options.end()) {
    // It was left out as a duplicate of another one, with the same net return.
    FieldCollection copy = picked->Copy();
    const double profit = copy.getProfit();
    found = std::find_if(options.begin(), options.end(), [&](const Results::Option& option) {
      return option->Count() > 0 && option->getProfit() == profit;
    });
  }
  if (found != options.end()) theResults.showOption(static_cast<std::int16_t>(found - options.begin() + 1));
}

void BatchResults::showStep(long step, const std::function<std::vector<Results::Option>()>& options) {
  passOver([&] {
    const std::vector<Results::Option> shown = options();
    theResults.EnableBatch(host_.trendEnabled());
    theResults.loadResults(shown);
  });
  step_ = step;
  UnitsPair units;
  passOver([&] { units = GetVariableUnits(host_, bp.VariableIndex, bp.cropIndex); });
  passOver([&] {
    const double value = numberOf(trendValues_[listIndex(step, trendValues_.size())]);
    lblFreeBatchDescription.setCaption(variableCrop_ + " " + variableName_ + ": " + units[0] +
                                       formatNumber(value, "###,##0.00") + " " + units[1]);
  });
  lblBatchDescription1.setCaption("Step " + std::to_string(step) + " of " + std::to_string(batches_.size()));
  drawSteps();
}

void BatchResults::exportTo(const std::function<void(std::string&)>& write) {
  exportForSpreadsheet(desk(), services_, host_.home(), write);
}

void BatchResults::exportVariable() {
  exportTo([this](std::string& text) {
    writeVariableTrend(
        {batches_, trendValues_, variableName_, variableCrop_,
         GetVariableUnits(host_, bp.VariableIndex, bp.cropIndex), host_.txtEff(), services_.clock.now()},
        text);
  });
}

void BatchResults::exportFixed() {
  exportTo([this](std::string& text) {
    const auto isTrended = [this](std::int16_t variable, const std::string& crop) {
      return theResults.CheckVariable(variable, static_cast<std::int16_t>(GetCropIndex(host_, crop).row));
    };
    writeFixedTrend(
        {trend_.TrendOptionArray, *trend_.SelectedOption, isTrended, host_.txtEff(), services_.clock.now()},
        text);
  });
}

}  // namespace verdalis
