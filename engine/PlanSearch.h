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

/// The best candidates under wishes, of each mix, or over several seasons, without pricing all of them.
///
/// WHY THE RESULT IS THAT OF GOING THROUGH ALL
///
/// 1. The value of a candidate is worked out as it is told: for each season the float sum of the returns less
/// that of the costs, each from left to right in field order; then the average, or the largest loss against
/// the best of a season. Only such values are compared, so ties are ties to the last bit.
///
/// 2. A bound is a sum of gains over the fields: for factors f_s of the seasons, gain = sum over s of
/// f_s (return - cost). The average is at most the sum of the gains with f_s = w_s / (w_1 + ...). The largest
/// loss is at least any weighted mean of the losses, so with B_s the best of season s it is at least
/// sum f_s B_s less the sum of the gains, for any f_s that add up to 1. Several such bounds are held at a
/// time; one that fails suffices. Rounding of both sides is covered by a slack: each of at most 4 (fields +
/// seasons + 4) roundings errs by no more than u times the sum of the magnitudes, and the slack is four times
/// that.
///
/// 3. With the crops of all fields known, the best way to share the water is a longest path: the gains of a
/// field depend on its level alone, and WaterPaths tells which levels are left. A state's rest is the largest
/// gain of the open fields from there. The crops of the first fields fixed, the bound is the best that meets
/// in a state: sum up to there plus rest. So the search chooses crops field by field, best bound first, and
/// looks at the splits only when all crops stand.
///
/// 4. Wishes. Those about one field close crops and levels of it. Those about acres and the number of crops
/// depend on the crops alone: a pattern says for each field which named crop it grows, or that it grows one
/// of the others, and with wishes for a number of crops which of the other fields grow the same. Each
/// candidate has exactly one pattern; the patterns that miss a wish are left out, and each of the rest is
/// searched with the bounds of its own crops.
///
/// 5. Mixes. Only the best candidate of a mix counts, so a candidate is passed over as soon as its mix has a
/// better one, or as enough mixes have.
///
/// 6. Twins. Crops that cost and return the same everywhere make candidates of equal value; with as many
/// places as later ones of them, a candidate is outranked. Where all values are equal to the last bit, the
/// sums of the highest returns and the lowest costs, rounded as the value is, tell that nothing later is
/// left.
class PlanSearch {
 public:
  PlanSearch(const PlanQuestion& question, RunPulse& pulse);

  /// Prices the fields. Must be called once, before a search.
  /// \returns false when the search is to be given up.
  /// \throws RunTimeError for the first candidate that meets the wishes and cannot be priced
  [[nodiscard]] bool price();

  /// The best candidates by the average over the seasons, best first; of equal ones the later submitted.
  /// \returns nothing when the search is to be given up.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> best();

  /// The best candidate of one season. \returns nothing when the search is to be given up; an empty list
  /// where no candidate meets the wishes.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> bestOf(std::size_t season);

  /// The candidate with the least regret, as `profit` with the sign turned; the first submitted of equal
  /// ones. `bestProfits` are the highest profits of the seasons. \returns nothing when the search is to be
  /// given up; an empty list where no candidate meets the wishes.
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> safest(const std::vector<double>& bestProfits);

  /// The profits of a candidate by season, dollars.
  [[nodiscard]] std::vector<double> profitsOf(const KeptCandidate& candidate) const;

  /// The weighted average of profits by season, added in their order.
  [[nodiscard]] double average(const std::vector<double>& profits) const;

  /// The largest loss of profits by season against the best of each.
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
