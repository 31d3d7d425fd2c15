#pragma once

#include <cstddef>
#include <vector>

#include "engine/SearchInputs.h"
#include "engine/Wish.h"

namespace verdalis {

/// What a search looks for beyond the plain ranking.
struct PlanQuestion {
  /// The farm in each season, one or more. All have the same fields, depths and crops; what a crop yields,
  /// costs and returns may differ. The inputs must outlive the search.
  std::vector<SearchInputs> seasons;
  std::vector<double> weights;  ///< Of the seasons, above 0. Not read for one season
  std::vector<Wish> wishes;     ///< What every plan must meet
  bool mixes = false;           ///< Keep the best candidate of each mix of acres and crops alone
  std::size_t places = 0;       ///< Candidates, or mixes, to keep
};

}  // namespace verdalis
