#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/EfficiencyFraction.h"

namespace verdalis {

/// What makes up the irrigation costs of a field.
struct PumpingParts {
  double waterHorsepower = 0;
  double labor = 0;    ///< Dollars for the field
  double fuel = 0;     ///< Dollars for the field
  double repairs = 0;  ///< Dollars for the field
};

/// The irrigation of a field over a season.
struct PumpingCosts {
  double cost = 0;     ///< Dollars for the field
  double hours = 0;    ///< Pumping hours
  PumpingParts parts;  ///< Nothing where no water is pumped, or a trend has replaced the cost
};

/// What water costs at the farm's pumping plant, built up from pump physics. One object describes the plant;
/// each field of a candidate works on a copy.
class IrrigationCosts {
 public:
  double GPM = 0;                   ///< Discharge rate, gallons per minute
  double Lift = 0;                  ///< Pumping water lift, feet
  double PSI = 0;                   ///< Irrigation system operating pressure, psi
  double LaborPerHour = 0;          ///< $ per hour
  double FixedPerAcre = 0;          ///< $ per acre. Saved and restored, used by no formula
  double RepairsPerAcreInch = 0;    ///< $ per acre-inch
  double NPC = 0;                   ///< Performance of the fuel, water horsepower-hours per fuel unit
  double cost = 0;                  ///< $ per fuel unit
  double dblEstHours = 0;           ///< Total season pumping hours: the pumping capacity, no part of the cost
  double dblMaxInches = 0;          ///< Reserved
  bool active = false;              ///< Costs have been applied. While false, irrigation costs nothing
  std::string FuelType;             ///< "Diesel", "Natural Gas", "Propane" or "Electricity"
  double hours = 0;                 ///< Result: pumping hours of the last getCosts()
  bool UseBatch = false;            ///< A trend has replaced the irrigation cost by BatchIrrigationCosts
  double BatchIrrigationCosts = 0;  ///< $ per acre-inch

  /// Seasonal irrigation of a field. `Depth` is net inches, `efficiency` a fraction. A dry field and a plant
  /// without costs cost 0 and keep the hours that the plant holds. A step that cannot be calculated is passed
  /// over and counts as 0.
  [[nodiscard]] PumpingCosts price(double Depth, double acres, double efficiency) const;

  /// Whether a field of a net depth, inches, costs what it takes to pump its water.
  [[nodiscard]] bool pumps(double Depth) const { return Depth > 0 && active && !(GPM <= 0 || NPC <= 0); }

  /// The cost of price(), dollars; `hours` takes its hours.
  double getCosts(double Depth, double acres, double efficiency = EfficiencyFraction);

  /// Gross inches that the plant can pump over the acres in a season; 0 for 0 acres.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getMaxInches(double acres) const;

  [[nodiscard]] IrrigationCosts Copy() const { return *this; }

  /// The 11 lines of the saved inputs file, CR LF between them.
  [[nodiscard]] std::string writeData() const;
};

/// Feet of head per psi of pressure.
inline constexpr double feetPerPsi = 2.31;
/// Gallon-feet per minute that make one water horsepower.
inline constexpr double gallonFeetPerHorsepower = 3960;
/// Gallons per minute that pump one acre-inch in an hour.
inline constexpr double gpmPerAcreInchHour = 450;
/// Hours of labor that irrigating an acre takes in a season, whatever the depth.
inline constexpr double laborHoursPerAcre = 0.5;
/// Gallons in an acre-inch, as the pumping capacity counts them (the hint of the irrigation cost pane uses
/// 27154.2876; both are meant).
inline constexpr double gallonsPerAcreInch = 27154;

/// The performance figure of a fuel (water horsepower-hours per gallon, thousand cubic feet or kilowatt-hour;
/// the Nebraska pumping plant performance criteria), or nothing for any other text.
[[nodiscard]] std::optional<double> fuelPerformance(std::string_view fuelType);

}  // namespace verdalis
