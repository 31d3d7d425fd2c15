#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace verdalis {

/// Yield units for custom crops, in the order of the list in the window.
enum class YieldUnit { bushels, pounds, tons };

/// The names of a unit.
struct YieldUnitNames {
  std::string_view choice;  ///< In the list on the custom crop pane
  std::string_view words;   ///< In a crop file: short singular, plural
};

/// Indexed by YieldUnit. A crop in tons is a forage crop: see Crop::isForage().
inline constexpr std::array<YieldUnitNames, 3> yieldUnits{{
    {"bushels/acre", "bu.,bushels"},
    {"pounds/acre", "lb,pounds"},
    {"tons/acre", "ton,tons"},
}};

[[nodiscard]] constexpr const YieldUnitNames& namesOf(YieldUnit unit) {
  return yieldUnits[static_cast<std::size_t>(unit)];
}

}  // namespace verdalis
