#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "engine/CropPatterns.h"
#include "engine/KeptPlans.h"
#include "engine/PlanQuestion.h"
#include "engine/PlanTables.h"
#include "engine/PlanWalk.h"
#include "engine/RunPulse.h"
#include "engine/WaterPaths.h"

namespace verdalis {

/// Finds the best candidates under wishes, of each mix, or over several seasons, without pricing all of them.
///
/// WHY THE RESULT EQUALS GOING THROUGH ALL CANDIDATES
///
/// 1. The value of a candidate is computed exactly as it is reported: for each season the float sum of the
/// returns minus that of the costs, each from left to right in field order; then the average, or the largest
/// loss against the best plan of a season. Only these values are compared, so ties are ties to the last bit.
///
/// 2. Bounds are sums of gains over the fields: with a factor f_s per season, the gain of a field is the sum
/// over s of f_s (return - cost). The average is at most the sum of the gains with f_s = w_s / (w_1 + ...).
/// The largest loss is at least any weighted mean of the losses: with B_s the best profit of season s and any
/// f_s that add up to 1, it is at least the sum of f_s B_s minus the sum of the gains. A search may use
/// several such bounds; one that fails excludes a candidate. The slack covers the rounding of both sides: at
/// most 4 (fields + seasons + 4) roundings, each with an error of at most u times the sum of the magnitudes;
/// the slack is four times that.
///
/// 3. If the crops of all fields are known, the best distribution of the water is a longest path: the gain of
/// a field depends only on its level, and WaterPaths knows the levels that are left. The rest of a state is
/// the largest gain of the open fields from there on. If only the crops of the first fields are known, the
/// bound is the largest sum up to a state plus the rest of that state. So the search chooses crops field by
/// field, best bound first, and visits the splits only for complete crops.
///
/// 4. Wishes about one field exclude crops and levels of that field. Wishes about acres and the number of
/// crops depend only on the crops: a pattern says which named crop each field grows, or that it grows one of
/// the others, and, with wishes for a number of crops, which of the other fields grow the same crop. Each
/// candidate has exactly one pattern. Patterns that miss a wish are dropped; each of the others is searched
/// with bounds of its own.
///
/// 5. Mixes. Only the best candidate of a mix counts, so candidates are skipped as soon as their mix, or
/// enough other mixes, have better ones.
///
/// 6. Twins. Crops with equal costs and returns everywhere make candidates of equal value. A candidate with
/// as many later twins as there are places is outranked. If all values are equal to the last bit, sums of the
/// highest returns and the lowest costs, rounded like the value, show that nothing later is left.
class PlanSearch {
 public:
  PlanSearch(const PlanQuestion& question, RunPulse& pulse);

  /// Prices the fields. Call it once before a search.
  /// \returns false if the search is cancelled.
  /// \throws RunTimeError for the first candidate that meets the wishes and cannot be priced
  [[nodiscard]] bool price();

  /// The best candidates by the average over the seasons, best first; of equal ones the one submitted later.
  /// \returns nothing if the search is cancelled.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> best();

  /// The best candidate of one season.
  /// \returns nothing if the search is cancelled; an empty list if no candidate meets the wishes.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> bestOf(std::size_t season);

  /// The candidate with the least regret; of equal ones the one submitted first. Its `profit` is the negative
  /// regret.
  /// \param bestProfits highest profits of the seasons.
  /// \returns nothing if the search is cancelled; an empty list if no candidate meets the wishes.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> safest(const std::vector<double>& bestProfits);

  /// Profits of a candidate by season, dollars.
  [[nodiscard]] std::vector<double> profitsOf(const KeptCandidate& candidate) const;

  /// Weighted average of profits by season, added in their order.
  [[nodiscard]] double average(const std::vector<double>& profits) const;

  /// Largest loss of profits by season against the best profit of each.
  [[nodiscard]] static double regret(const std::vector<double>& profits,
                                     const std::vector<double>& bestProfits);

 private:
  [[nodiscard]] std::size_t splitCount() const {
    return static_cast<std::size_t>(question_.seasons.front().depths.Count());
  }
  [[nodiscard]] bool raiseErrors(std::size_t season);
  [[nodiscard]] double slack(double magnitude) const;
  [[nodiscard]] PlanValue profitIn(std::size_t season) const;
  [[nodiscard]] std::vector<double> levelFactors(const std::vector<double>& bestProfits);
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> walk(const PlanValue& value, KeptPlans kept);

  const PlanQuestion& question_;
  RunPulse& pulse_;
  PlanTables tables_;
  WaterPaths water_;
  CropPatterns patterns_;
};

}  // namespace verdalis
