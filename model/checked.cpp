#include "model/checked.h"

#include "model/EfficiencyFraction.h"

namespace verdalis {

double grossFromNet(double net) {
  if (EfficiencyFraction == 0) {
    throw RunTimeError(
        ErrorNumber::divisionByZero,
        "The irrigation efficiency is 0 %, so no gross depth can be calculated. Enter an efficiency "
        "above 0 in \"Irrigation Efficiency %\".");
  }
  return checked(net / EfficiencyFraction, "The gross irrigation depth");
}

}  // namespace verdalis
