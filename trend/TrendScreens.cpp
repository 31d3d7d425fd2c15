#include "trend/TrendScreens.h"

#include <memory>

#include "model/listIndex.h"
#include "trend/runTrend.h"

namespace verdalis {

void TrendScreens::mnuFallBatch_Click() {
  trend.SelectedOption = std::make_shared<FieldCollection>();
  ShowBatchScreen();
}

void TrendScreens::cmdBatchThis_Click(const BestMix::Option& option) {
  trend.SelectedOption = option;
  ShowBatchScreen();
}

void TrendScreens::cmdBatchIt_Click() {
  const std::string cropText = pneBatchSetup0.cboCrops.text();
  const std::optional<BatchProcess> process = pneBatchSetup0.GetBatchProcess(cropText, true);
  if (!process) return;
  TrendRequest request{trend.ProcessCollection, trend.SelectedOption, cropText};
  auto& processes = request.processes;
  if (processes.empty()) {
    processes.push_back(*process);
  } else {
    processes[listIndex(trend.CurrentProcess + 1L, processes.size())].Change(*process);
  }
  if (const std::optional<Message> refusal = refuseTrend(request, host_)) {
    pneBatchSetup0.tell(*refusal);
    return;
  }
  trend.ProcessCollection = processes;
  host_.loadInputs();
  pneBatchSetup1.batchTitle.setCaption(request.isVariable() ? "Variable Trend Results"
                                                            : "Fixed Trend Results");
  const std::optional<TrendOutcome> outcome = runTrend(request, host_, state_, trend);
  if (!outcome) return;
  host_.showPane(pneBatchSetup1);
  pneBatchSetup1.theBatchResults.showOutcome(*outcome, *process);
}

}  // namespace verdalis
