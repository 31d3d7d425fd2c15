#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/SearchInputs.h"
#include "engine/Wish.h"
#include "model/FieldCollection.h"

namespace verdalis::reference {

/// One candidate with the values that wishes and questions refer to.
struct PlainPlan {
  struct PlannedField {
    double acres = 0;
    std::string crop;
    double grossDepth = 0;
  };
  std::vector<PlannedField> fields;
  std::vector<double> profits;    ///< By season
  long split = 0;                 ///< From 0
  std::uint64_t combination = 0;  ///< From 0
};

/// All candidates in the order of submission, priced by the model. All seasons share the depths, and the
/// crops at each position.
[[nodiscard]] std::vector<PlainPlan> allPlans(const std::vector<SearchInputs>& seasons);

/// The fields of a candidate, without profits and place.
/// \param efficiency irrigation efficiency as a fraction.
[[nodiscard]] PlainPlan plainPlan(const FieldCollection& candidate, double efficiency);

[[nodiscard]] bool meets(const PlainPlan& plan, const Wish& wish);
[[nodiscard]] bool meetsAll(const PlainPlan& plan, const std::vector<Wish>& wishes);

/// The weighted average of the profits; for one season its profit.
[[nodiscard]] double averageOf(const PlainPlan& plan, const std::vector<double>& weights);

/// Indices of the plans that meet the wishes, highest average first; for equal averages the later plan first.
/// With `mixes`, only the first plan of each mix.
[[nodiscard]] std::vector<std::size_t> rankPlans(const std::vector<PlainPlan>& plans,
                                                 const std::vector<double>& weights,
                                                 const std::vector<Wish>& wishes, bool mixes);

}  // namespace verdalis::reference
