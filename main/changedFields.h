#pragma once

#include <vector>

#include "document/FarmDocument.h"
#include "screens/MainPane.h"

namespace verdalis {

/// The fields of the main pane whose inputs are others than at the last run, with what they were then, such
/// as "At the last run: 4.60". What is entered for a crop counts only if the crop took part and still does.
///
/// Cheap enough to be called for each key: crops that both inputs share are not looked at.
[[nodiscard]] std::vector<FieldHint> changedFields(const MainPane& pane, const FarmInputs& then,
                                                   const FarmInputs& now);

}  // namespace verdalis
