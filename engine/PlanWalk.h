#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "engine/CropPatterns.h"
#include "engine/KeptPlans.h"
#include "engine/PlanTables.h"
#include "engine/RunPulse.h"
#include "engine/WaterPaths.h"

namespace verdalis {

/// Upper bound of the value of a candidate: the gains of its fields, added, plus `offset`, which also covers
/// rounding.
struct PlanBound {
  std::vector<std::vector<double>> gains;  ///< By field, as [crop * levels + level]; see PlanTables::gains()
  double offset = 0;
};

/// The value that a walk maximises.
struct PlanValue {
  /// Value of a candidate by its profits by season. Must not decrease if a profit increases.
  std::function<double(const std::vector<double>& profits)> of;
  std::vector<PlanBound> bounds;  ///< One or more; each is valid for every candidate
  bool isFirstPreferred = false;  ///< Of equal candidates, the one submitted first ranks first, not the last
};

/// Visits the candidates that can enter: crops field by field, best bound first, then the splits.
/// PlanSearch.h proves that the candidates it skips cannot enter.
class PlanWalk {
 public:
  PlanWalk(const PlanTables& tables, const WaterPaths& water, const CropPatterns& patterns,
           const std::vector<double>& acres, const PlanValue& value, std::size_t splitCount, KeptPlans& kept,
           RunPulse& pulse);

  /// \returns false if the search is cancelled.
  [[nodiscard]] bool run();

 private:
  using Numbers = std::vector<double>;
  /// By bound, by field up to behind the last: largest gains from each state on.
  using Rests = std::vector<std::vector<Numbers>>;

  struct Choice {
    double bound = 0;  ///< The first one
    std::uint32_t crop = 0;
  };

  /// Place of a crop among the crops of its class with the same costs and returns.
  struct Twins {
    std::uint32_t place;
    std::uint32_t count;
  };

  struct RatedPattern {
    double bound = 0;
    std::size_t pattern = 0;
  };

  [[nodiscard]] std::vector<RatedPattern> ratePatterns() const;
  [[nodiscard]] bool searchPattern(const std::vector<CropPatterns::Slot>& slots);
  [[nodiscard]] bool chooseCrop(std::size_t field, const std::vector<Numbers>& sums, const Rests& rests);
  [[nodiscard]] std::vector<Choice> choices(std::size_t field, const std::vector<Numbers>& sums,
                                            const Rests& rests);
  [[nodiscard]] bool isInBlock(const CropPatterns::Slot& slot) const;
  [[nodiscard]] bool isAllowed(std::size_t field, std::uint32_t crop) const;
  [[nodiscard]] bool mayStillEnter(std::size_t field);
  void choose(std::size_t field, std::uint32_t crop);
  void workOutRests(Rests& rests, std::size_t from) const;
  [[nodiscard]] std::vector<Numbers> sumsBehind(std::size_t field, const std::vector<Numbers>& sums) const;
  [[nodiscard]] bool searchSplits(double firstBound);
  [[nodiscard]] bool followPath(std::size_t field, std::uint32_t node, const std::vector<double>& sums);
  void offer(std::uint32_t split);
  void findTwinPlaces();
  void findExtremes();

  /// Place of a crop in the order in which equal candidates are preferred.
  [[nodiscard]] std::uint64_t digitOf(std::uint32_t crop) const;
  [[nodiscard]] double gain(std::size_t bound, std::size_t field, std::uint32_t crop,
                            std::size_t level) const {
    return value_.bounds[bound].gains[field][crop * tables_.levels(field) + level];
  }
  [[nodiscard]] bool reaches(std::size_t bound, double sum, double limit) const;
  [[nodiscard]] const std::vector<std::uint32_t>& allowedOn(std::size_t field) const;
  [[nodiscard]] Numbers bestByLevel(std::size_t bound, std::size_t field,
                                    const std::vector<std::uint32_t>& crops) const;
  void restOf(std::size_t field, const double* gains, const Numbers& next, Numbers& rest) const;

  const PlanTables& tables_;
  const WaterPaths& water_;
  const CropPatterns& patterns_;
  const PlanValue& value_;
  std::size_t splitCount_;
  KeptPlans& kept_;
  RunPulse& pulse_;

  std::vector<std::uint64_t> placeValue_;
  std::vector<std::uint32_t> acresClass_;                ///< By field; equal for equal acres
  std::vector<std::vector<std::vector<Numbers>>> best_;  ///< By bound, field and class: gains by level
  std::vector<std::vector<Twins>> twins_;                ///< By class and crop
  std::uint64_t mostTwins_ = 0;  ///< This many later candidates of equal value outrank a candidate
  std::vector<PlanTables::Extremes> classExtremes_;  ///< By season, field and class

  // Of the current pattern
  const std::vector<CropPatterns::Slot>* slots_ = nullptr;
  std::vector<std::uint32_t> leaders_;  ///< Crop of each block once it has one

  // Of the chosen crops
  std::vector<std::uint32_t> chosen_;
  std::vector<std::uint64_t> digits_;    ///< Of the first fields
  std::vector<std::uint64_t> twinRank_;  ///< Later candidates of the same value, by the first fields
  Rests splitRests_;
  MixKey mix_;
  double limit_ = 0;  ///< Minimum value to enter with the chosen crops
  std::vector<std::uint16_t> levels_;
  std::vector<double> profits_;
  std::size_t work_ = 0;
};

}  // namespace verdalis
