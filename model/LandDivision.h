#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace verdalis {

/// A way to divide the farm: the caption of its option button and the percent of the acres of each field.
struct LandDivision {
  std::string_view caption;
  std::vector<double> percentages;
};

/// The six land divisions in the order of the option buttons. Four fields is the most that a candidate has.
/// The three thirds are 33 % each: one percent of the land stays out of the allocation, and that is meant.
[[nodiscard]] const std::array<LandDivision, 6>& landDivisions();

}  // namespace verdalis
