#include "trend/runTrend.h"

#include <utility>

#include "text/numbers.h"
#include "trend/TrendValues.h"

namespace verdalis {

std::optional<Message> refuseTrend(const TrendRequest& request, const TrendInputs& inputs,
                                   double mostOptions) {
  const auto length = [&](std::size_t process) {
    return process < request.processes.size() ? request.processes[process].GetValueArray().size() : 1;
  };
  if (request.isVariable()) return refuseVariableTrend(length(0), Val(inputs.txtArraySize()), mostOptions);
  return refuseFixedTrend(length(0), length(1));
}

std::optional<TrendOutcome> runTrend(const TrendRequest& request, TrendInputs& inputs, ProgramState& state,
                                     TrendState& trend) {
  trend.ProcessCollection = request.processes;
  trend.BatchCollection.clear();
  trend.SelectedOption = request.option;
  TrendExecution execution(inputs, state, trend, request.cropText);
  TrendOutcome outcome;
  if (request.isVariable()) {
    if (!execution.runVariable()) return std::nullopt;
    outcome.evaluations = execution.evaluations();
    outcome.values = trend.TrendValues;
  } else {
    if (!execution.runFixed()) return std::nullopt;
    outcome.grid = trend.TrendOptionArray;
  }
  outcome.rankings = trend.BatchCollection;
  if (!outcome.rankings.empty()) outcome.shown = outcome.rankings.front().returnCollection(true);
  return outcome;
}

std::vector<BestMix::Option> TrendOutcome::options(std::size_t place) const {
  if (place == 0) return shown;
  return rankings.at(place).Copy().returnCollection(true);
}

}  // namespace verdalis
