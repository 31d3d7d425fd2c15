#pragma once

#include <vector>

#include "engine/KeptCandidates.h"
#include "engine/SearchInputs.h"

namespace verdalis::reference {

/// Finds the best candidates by pricing all of them from tables, several at a time and without bounds. For
/// comparison with the fast search on farms that are too large for the simple loop. Twins are priced one by
/// one. Pumps no events.
[[nodiscard]] std::vector<KeptCandidate> priceAllByTables(const SearchInputs& inputs);

}  // namespace verdalis::reference
