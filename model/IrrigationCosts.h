#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/EfficiencyFraction.h"

namespace verdalis {

/// Parts of the irrigation costs of a field.
struct PumpingParts {
  double waterHorsepower = 0;
  double labor = 0;    ///< Dollars for the field
  double fuel = 0;     ///< Dollars for the field
  double repairs = 0;  ///< Dollars for the field
};

/// Seasonal pumping of a field.
struct PumpingCosts {
  double cost = 0;   ///< Dollars for the field
  double hours = 0;  ///< Pumping hours
};

/// Cost of irrigation water at the farm's pumping plant, computed from pump physics. One object describes the
/// plant; each field of a candidate uses a copy.
class IrrigationCosts {
 public:
  double GPM = 0;                 ///< Discharge rate, gallons per minute
  double Lift = 0;                ///< Pumping water lift, feet
  double PSI = 0;                 ///< Irrigation system operating pressure, psi
  double LaborPerHour = 0;        ///< $ per hour
  double FixedPerAcre = 0;        ///< $ per acre. Saved and restored, but not used by any formula
  double RepairsPerAcreInch = 0;  ///< $ per acre-inch
  double NPC = 0;                 ///< Performance of the fuel, water horsepower-hours per fuel unit
  double cost = 0;                ///< $ per fuel unit
  double dblEstHours = 0;         ///< Pumping hours per season, for the pumping capacity; not used for costs
  double dblMaxInches = 0;        ///< Reserved
  bool active = false;            ///< Whether costs have been applied. If false, irrigation costs nothing
  std::string FuelType;           ///< Name of one of the fuels
  double hours = 0;               ///< Result: pumping hours from the last getCosts()
  bool UseBatch = false;          ///< A trend replaces the irrigation cost with BatchIrrigationCosts
  double BatchIrrigationCosts = 0;  ///< $ per acre-inch

  /// Seasonal irrigation cost of a field. Without irrigation, or without active plant costs, the cost is 0
  /// and the hours are those stored in the plant. A step that cannot be computed counts as 0.
  /// \param Depth net irrigation, inches.
  /// \param efficiency as a fraction.
  /// \param parts gets the parts of the cost, if it is given; unchanged if no water is pumped or a trend
  /// replaces the cost.
  [[nodiscard]] PumpingCosts price(double Depth, double acres, double efficiency,
                                   PumpingParts* parts = nullptr) const;

  /// Whether irrigating a field to a net depth, inches, costs anything.
  [[nodiscard]] bool pumps(double Depth) const { return Depth > 0 && active && !(GPM <= 0 || NPC <= 0); }

  /// The cost from price(), dollars. Stores the pumping hours in `hours`.
  double getCosts(double Depth, double acres, double efficiency = EfficiencyFraction);

  /// Gross inches that the plant can pump per season on `acres`; 0 for 0 acres.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getMaxInches(double acres) const;

  [[nodiscard]] IrrigationCosts Copy() const { return *this; }

  /// The 11 lines of the plant in the saved inputs file, separated by CR LF.
  [[nodiscard]] std::string writeData() const;
};

/// Feet of head per psi of pressure.
inline constexpr double feetPerPsi = 2.31;
/// Gallon-feet per minute in one water horsepower.
inline constexpr double gallonFeetPerHorsepower = 3960;
/// Gallons per minute that deliver one acre-inch per hour.
inline constexpr double gpmPerAcreInchHour = 450;
/// Hours of labor per irrigated acre and season, whatever the depth.
inline constexpr double laborHoursPerAcre = 0.5;
/// Gallons per acre-inch, for the pumping capacity. The hint on the irrigation cost pane uses 27154.2876;
/// both values are intended.
inline constexpr double gallonsPerAcreInch = 27154;

/// Performance of a fuel by the Nebraska pumping plant performance criteria, in water horsepower-hours per
/// gallon, thousand cubic feet or kilowatt-hour.
/// \returns nothing for any other text.
[[nodiscard]] std::optional<double> fuelPerformance(std::string_view fuelType);

}  // namespace verdalis
