#pragma once

#include <memory>

#include "document/FarmDocument.h"
#include "model/CropScenario.h"

namespace verdalis {

/// The value of an option, with the inputs under which it was found.
[[nodiscard]] SavedOption saveOption(const std::shared_ptr<FieldCollection>& option,
                                     const FarmInputs& inputs);

/// The option of a value: the one it was made from, or one made from its fields. Yield tables are those of
/// the library, which must have been read; a crop that is missing there has none.
[[nodiscard]] const std::shared_ptr<FieldCollection>& optionOf(const SavedOption& saved,
                                                               const CropScenario& library);

/// The inputs without the crops that are not chosen.
[[nodiscard]] FarmInputs withChosenCrops(const FarmInputs& inputs);

}  // namespace verdalis
