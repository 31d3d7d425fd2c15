#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlans.h"
#include "explore/mixOf.h"

namespace verdalis {

/// An input with the values that it takes.
struct MapAxis {
  FarmInput input;
  std::vector<double> values;
};

/// The best plans over the values of two inputs.
struct InputMap {
  MapAxis x;
  MapAxis y;
  std::vector<Mix> mixes;        ///< Each once, in the order in which the points come to them
  std::vector<double> profit;    ///< By y, then by x, dollars
  std::vector<std::size_t> mix;  ///< The same: a place in `mixes`

  [[nodiscard]] std::size_t at(std::size_t row, std::size_t column) const {
    return row * x.values.size() + column;
  }
};

/// The best plan at each pair of values; the inputs of x and y differ.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first point that fails, by y and then by x
[[nodiscard]] std::optional<InputMap> exploreMap(const Farm& farm, const MapAxis& x, const MapAxis& y,
                                                 ProgramState& state, RunHooks& hooks,
                                                 unsigned jobs = allCores());

}  // namespace verdalis
