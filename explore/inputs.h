#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlans.h"

namespace verdalis {

/// The accepted range of an input, inclusive; nothing if there is no bound.
struct InputBounds {
  std::optional<double> least;
  std::optional<double> most;

  [[nodiscard]] double held(double value) const;
};

/// The effect of an input on the profit.
struct InputEffect {
  FarmInput input;
  double now = 0;  ///< In the unit of the input, like `low` and `high`
  double low = 0;
  double high = 0;
  double profitLow = 0;      ///< Best profit at `low`, dollars
  double profitHigh = 0;     ///< Best profit at `high`, dollars
  bool changesPlan = false;  ///< The mix of the best plan at `low` or `high` differs from the present one
};

/// The inputs of a farm by their effect.
struct InputsResult {
  Plan now;
  std::vector<InputEffect> inputs;  ///< By the larger of the two profit changes, largest first
};

/// The inputs of a farm: water, rain, efficiency, fuel, and the price and maximum yield of each chosen crop
/// that has them.
[[nodiscard]] std::vector<FarmInput> inputsOf(const Farm& farm);

/// Finds the best profit with each input `percent` lower and higher (above 0 and below 100). The values are
/// limited to their bounds, rain also to 11 to 21 inches.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first point that fails: the present farm, then each input low and
/// high
[[nodiscard]] std::optional<InputsResult> exploreInputs(
    const Farm& farm, double percent, const std::function<InputBounds(const FarmInput&)>& boundsOf,
    ProgramState& state, RunHooks& hooks, unsigned jobs = allCores());

}  // namespace verdalis
