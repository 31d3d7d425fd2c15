#include "data/StockGrids.h"

#include <algorithm>

#include "text/encoding.h"

namespace verdalis {

const StockGrid* stockGrid(std::string_view lowerName) {
  const std::span<const StockGrid> grids = stockGrids();
  const auto grid = std::find_if(grids.begin(), grids.end(),
                                 [&](const StockGrid& each) { return lowerCase(each.crop) == lowerName; });
  return grid == grids.end() ? nullptr : &*grid;
}

}  // namespace verdalis
