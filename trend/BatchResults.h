#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/ChartBox.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "handout/Handout.h"
#include "results/Results.h"
#include "trend/BatchProcess.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"
#include "trend/runTrend.h"
#include "trend/trendCharts.h"
#include "trend/trendSection.h"

namespace verdalis {

/// The results of a trend: a separate results screen and, for a variable trend, buttons that step through the
/// values. A fixed trend has no steps; each of its options shows the values that made it. For requests on
/// options, connect to the events of theResults.
class BatchResults : public Frame {
 public:
  BatchResults(Frame& container, Services& services, ProgramState& state, TrendState& trend, TrendHost& host);

  BatchProcess bp;  ///< The process of the trend: its crop and variable

  Frame pnlBatchSteps{*this, "pnlBatchSteps"};
  std::array<Button, 2> cmdBatchStep{
      {{pnlBatchSteps, "cmdBatchStep(0)", "Next >"}, {pnlBatchSteps, "cmdBatchStep(1)", "< Previous"}}};
  Label lblBatchDescription1{pnlBatchSteps, "lblBatchDescription(1)"};      ///< The number of the step
  Label lblFreeBatchDescription{pnlBatchSteps, "lblFreeBatchDescription"};  ///< The value of the step
  Button cmdExcel{pnlBatchSteps, "cmdExcel", "Export to MS Excel"};
  Results theResults;

  /// The net return by the values of the trend. A click shows that step, or that option of a fixed trend.
  ChartBox chtTrend{*this, "chtTrend"};

  /// Shows or hides the steps.
  void EnableBatch(bool on);

  /// Stores the values of a variable trend. The descriptions of the steps use those of the TrendState
  /// instead.
  void setArray(std::vector<TrendValue> values) { values_ = std::move(values); }

  /// Takes the rankings of a trend, one for each step, and its process. With fewer than two rankings it hides
  /// the steps and shows the values that made each option.
  void setBatchCollection(const std::vector<BestMix>& batches, const BatchProcess& process);

  /// Takes the outcome of a trend and its process, and shows the first step.
  void showOutcome(const TrendOutcome& outcome, const BatchProcess& process);

  /// Shows a step, from 1. Other numbers are ignored. A text that cannot be made keeps its old content.
  void LoadBatchResults(long step);

  /// The shown step, from 1; 0 before the first.
  [[nodiscard]] long currentStep() const { return step_; }

  /// The trend for a report or a workbook: a row for each step, with the chart.
  /// \param rows the most rows; nothing for all
  [[nodiscard]] HandoutSection section(std::optional<std::size_t> rows = std::nullopt) const;

  /// Each field of each option of the trend.
  [[nodiscard]] HandoutSection fieldsSection() const;

  /// Asks for a file and exports the outcome of a variable or a fixed trend for spreadsheets.
  void exportVariable();
  void exportFixed();

 private:
  void takeCharts(const TrendOutcome& outcome);
  void takeOutcome(const TrendOutcome& outcome);
  void drawSteps();
  void showPicked(std::size_t index);
  void showOptionOf(const Results::Option& picked);
  void showStep(long step, const std::function<std::vector<Results::Option>()>& options);
  void exportTo(const std::function<void(std::string&)>& write);

  Services& services_;
  TrendState& trend_;
  TrendHost& host_;
  std::vector<BestMix> batches_;
  std::vector<TrendValue> values_;
  long step_ = 0;

  // Copies for the shown trend, because a later trend changes the TrendState even if it is cancelled.
  std::vector<TrendValue> trendValues_;
  std::string variableName_;
  std::string variableCrop_;

  // What the chart is drawn from: the steps of a variable trend, or the options of a fixed one.
  std::vector<TrendBest> bests_;
  TrendOptionArray grid_;
  std::vector<std::pair<std::size_t, std::size_t>> gridPicks_;

  // What section() tells.
  TrendOutcome outcome_;
  TrendedInput input_;     ///< Of a variable trend
  double efficiency_ = 0;  ///< Of a fixed trend, as a fraction
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
