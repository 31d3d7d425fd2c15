#pragma once

#include <cstddef>
#include <vector>

#include "model/FieldCollection.h"
#include "results/ExplainedSteps.h"

namespace verdalis {

/// The calculation of the net return of a field of an option, counted from 1: from its gross water and the
/// cells of the yield table to the yield, then each cost and return, to the net return of the field and of
/// the option. The numbers are those used in pricing. `efficiency` is the efficiency of the run, as a
/// fraction.
/// \throws RunTimeError if pricing fails, and (subscript) if the option does not have the field
[[nodiscard]] std::vector<ExplainedStep> explainField(const FieldCollection& option, std::size_t number,
                                                      double efficiency);

}  // namespace verdalis
