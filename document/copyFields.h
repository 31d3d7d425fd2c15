#pragma once

#include <span>

#include "model/SavedField.h"

namespace verdalis {

/// Copies these members, such as all that are entered, and no others.
template <class Owner>
void copyFields(std::span<const SavedField<Owner>> fields, const Owner& from, Owner& to) {
  for (const SavedField<Owner>& field : fields)
    field.copy(from, to);
}

}  // namespace verdalis
