#pragma once

#include <string>
#include <vector>

#include "explore/switchPrices.h"

namespace verdalis {

/// The answer to the question of switch prices.
struct SwitchAnswer {
  FarmInput input;
  std::string unit;  ///< Unit of the crop, such as "bu."; empty for fuel
  double now = 0;    ///< Current value
  std::vector<SwitchSegment> segments;
};

/// The answer in words.
struct SwitchTexts {
  struct Segment {
    std::string range;  ///< "Below $4.87", "From $4.87 to $5.20" or "From $5.20"
    std::string from;   ///< The ends of the range: "$4.87"
    std::string to;
    bool isNow = false;  ///< The present value is in this range
    std::string plan;    ///< "Wheat on field 1 (3.5 in.), Corn on fields 2 and 3 (11.2 in.)"
    std::string profit;  ///< "$5,000" or "$5,000 to $6,000"
  };

  std::string heading;  ///< What varies, and the acres of the fields
  std::string now;      ///< The present value
  std::vector<Segment> segments;
};

/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] SwitchTexts switchTexts(const SwitchAnswer& answer);

}  // namespace verdalis
