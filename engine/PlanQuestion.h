#pragma once

#include <cstddef>
#include <vector>

#include "engine/SearchInputs.h"
#include "engine/Wish.h"

namespace verdalis {

/// What PlanSearch looks for.
struct PlanQuestion {
  /// The farm in each season, one or more. All have the same fields, depths and crops; yields, costs and
  /// returns may differ. The referenced inputs must outlive the search.
  std::vector<SearchInputs> seasons;
  std::vector<double> weights;  ///< Weights of the seasons, above 0. Not used for one season
  std::vector<Wish> wishes;     ///< Wishes that every plan must meet
  bool mixes = false;           ///< Keep only the best candidate of each mix of acres and crops
  std::size_t places = 0;       ///< Candidates, or mixes, to keep
};

}  // namespace verdalis
