#pragma once

#include "controls/services.h"
#include "engine/ProgramState.h"
#include "trend/BatchResults.h"
#include "trend/BatchSetupPane.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"

namespace verdalis {

/// The two panes of the trends and what joins them: the run.
class TrendScreens {
 public:
  /// `window` gets the panes.
  TrendScreens(Frame& window, Services& services, ProgramState& state, TrendHost& host)
      : pneBatchSetup0(window, services, state, trend, host),
        pneBatchSetup1(window, services, state, trend, host),
        state_(state),
        host_(host) {
    pneBatchSetup0.onRun.connect([this] { cmdBatchIt_Click(); });
  }

  TrendState trend;
  BatchSetupPane pneBatchSetup0;
  BatchResultsPane pneBatchSetup1;

  /// Opens the setup for a variable trend: no option is the selected one any more.
  void mnuFallBatch_Click();

  /// Makes an option the selected one and opens the setup for it.
  void cmdBatchThis_Click(const BestMix::Option& option);

  /// Opens the setup for the kind of trend that the selected option decides.
  void ShowBatchScreen() { pneBatchSetup0.ShowBatchScreen(); }

 private:
  void cmdBatchIt_Click();

  ProgramState& state_;
  TrendHost& host_;
};

}  // namespace verdalis
