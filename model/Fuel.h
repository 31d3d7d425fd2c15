#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace verdalis {

/// A fuel of the pumping plant.
struct Fuel {
  std::string_view name;
  /// Nebraska pumping plant performance criteria: water horsepower-hours per fuel unit (gallon, thousand
  /// cubic feet or kilowatt-hour).
  double performance;
  double priceLimit;      ///< The highest price that a person may enter, $ per fuel unit
  std::string_view unit;  ///< The fuel unit
};

inline constexpr std::string_view naturalGas = "Natural Gas";

/// The fuels, in the order in which they are offered.
inline constexpr std::array<Fuel, 4> fuels{{
    {"Diesel", 12.5, 10, "gallon"},
    {"Propane", 6.89, 10, "gallon"},
    {naturalGas, 61.7, 25, "thousand cubic feet"},
    {"Electricity", 0.885, 0.4, "kWh"},
}};

/// Price limit where the fuel is none of these, $ per fuel unit.
inline constexpr double otherFuelPriceLimit = 100;

/// \returns the fuel of that exact name; nullptr for any other text.
[[nodiscard]] constexpr const Fuel* findFuel(std::string_view name) {
  const auto* const fuel =
      std::find_if(fuels.begin(), fuels.end(), [&](const Fuel& each) { return each.name == name; });
  return fuel == fuels.end() ? nullptr : fuel;
}

}  // namespace verdalis
