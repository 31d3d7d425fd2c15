#include "trend/TrendState.h"

#include <utility>

#include "text/RunTimeError.h"

namespace verdalis {

std::size_t TrendOptionArray::place(std::size_t i, std::size_t j) const {
  if (dimensions_ < 2) j = 0;
  if (i >= rows_ || j >= columns_) {
    throw RunTimeError(ErrorNumber::subscript, "The fixed trend has no option " + std::to_string(i + 1) +
                                                   ", " + std::to_string(j + 1) +
                                                   ". Run a fixed trend first.");
  }
  return i * columns_ + j;
}

void TrendOptionArray::set(std::size_t i, std::size_t j, Option option) {
  entries_[place(i, j)] = std::move(option);
}

const TrendOptionArray::Option& TrendOptionArray::at(std::size_t i, std::size_t j) const {
  return entries_[place(i, j)];
}

}  // namespace verdalis
