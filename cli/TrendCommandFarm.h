#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/EvaluationResult.h"
#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "cli/TerminalServices.h"
#include "engine/RunHooks.h"
#include "screens/main/Program.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"

namespace verdalis {

/// A farm as its main window stands, with the trends of that window. Each run inside a trend is written down,
/// with the efficiency that was in force. Nothing is saved, and nothing is told: what there is to tell of the
/// farm is told where it is typed.
class TrendFarm final : public TrendInputs {
 public:
  /// The farm of a request whose texts have been accepted; `typed` holds them as they ended in the controls.
  TrendFarm(const FarmRequest& request, TypedFarm& typed);

  /// Hears of the progress of every run; it must outlive the runs.
  void listen(RunHooks& progress);

  [[nodiscard]] ProgramState& state() { return program_.state; }
  [[nodiscard]] TrendState& trend() { return main().trends.trend; }
  [[nodiscard]] const ResultPrinter& printer() { return main().thePrinter; }
  [[nodiscard]] ClockTime now() const { return platform_.now(); }

  /// Presses the button that starts the evaluation. \returns the options of the results screen, placeholders
  /// included. \throws Cancelled, RunTimeError
  [[nodiscard]] const std::vector<Results::Option>& evaluate();

  /// The first ticked row's crop; nullptr where none is ticked.
  [[nodiscard]] std::shared_ptr<Crop> firstTickedCrop();

  /// Whether a process of the trend goes through a variable, with the crop of that name.
  [[nodiscard]] bool isTrended(std::int16_t variable, const std::string& cropType);

  /// What each run inside a trend was like, in their order: all but its options.
  [[nodiscard]] const std::vector<EvaluationResult>& runs() const { return runs_; }

  [[nodiscard]] std::size_t rowCount() const override { return host().rowCount(); }
  [[nodiscard]] std::shared_ptr<Crop> rowCrop(std::size_t row) const override { return host().rowCrop(row); }
  void setPrice(std::size_t row, double price) override { host().setPrice(row, price); }
  void setMaxYield(std::size_t row, double yield) override { host().setMaxYield(row, yield); }
  IrrigationCosts& tempIrrigationCosts() override { return host().tempIrrigationCosts(); }
  [[nodiscard]] std::string txtEff() const override { return host().txtEff(); }
  void setTxtEff(const std::string& text) override { host().setTxtEff(text); }
  void setTxtAnnRain(const std::string& text) override { host().setTxtAnnRain(text); }
  [[nodiscard]] std::string txtArraySize() const override { return host().txtArraySize(); }
  BestMix RunScenario(const std::string& statusText) override;
  RunHooks& hooks() override { return progress_ == nullptr ? host().hooks() : *progress_; }

 private:
  [[nodiscard]] frmMain& main() { return program_.main(); }
  [[nodiscard]] TrendHost& host() const { return *host_; }
  void take(const ScenarioInputs& inputs);

  std::ostringstream untold_;
  Messages messages_;
  TerminalServices platform_;
  Services services_;
  Program program_;
  TrendHost* host_ = nullptr;
  RunHooks* progress_ = nullptr;
  std::vector<EvaluationResult> runs_;
};

}  // namespace verdalis
