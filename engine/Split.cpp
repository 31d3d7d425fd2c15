#include "engine/Split.h"

#include <cmath>

#include "text/numbers.h"

namespace verdalis {

double Split::total() const {
  double sum = 0;
  for (const double value : splits)
    sum += std::nearbyint(value);
  return sum;
}

std::string Split::toString() const {
  std::string text;
  for (const double value : splits)
    text += generalText(value) + " ac-in      ";
  return text;
}

}  // namespace verdalis
