#include "model/checked.h"

namespace verdalis {

double grossFromNet(double net, double efficiency) {
  if (efficiency == 0) {
    throw RunTimeError(
        ErrorNumber::divisionByZero,
        "The irrigation efficiency is 0 %, so no gross depth can be calculated. Enter an efficiency "
        "above 0 in \"Irrigation Efficiency %\".");
  }
  return checked(net / efficiency, "The gross irrigation depth");
}

}  // namespace verdalis
