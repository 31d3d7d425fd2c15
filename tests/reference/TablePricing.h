#pragma once

#include <vector>

#include "engine/KeptCandidates.h"
#include "engine/SearchInputs.h"

namespace verdalis::reference {

/// The best candidates by pricing every one from tables, some at once, with no bound: what the fast search is
/// compared with on farms that are too large for the plain loop. Twins are priced one by one. No events are
/// pumped.
[[nodiscard]] std::vector<KeptCandidate> priceAllByTables(const SearchInputs& inputs);

}  // namespace verdalis::reference
