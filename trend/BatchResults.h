#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "results/Results.h"
#include "trend/BatchProcess.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"
#include "trend/runTrend.h"

namespace verdalis {

/// The results of a trend: a results screen of its own and, for a variable trend, steps through the values. A
/// fixed trend has no steps: its options say themselves which values made them. The events of theResults are
/// raised there.
class BatchResults : public Frame {
 public:
  BatchResults(Frame& container, Services& services, ProgramState& state, TrendState& trend, TrendHost& host);

  BatchProcess bp;  ///< The process of the trend, for its crop and variable

  Frame pnlBatchSteps{*this, "pnlBatchSteps"};
  std::array<Button, 2> cmdBatchStep{
      {{pnlBatchSteps, "cmdBatchStep(0)", "Next >"}, {pnlBatchSteps, "cmdBatchStep(1)", "< Previous"}}};
  Label lblBatchDescription1{pnlBatchSteps, "lblBatchDescription(1)"};      ///< Which step
  Label lblFreeBatchDescription{pnlBatchSteps, "lblFreeBatchDescription"};  ///< Its value
  Button cmdExcel{pnlBatchSteps, "cmdExcel", "Export to MS Excel"};
  Results theResults;

  /// Shows or hides the steps.
  void EnableBatch(bool on);

  /// The values of a variable trend. They are kept; the steps are described by those of the trend itself.
  void setArray(std::vector<TrendValue> values) { values_ = std::move(values); }

  /// Takes the rankings of a trend, one for each step, and its process. With fewer than two the steps are
  /// hidden and the options say what made them.
  void setBatchCollection(const std::vector<BestMix>& batches, const BatchProcess& process);

  /// Takes the outcome of a trend with its process, and shows the first step.
  void showOutcome(const TrendOutcome& outcome, const BatchProcess& process);

  /// Shows a step, from 1; outside the steps nothing happens. What cannot be shown keeps its old text.
  void LoadBatchResults(long step);

  /// The step on show, from 1.
  [[nodiscard]] long currentStep() const { return step_; }

  /// Asks for a file and writes the outcome of the variable trend, or of the fixed one, for spreadsheets.
  void exportVariable();
  void exportFixed();

 private:
  void showStep(long step, const std::function<std::vector<Results::Option>()>& options);
  void exportTo(const std::function<void(std::string&)>& write);

  Services& services_;
  TrendState& trend_;
  TrendHost& host_;
  std::vector<BestMix> batches_;
  std::vector<TrendValue> values_;
  long step_ = 0;

  // Of the trend on show: a later one that is cancelled changes those of the TrendState.
  std::vector<TrendValue> trendValues_;
  std::string variableName_;
  std::string variableCrop_;
};

/// The pane of the trend results.
class BatchResultsPane : public Frame {
 public:
  BatchResultsPane(Frame& window, Services& services, ProgramState& state, TrendState& trend, TrendHost& host)
      : Frame(window, "pneBatchSetup(1)"), theBatchResults(*this, services, state, trend, host) {}

  Label batchTitle{*this, "batchTitle"};
  BatchResults theBatchResults;
};

}  // namespace verdalis
