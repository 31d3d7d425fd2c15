#pragma once

#include <string>
#include <string_view>

#include "model/Crop.h"
#include "model/Field.h"

namespace verdalis {

// The figures of a field as the results screens and the printed reports show them.

/// An amount of a field or a farm divided by its acres.
/// \throws RunTimeError (divisionByZero) for 0 acres, (overflow)
[[nodiscard]] double perAcre(double amount, double acres);

/// A figure as text: "$", the figure formatted with a number pattern, " /acre".
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string dollarsAnAcre(double figure, std::string_view pattern);

/// An amount in whole dollars, such as "$37,117" or "-$603".
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string wholeDollars(double amount);

/// A depth in inches, formatted with a number pattern and followed by two apostrophes for inches.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string inches(double depth, std::string_view pattern);

/// The life of a stand, over which the costs of establishing it (seed, tillage, planting) are spread.
struct Stand {
  double years = 1;     ///< 1 for all but forage crops
  bool forage = false;  ///< The crop is measured in tons

  /// The prefix of a figure that is spread over years.
  [[nodiscard]] std::string_view marker() const { return forage ? "*" : ""; }

  /// A cost per year of the stand.
  /// \throws RunTimeError (divisionByZero) if the life of the stand is 0, (overflow)
  [[nodiscard]] double yearly(double cost) const;
};

[[nodiscard]] Stand standOf(const Crop& crop);

/// The units after the seed cost and after the seeding rate.
struct SeedUnits {
  std::string_view cost;
  std::string_view rate;
};

[[nodiscard]] SeedUnits seedUnits(std::string_view cropType);

/// Harvest cost, $ per acre.
/// \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double harvestCostAnAcre(const Field& field);

/// Cost of nitrogen, phosphorus, seed, herbicide and insecticide, $ per acre. Sets the seeding rate of the
/// field's crop if it depends on the water.
/// \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double generalCostsAnAcre(const Field& field);

/// Cost of tillage, planting, the three applications and harvest, $ per acre.
/// \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double applicationCostsAnAcre(const Field& field);

}  // namespace verdalis
