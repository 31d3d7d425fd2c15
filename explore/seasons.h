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
  double weight = 0;  ///< Relative frequency; above 0
};

/// A season and its best plan.
struct SeasonBest {
  Season season;
  Plan best;
};

/// A plan chosen before the season is known. The yields of `fields` are not set because they differ by
/// season.
struct SeasonPlan {
  double average = 0;           ///< Weighted average of the profits, dollars
  double worst = 0;             ///< Lowest profit, dollars
  double regret = 0;            ///< Largest loss against the best plan of a season, dollars
  std::vector<double> profits;  ///< By season, dollars
  std::vector<PlannedField> fields;
};

/// The results of plans over several seasons.
struct SeasonsResult {
  std::vector<SeasonBest> seasons;
  std::vector<SeasonPlan> options;  ///< The best by average, up to the farm's `size`
  SeasonPlan safest;  ///< Least regret of all candidates; the first submitted if several are equal
};

/// Dry, normal and wet: 3 inches below the rain, at it and 3 inches above it, limited to 11 to 21 inches,
/// with weights 1, 2 and 1.
[[nodiscard]] std::vector<Season> usualSeasons(double rain);

/// Finds the plans with the best average over the seasons, and the safest plan, exactly, among all
/// candidates. Shows its progress.
/// \returns nothing after a cancel.
/// \throws NoPlan, RunTimeError as the evaluation of a season does
[[nodiscard]] std::optional<SeasonsResult> exploreSeasons(const Farm& farm,
                                                          const std::vector<Season>& seasons,
                                                          ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
