#pragma once

#include <string>

#include "handout/Handout.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The details of an option for a report: its fields, the costs and returns of each per acre and of the farm,
/// and for each field the way to its net return and its yield by water. Nothing is stored in the option; what
/// cannot be worked out is left out.
/// \param title such as "The best option in detail"
/// \param efficiency of the run, as a fraction
[[nodiscard]] HandoutSection detailsSection(const std::string& title, const FieldCollection& option,
                                            double efficiency);

}  // namespace verdalis
