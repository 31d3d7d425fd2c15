#include "cli/TrendCommandFarm.h"

namespace verdalis {

std::vector<Results::Option> TrendFarm::evaluate() {
  const auto options = typed_.evaluate(progress_);
  if (!options) throw Cancelled();
  return *options;
}

std::shared_ptr<Crop> TrendFarm::firstTickedCrop() {
  for (std::size_t row = 0; row < rowCount(); ++row) {
    if (host().isActive(row)) return rowCrop(row);
  }
  return nullptr;
}

bool TrendFarm::isTrended(std::int16_t variable, const std::string& cropType) {
  return typed_.trends().pneBatchSetup1.theBatchResults.theResults.CheckVariable(
      variable, static_cast<std::int16_t>(GetCropIndex(*this, cropType).row));
}

BestMix TrendFarm::RunScenario(const std::string& statusText) {
  BestMix best = typed_.runForTrend(statusText, progress_);
  runs_.push_back(describeRun({}, state(), 0));
  return best;
}

}  // namespace verdalis
