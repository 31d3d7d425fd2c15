#include "trend/TrendScreens.h"

#include <memory>

#include "model/listIndex.h"
#include "trend/TrendExecution.h"

namespace verdalis {

void TrendScreens::mnuFallBatch_Click() {
  state_.SelectedOption = std::make_shared<FieldCollection>();
  ShowBatchScreen();
}

void TrendScreens::cmdBatchIt_Click() {
  const std::string cropText = pneBatchSetup0.cboCrops.text();
  const std::optional<BatchProcess> process = pneBatchSetup0.GetBatchProcess(cropText, true);
  if (!process) return;
  TrendExecution execution(host_, state_, trend, cropText);
  if (const std::optional<Message> refusal = execution.refusal(*process)) {
    pneBatchSetup0.tell(*refusal);
    return;
  }
  auto& processes = trend.ProcessCollection;
  if (processes.empty()) {
    processes.push_back(*process);
  } else {
    processes[listIndex(trend.CurrentProcess + 1L, processes.size())].Change(*process);
  }
  host_.loadInputs();
  trend.BatchCollection.clear();

  const bool isVariable = state_.SelectedOption->Count() == 0;
  pneBatchSetup1.batchTitle.setCaption(isVariable ? "Variable Trend Results" : "Fixed Trend Results");
  if (!(isVariable ? execution.runVariable() : execution.runFixed())) return;

  host_.showPane(pneBatchSetup1);
  BatchResults& results = pneBatchSetup1.theBatchResults;
  results.setArray(isVariable ? trend.TrendValues : std::vector<TrendValue>());
  results.setBatchCollection(trend.BatchCollection, *process);
  results.LoadBatchResults(1);
}

}  // namespace verdalis
