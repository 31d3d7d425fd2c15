#pragma once

#include <cstddef>
#include <vector>

#include "model/FieldCollection.h"
#include "results/ExplainedSteps.h"

namespace verdalis {

/// How a field of an option, counted from 1, comes to its net return: from its gross water over the cells of
/// the yield table to the yield, then each cost and return, to the net return of the field and of the option.
/// The numbers are those that pricing works with. `efficiency` is that of the run, as a fraction.
/// \throws RunTimeError as pricing does, and (subscript) for a field that the option lacks
[[nodiscard]] std::vector<ExplainedStep> explainField(const FieldCollection& option, std::size_t number,
                                                      double efficiency);

}  // namespace verdalis
