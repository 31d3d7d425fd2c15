#include "results/Results.h"

#include <algorithm>

#include "controls/ask.h"
#include "model/listIndex.h"
#include "results/figures.h"
#include "results/passOver.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The variables below this index belong to a crop.
constexpr std::int16_t cropVariables = 3;

}  // namespace

Results::Results(Frame& container, const std::string& name, Services& services, const ProgramState& state)
    : Frame(container, name, Scope::named), all(*this, services), services_(services), state_(state) {
  for (ResultHolder& row : rh)
    row.setVisible(false);
  batchDisplay.setVisible(false);
  lblSinceLast.setVisible(false);
  lblOutdated.setVisible(false);
  pnlBatchedVariables.setVisible(false);
  connect();
}

void Results::connect() {
  cmdPrevious.onClick.connect([this] { page(-1); });
  cmdAdvance.onClick.connect([this] { page(1); });
  container()->onStateChange.connect([this] {
    if (!container()->visible()) all.leave();
  });
  all.onShowOption.connect([this](std::int16_t number) { showOption(number); });
  cmdSaveResult.onClick.connect([this] { saveResult(); });
  cmdBatchThis.onClick.connect([this] { batchThis(); });
  Command1.onClick.connect([this] { onBack(state_.TrendMode ? BackTo::trendSetup : BackTo::main); });
  cmdExport.onClick.connect([this] { onExport(); });
  Command2.onClick.connect([this] { onPrint(); });
  cmdExcel.onClick.connect([this] { onExcel(); });
  for (ResultHolder& row : rh) {
    row.onDetails.connect([this](const std::shared_ptr<Field>& field) { onDetails(field); });
  }
  cmdHelp.onClick.connect([this] { onHelpTopic("batchoption.htm#BatchFixed"); });
  cmdHelp2.onClick.connect([this] {
    onHelpNote(
        "Click an 'Option' previous or next button to display results of each step of the input variable "
        "range(s)",
        "View Trend Results", 1750);
  });
  cmdHelp3.onClick.connect(
      [this] { onHelpNote("Exports results to a MS Excel spreadsheet", "Excel Output", 1725); });
}

const Results::Option& Results::option(std::int16_t number) const {
  if (FieldCollection.empty()) {
    throw RunTimeError(ErrorNumber::subscript,
                       "There is no option yet. Press \"Generate Output\" on the main screen first.");
  }
  return FieldCollection[listIndex(number, FieldCollection.size())];
}

void Results::loadResults(const std::vector<Option>& options) {
  currentRecord = 0;
  lblCounter.setCaption("Option 1");
  FieldCollection = options;
  maxOption_ = static_cast<std::int16_t>(
      std::count_if(options.begin(), options.end(), [](const Option& entry) { return entry->Count() > 0; }));
  listOptions();
  switchTo(1);
}

/// Placeholders have no line, and neither has what paging does not reach.
void Results::listOptions() {
  const auto last = FieldCollection.begin() + maxOption_;
  const bool trend = std::any_of(FieldCollection.begin(), last,
                                 [](const Option& entry) { return !entry->theVariable.empty(); });
  all.load({FieldCollection.begin(), last},
           {trend ? std::nullopt : plansCompared, trend, trend ? std::nullopt : evaluatedFarm});
  lblOf.setCaption(maxOption_ > 0 ? "of " + std::to_string(maxOption_) : "");
}

void Results::EnableBatch(bool on) {
  batchDisplay.setVisible(on);
}

void Results::ShowBatchedVariables(bool on) {
  pnlBatchedVariables.setVisible(on);
}

void Results::switchTo(std::int16_t direction) {
  if (direction == -1 && currentRecord == 1) return;
  if (direction == 1 && currentRecord == maxOption_) return;
  for (ResultHolder& row : rh)
    row.setVisible(false);
  passOver([&] { currentRecord = toInt16(static_cast<double>(currentRecord) + direction); });
  double totalAcres = 0;
  passOver([&] { showRows(totalAcres); });
  passOver([&] {
    const double profit = perAcre(getTotalProfit(currentRecord), totalAcres);
    lblTotalProfit.setCaption(dollarsAnAcre(profit, "###,###,###"));
  });
  passOver([&] { lblFarmProfit.setCaption(wholeDollars(getTotalProfit(currentRecord)) + " for the farm"); });
  all.setCurrent(currentRecord);
  for (Label& description : lblBatchDescriptions)
    description.setCaption("");
  passOver([&] { describeTrend(); });
}

void Results::showRows(double& totalAcres) {
  std::size_t row = 0;
  for (const auto& field : option(currentRecord)->NewEnum()) {
    totalAcres += field->acres;
    if (row < rh.size()) {
      rh[row].loadField(*field);
      rh[row].setVisible(true);
    }
    ++row;
  }
}

void Results::describeTrend() {
  const verdalis::FieldCollection& shown = *option(currentRecord);
  for (std::size_t k = 0; k < std::min(shown.theVariable.size(), lblBatchDescriptions.size()); ++k) {
    passOver([&] {
      const UnitsPair& units = shown.theUnits[listIndex(static_cast<long>(k) + 1, shown.theUnits.size())];
      const double value = shown.theValue[listIndex(static_cast<long>(k) + 1, shown.theValue.size())];
      lblBatchDescriptions[k].setCaption(shown.theVariable[k] + " : " + units[0] +
                                         formatNumber(value, "###,###.00") + " " + units[1]);
    });
  }
}

double Results::getTotalProfit(std::int16_t number) const {
  return option(number)->getProfit();
}

bool Results::CheckVariable(std::int16_t variableIndex, std::int16_t cropRowIndex) const {
  return trendedVariables && isTrended(trendedVariables(), variableIndex, cropRowIndex);
}

bool Results::isTrended(const std::vector<TrendedVariable>& variables, std::int16_t variableIndex,
                        std::int16_t cropRowIndex) {
  return std::any_of(variables.begin(), variables.end(), [&](const TrendedVariable& trended) {
    if (trended.VariableIndex != variableIndex) return false;
    const bool ofCrop = variableIndex >= 0 && variableIndex < cropVariables;
    return !ofCrop || trended.cropIndex == cropRowIndex;
  });
}

Results::Option Results::GetSortedBatchArrayField(std::int16_t i, std::int16_t j) const {
  return trendOption ? trendOption(i, j) : nullptr;
}

void Results::page(std::int16_t direction) {
  switchTo(direction);
  lblCounter.setCaption("Option " + std::to_string(getOption()));
}

void Results::showOption(std::int16_t number) {
  if (number < 1 || number > maxOption_ || number == currentRecord) return;
  currentRecord = static_cast<std::int16_t>(number - 1);
  page(1);
}

void Results::saveResult() {
  onSaveOption(option(currentRecord));
  ask(desk(), services_.messageBox,
      {"Result saved",
       "This option has been saved for comparison and is available by clicking the "
       "'Summary Table' menu item",
       MessageKind::notice, MessageIcon::none, MessageButtons::ok});
}

void Results::batchThis() {
  const Option chosen = option(currentRecord);
  onBatchThis(chosen);
  EnableBatch(true);
}

}  // namespace verdalis
