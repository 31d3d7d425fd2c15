#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "explore/FarmInput.h"
#include "explore/inputs.h"
#include "explore/seasons.h"

namespace verdalis {

// What the questions take. Each function throws std::invalid_argument, which says what is wrong, without the
// name of the field or option.

/// Maximum number of points of one result.
inline constexpr std::size_t mostPoints = 100000;

/// How many seasons a question can have.
inline constexpr std::size_t leastSeasons = 2;
inline constexpr std::size_t mostSeasons = 9;

/// Evenly spaced values between two bounds.
struct ValueRange {
  double from = 0;
  double to = 0;
  std::size_t count = 0;

  [[nodiscard]] std::vector<double> values() const;
};

/// Reads a plain number, without commas.
[[nodiscard]] double numberOf(const std::string& text);

/// Reads a number of values, from 2 to the maximum number of points.
[[nodiscard]] std::size_t countOf(const std::string& text);

/// Checks that a range does not end where it starts, or before.
void requireAbove(double from, double to);

/// The bounds that the main window sets for an input.
[[nodiscard]] InputBounds inputBounds(const FarmInput& input, const Farm& farm);

/// Checks a value of an input: the main window must accept it, and the volume of water must not round to 0.
/// \throws RunTimeError (overflow) if the volume of water is too large
void requireValue(const FarmInput& input, double value, const Farm& farm);

/// Checks the change of all inputs in percent.
/// \throws RunTimeError (overflow) if the volume of water is too large
void requirePercent(double percent, const Farm& farm);

/// Checks the number of seasons, their weights and their names.
void requireSeasons(const std::vector<Season>& seasons);
void requireWeight(double weight);

/// Checks that no other season has this name.
void requireNewName(const std::string& name, const std::vector<Season>& seasons);

}  // namespace verdalis
