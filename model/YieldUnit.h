#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace verdalis {

/// The units that a custom crop may be measured in, in the order in which they are offered.
enum class YieldUnit { bushels, pounds, tons };

/// What a unit is called.
struct YieldUnitNames {
  std::string_view choice;  ///< In the list of the custom crop pane
  std::string_view words;   ///< In a crop file: short singular and plural
};

/// By unit. A crop in tons counts as a forage crop: see Crop::isForage().
inline constexpr std::array<YieldUnitNames, 3> yieldUnits{{
    {"bushels/acre", "bu.,bushels"},
    {"pounds/acre", "lb,pounds"},
    {"tons/acre", "ton,tons"},
}};

[[nodiscard]] constexpr const YieldUnitNames& namesOf(YieldUnit unit) {
  return yieldUnits[static_cast<std::size_t>(unit)];
}

}  // namespace verdalis
