#pragma once

#include <string>

#include "model/FieldCollection.h"

namespace verdalis::reference {

/// Everything that an option holds, down to the last bit of every number, as a text to compare.
[[nodiscard]] std::string optionBytes(const FieldCollection& option);

}  // namespace verdalis::reference
