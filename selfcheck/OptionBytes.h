#pragma once

#include <string>

#include "model/FieldCollection.h"

namespace verdalis::reference {

/// The complete contents of an option, every number to the last bit, as a text for comparison.
[[nodiscard]] std::string optionBytes(const FieldCollection& option);

}  // namespace verdalis::reference
