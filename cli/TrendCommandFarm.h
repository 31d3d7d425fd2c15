#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/EvaluationResult.h"
#include "cli/TypedFarm.h"
#include "engine/RunHooks.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"

namespace verdalis {

/// A typed farm as its trends see it. Each run inside a trend is written down, with the efficiency that was
/// in force.
class TrendFarm final : public TrendInputs {
 public:
  /// `progress` hears how far each run is. Both must outlive this.
  TrendFarm(TypedFarm& typed, RunHooks& progress) : typed_(typed), progress_(progress) {}

  [[nodiscard]] ProgramState& state() { return typed_.state(); }
  [[nodiscard]] TrendState& trend() { return typed_.trends().trend; }

  /// The evaluation that comes before a fixed trend. \returns the options of the results screen, placeholders
  /// included. \throws Refusal, Cancelled, RunTimeError
  [[nodiscard]] std::vector<Results::Option> evaluate();

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
  RunHooks& hooks() override { return progress_; }

 private:
  [[nodiscard]] TrendHost& host() const { return typed_.trendHost(); }

  TypedFarm& typed_;
  RunHooks& progress_;
  std::vector<EvaluationResult> runs_;
};

}  // namespace verdalis
