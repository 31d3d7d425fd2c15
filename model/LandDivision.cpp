#include "model/LandDivision.h"

namespace verdalis {

const std::array<LandDivision, 6>& landDivisions() {
  static const std::array<LandDivision, 6> divisions{{
      {"50 - 50", {50, 50}},
      {"75 - 25", {75, 25}},
      {"33 - 33 - 33", {33, 33, 33}},
      {"50 - 25 - 25", {50, 25, 25}},
      {"25 - 25 - 25 - 25", {25, 25, 25, 25}},
      {"100 ", {100}},
  }};
  return divisions;
}

}  // namespace verdalis
