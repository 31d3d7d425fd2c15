#include "model/YieldTable.h"

#include <string>

#include "text/RunTimeError.h"

namespace verdalis {

YieldTable::YieldTable(int maxIrrigation, int firstRain, int lastRain)
    : maxIrrigation_(maxIrrigation), firstRain_(firstRain), lastRain_(lastRain) {
  if (maxIrrigation < 0 || lastRain < 0) {
    throw RunTimeError(ErrorNumber::subscript,
                       "A yield table needs irrigation and rainfall values of 0 or more.");
  }
  cells_.resize((static_cast<std::size_t>(maxIrrigation) + 1) * (static_cast<std::size_t>(lastRain) + 1));
}

void YieldTable::setCell(int irrigation, int rain, double value) {
  if (!contains(irrigation, rain)) {
    throw RunTimeError(ErrorNumber::subscript, "The yield table has no cell for " +
                                                   std::to_string(irrigation) + " inches of irrigation and " +
                                                   std::to_string(rain) + " inches of rain.");
  }
  cells_[index(irrigation, rain)] = value;
}

}  // namespace verdalis
