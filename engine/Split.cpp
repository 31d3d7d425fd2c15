#include "engine/Split.h"

#include <cmath>

#include "model/reportText.h"

namespace verdalis {

double Split::total() const {
  double sum = 0;
  for (const double value : splits)
    sum += std::nearbyint(value);
  return sum;
}

std::string Split::toString() const {
  return volumesText(splits);
}

}  // namespace verdalis
