#include "model/shownAlike.h"

#include "text/numbers.h"

namespace verdalis {

bool sameShownYield(double a, double b) {
  return formatNumber(a, "###,##0") == formatNumber(b, "###,##0");
}

bool sameShownDepth(double a, double b) {
  return formatNumber(a, "###.00") == formatNumber(b, "###.00");
}

}  // namespace verdalis
