#pragma once

#include "controls/services.h"
#include "engine/ProgramState.h"
#include "trend/BatchResults.h"
#include "trend/BatchSetupPane.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"

namespace verdalis {

/// The two panes of the trends, and the run that leads from one to the other.
class TrendScreens {
 public:
  /// Creates the panes in `window`.
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

  /// The inputs that a trend changes.
  [[nodiscard]] TrendHost& host() const { return host_; }

  /// Opens the setup for a variable trend. Deselects the selected option.
  void mnuFallBatch_Click();

  /// Selects an option and opens the setup for a fixed trend on it.
  void cmdBatchThis_Click(const BestMix::Option& option);

  /// Opens the setup for a fixed or a variable trend, depending on the selected option.
  void ShowBatchScreen() { pneBatchSetup0.ShowBatchScreen(); }

 private:
  void cmdBatchIt_Click();

  ProgramState& state_;
  TrendHost& host_;
};

}  // namespace verdalis
