#include <utility>

#include "controls/ask.h"
#include "model/listIndex.h"
#include "text/RunTimeError.h"
#include "trend/BatchSetupPane.h"
#include "trend/TrendVariables.h"

namespace verdalis {

void BatchSetupPane::wireProcesses() {
  cboBatches.onClick.connect([this] { switchProcess(); });
  cmdAddBatchProcess.onClick.connect([this] {
    if (CheckCurrentProcess()) AddBatchProcess();
  });
  cmdDeleteBatch.onClick.connect([this] { deleteProcess(); });
}

bool BatchSetupPane::CheckCurrentProcess() {
  return GetBatchProcess(cboCrops.text(), true).has_value();
}

/// Selects an entry while the list is disabled, so that it raises no click.
void BatchSetupPane::selectProcess(int index) {
  cboBatches.setEnabled(false);
  cboBatches.setIndex(index);
  cboBatches.setEnabled(true);
}

void BatchSetupPane::fillProcessList() {
  cboBatches.clear();
  for (std::size_t i = 1; i <= trend_.ProcessCollection.size(); ++i)
    cboBatches.addItem(std::to_string(i));
}

bool BatchSetupPane::AddBatchProcess() {
  trend_.ProcessCollection.push_back(BatchProcess().Copy());
  fillProcessList();
  const auto last = static_cast<int>(trend_.ProcessCollection.size()) - 1;
  selectProcess(last);
  if (!LoadBatchProcess(static_cast<std::int16_t>(last))) return false;
  RefreshBatchButtons();
  return true;
}

bool BatchSetupPane::LoadBatchProcess(std::int16_t index) {
  auto& processes = trend_.ProcessCollection;
  const std::size_t place = listIndex(index + 1L, processes.size());
  if (processes.size() > 1) {
    const std::optional<BatchProcess> shown = GetBatchProcess(cboCrops.text(), true);
    if (!shown) return false;
    processes[listIndex(trend_.CurrentProcess + 1L, processes.size())].Change(*shown);
  }
  ClearBatchData();
  showProcess(processes[place]);
  trend_.CurrentProcess = index;
  tickOthers(place);
  return true;
}

/// Ticks the variables of the processes that are not shown.
void BatchSetupPane::tickOthers(std::size_t shown) {
  const auto& processes = trend_.ProcessCollection;
  for (std::size_t i = 0; i < processes.size(); ++i) {
    if (i != shown) check.at(static_cast<std::size_t>(processes[i].VariableIndex))->setVisible(true);
  }
}

void BatchSetupPane::putProcesses(std::vector<BatchProcess> processes, std::int16_t shown) {
  trend_.ProcessCollection = std::move(processes);
  trend_.CurrentProcess = shown;
  fillProcessList();
  selectProcess(shown);
  for (const auto& tick : check)
    tick->setVisible(false);
  tickOthers(static_cast<std::size_t>(shown));
  RefreshBatchButtons();
}

bool BatchSetupPane::ClearBatchData() {
  txtBatchList.setText("");
  for (TextBox& box : txtBatchMinimum)
    box.setText("");
  cboBatchSteps.setText("2");
  batchOptions.select(static_cast<int>(TrendValuesKind::automatic));
  batchVariables.select(0);
  lblBatchFile.setCaption("");
  for (const auto& tick : check)
    tick->setVisible(false);
  return true;
}

void BatchSetupPane::showProcess(const BatchProcess& process) {
  cboCrops.setText(cropOfRow(host_, process.cropIndex)->cropType);
  batchVariables.select(static_cast<int>(process.VariableIndex));
  txtBatchMinimum[1].setText(process.variables_max);
  txtBatchMinimum[0].setText(process.variables_min);
  cboBatchSteps.setText(process.variables_steps);
  txtBatchList.setText(process.variables_manual);
  lblBatchFile.setCaption(process.inputfilename);
  // Setting the texts above has selected the ways they belong to.
  batchOptions.select(process.variables_type);
  showCropHint();
}

void BatchSetupPane::RefreshBatchButtons() {
  const std::size_t count = trend_.ProcessCollection.size();
  cmdAddBatchProcess.setEnabled(count < static_cast<std::size_t>(trend_.MaximumBatches));
  cmdDeleteBatch.setEnabled(count >= 2 && trend_.CurrentProcess > 0);
}

void BatchSetupPane::switchProcess() {
  bool shown = false;
  try {
    shown = LoadBatchProcess(static_cast<std::int16_t>(cboBatches.index()));
  } catch (const RunTimeError&) {
    selectProcess(trend_.CurrentProcess);
    throw;
  }
  if (shown) {
    RefreshBatchButtons();
  } else {
    selectProcess(trend_.CurrentProcess);
  }
}

void BatchSetupPane::deleteProcess() {
  const MessageAnswer answer = ask(desk(), services_.messageBox,
                                   {"Delete", "Delete this trend process?", MessageKind::question,
                                    MessageIcon::question, MessageButtons::yesNo});
  if (answer == MessageAnswer::yes) {
    auto& processes = trend_.ProcessCollection;
    const std::size_t place = listIndex(cboBatches.index() + 1L, processes.size());
    std::vector<std::string> rest = cboBatches.items();
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(place));
    processes.erase(processes.begin() + static_cast<std::ptrdiff_t>(place));
    cboBatches.clear();
    for (const std::string& item : rest)
      cboBatches.addItem(item);
    selectProcess(0);
    LoadBatchProcess(0);
  }
  RefreshBatchButtons();
}

}  // namespace verdalis
