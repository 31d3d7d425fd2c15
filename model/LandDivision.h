#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace verdalis {

/// A land split: the caption of its option button, and the percent of the acres in each field.
struct LandDivision {
  std::string_view caption;
  std::vector<double> percentages;
};

/// The six land splits in the order of the option buttons. No candidate has more than four fields. The three
/// thirds are 33 % each, so 1 % of the land is not allocated. This is intended.
[[nodiscard]] const std::array<LandDivision, 6>& landDivisions();

}  // namespace verdalis
