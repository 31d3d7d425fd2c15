#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/bestPlans.h"
#include "explore/mixOf.h"

namespace verdalis {

/// An input and its values.
struct MapAxis {
  FarmInput input;
  std::vector<double> values;
};

/// The best plans for the values of two inputs.
struct InputMap {
  MapAxis x;
  MapAxis y;
  std::vector<Mix> mixes;        ///< Without duplicates, in the order of their first points
  std::vector<double> profit;    ///< By y, then by x, dollars
  std::vector<std::size_t> mix;  ///< Index in `mixes`, in the same order

  [[nodiscard]] std::size_t at(std::size_t row, std::size_t column) const {
    return row * x.values.size() + column;
  }
};

/// Finds the best plan for each pair of values. The inputs of x and y must differ.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError for the first point that fails, by y and then by x
[[nodiscard]] std::optional<InputMap> exploreMap(const Farm& farm, const MapAxis& x, const MapAxis& y,
                                                 ProgramState& state, RunHooks& hooks,
                                                 unsigned jobs = allCores());

}  // namespace verdalis
