#pragma once

#include <optional>
#include <string>
#include <vector>

#include "explore/bestPlan.h"

namespace verdalis {

/// A kind of year.
struct Season {
  std::string name;
  double rain = 0;    ///< Annual rainfall, inches
  double weight = 0;  ///< How often it comes, against the others; above 0
};

/// A season with its own best plan.
struct SeasonBest {
  Season season;
  Plan best;
};

/// A plan that is chosen before the season is known. The yields of `fields` are not told: they differ by
/// season.
struct SeasonPlan {
  double average = 0;           ///< Weighted average of the profits, dollars
  double worst = 0;             ///< Lowest profit, dollars
  double regret = 0;            ///< Largest loss against the best plan of a season, dollars
  std::vector<double> profits;  ///< By season, dollars
  std::vector<PlannedField> fields;
};

/// How plans do over several seasons.
struct SeasonsResult {
  std::vector<SeasonBest> seasons;
  std::vector<SeasonPlan> options;  ///< The farm's `size` best by average
  SeasonPlan safest;                ///< The least regret of all candidates, the first submitted of equal ones
};

/// Dry, normal and wet: 3 inches below, at and 3 inches above the rain, held within 11 to 21 inches,
/// weighing 1, 2 and 1.
[[nodiscard]] std::vector<Season> usualSeasons(double rain);

/// The plans with the best average over the seasons, and the safest one, exact among all candidates.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError as the evaluation of a season does
[[nodiscard]] std::optional<SeasonsResult> exploreSeasons(const Farm& farm,
                                                          const std::vector<Season>& seasons,
                                                          ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
