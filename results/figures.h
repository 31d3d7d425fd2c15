#pragma once

#include <string>
#include <string_view>

#include "model/Crop.h"
#include "model/Field.h"

namespace verdalis {

// The figures of a field as the results screens and the printed reports show them.

/// An amount of a field or a farm for each of its acres.
/// \throws RunTimeError (divisionByZero) for 0 acres, (overflow).
[[nodiscard]] double perAcre(double amount, double acres);

/// "$", the figure by a number pattern, " /acre". \throws RunTimeError (overflow)
[[nodiscard]] std::string dollarsAnAcre(double figure, std::string_view pattern);

/// A depth in inches by a number pattern, with the two apostrophes that stand for inches.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string inches(double depth, std::string_view pattern);

/// The costs of a field's establishment (seed, tillage, planting) are spread over the life of the stand.
struct Stand {
  double years = 1;     ///< 1 for all but forage crops
  bool forage = false;  ///< The crop is measured in tons

  /// Stands in front of a figure that is spread over years.
  [[nodiscard]] std::string_view marker() const { return forage ? "*" : ""; }

  /// A cost for each year of the stand.
  /// \throws RunTimeError (divisionByZero) while the life of stand is 0, (overflow).
  [[nodiscard]] double yearly(double cost) const;
};

[[nodiscard]] Stand standOf(const Crop& crop);

/// What stands behind the seed cost and behind the seeding rate.
struct SeedUnits {
  std::string_view cost;
  std::string_view rate;
};

[[nodiscard]] SeedUnits seedUnits(std::string_view cropType);

/// Harvest cost, $ per acre. \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double harvestCostAnAcre(const Field& field);

/// Nitrogen, phosphorus, seed, herbicide and insecticide, $ per acre. Sets the seeding rate of the field's
/// crop where that follows the water. \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double generalCostsAnAcre(const Field& field);

/// Tillage, planting, the three applications and harvest, $ per acre.
/// \throws RunTimeError (divisionByZero, overflow)
[[nodiscard]] double applicationCostsAnAcre(const Field& field);

}  // namespace verdalis
