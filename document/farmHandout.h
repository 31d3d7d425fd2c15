#pragma once

#include <string>
#include <vector>

#include "document/FarmDocument.h"
#include "handout/Handout.h"
#include "model/CropScenario.h"

namespace verdalis {

/// An answer about a farm, and then the inputs that it was found with.
/// \param title what it is, such as "Evaluation"
[[nodiscard]] Handout farmHandout(std::string title, std::vector<HandoutSection> answer,
                                  const FarmDocument& farm, const CropScenario& library);

}  // namespace verdalis
