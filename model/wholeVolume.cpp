#include "model/wholeVolume.h"

#include <string>

#include "text/numbers.h"

namespace verdalis {

double wholeVolume(double acreInches) {
  const std::string shown = formatNumber(acreInches, "###,###");
  return shown.empty() ? 0 : toDouble(shown);
}

}  // namespace verdalis
