#pragma once

#include <cstddef>
#include <string>

#include "text/RunTimeError.h"

namespace verdalis {

/// Converts an index counted from 1 to a position in a vector.
/// \throws RunTimeError (subscript) outside 1..count.
inline std::size_t listIndex(long index, std::size_t count) {
  if (index < 1 || static_cast<std::size_t>(index) > count) {
    throw RunTimeError(ErrorNumber::subscript, "There is no entry " + std::to_string(index) +
                                                   " in a list of " + std::to_string(count) + ".");
  }
  return static_cast<std::size_t>(index) - 1;
}

}  // namespace verdalis
