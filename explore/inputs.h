#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlans.h"

namespace verdalis {

/// What a farm can be handed for an input, both ends included; nothing where there is no bound.
struct InputBounds {
  std::optional<double> least;
  std::optional<double> most;

  [[nodiscard]] double held(double value) const;
};

/// How much an input matters.
struct InputEffect {
  FarmInput input;
  double now = 0;  ///< In the unit of the input, as `low` and `high`
  double low = 0;
  double high = 0;
  double profitLow = 0;      ///< Best profit at `low`, dollars
  double profitHigh = 0;     ///< Best profit at `high`, dollars
  bool changesPlan = false;  ///< The mix of the best plan at `low` or `high` is not that of now
};

/// What matters most to a farm.
struct InputsResult {
  Plan now;
  std::vector<InputEffect> inputs;  ///< By the larger of the two changes of the profit, largest first
};

/// The inputs that a farm has: water, rain, efficiency, fuel, and by crop the price and the maximum yield of
/// each chosen crop that has one.
[[nodiscard]] std::vector<FarmInput> inputsOf(const Farm& farm);

/// The best profit with each input lower and higher by `percent`, above 0 and below 100, and held within its
/// bounds; rain within 11 to 21 inches too.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first point that fails: now, then each input low and high
[[nodiscard]] std::optional<InputsResult> exploreInputs(
    const Farm& farm, double percent, const std::function<InputBounds(const FarmInput&)>& boundsOf,
    ProgramState& state, RunHooks& hooks, unsigned jobs = allCores());

}  // namespace verdalis
