#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/KeptCandidates.h"
#include "engine/RunPulse.h"

namespace verdalis {

/// Searches the candidates of a water split depth first: a crop for the first field, then for the second and
/// so on, best gain first. FastSearch.h proves that the candidates it skips cannot enter the ranking.
class SplitSearch {
 public:
  /// \param slack dollars by which a sum of gains may be below the profit of a candidate that it bounds.
  SplitSearch(const FieldTables& tables, double slack, KeptCandidates& kept, RunPulse& pulse);

  /// Offers the candidates of a split that can enter.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool search(std::size_t split, const std::uint16_t* levelNumbers);

 private:
  /// Sums over the first fields, in field order.
  struct Partial {
    double returns = 0;
    double costs = 0;
    double gains = 0;
    std::uint64_t digits = 0;  ///< Lowest digits of the groups chosen so far, with zeros for the open fields
  };

  /// Number of groups of each of the last two fields that the tight bound leaves.
  struct OpenPair {
    std::size_t first;
    std::size_t second;
    bool isWholly;  ///< The bound leaves every pair of them too
  };

  [[nodiscard]] Partial planted(std::size_t field, std::size_t group, const Partial& partial) const;
  [[nodiscard]] bool searchField(std::size_t field, const Partial& partial);
  [[nodiscard]] OpenPair openPair(const Partial& partial) const;
  [[nodiscard]] bool searchLastTwoFields(const Partial& partial, const OpenPair& open);
  [[nodiscard]] bool priceLastField(std::size_t groups, double returns, double costs, std::uint64_t digits);
  [[nodiscard]] bool searchLastField(const Partial& partial);
  [[nodiscard]] bool priceBlock(std::size_t begin, double returns, double costs);
  [[nodiscard]] bool canEnter(std::size_t nextField, const Partial& partial) const;
  [[nodiscard]] bool offer(double profit);
  [[nodiscard]] bool goOn(std::size_t work);

  const FieldTables& tables_;
  double slack_;
  KeptCandidates& kept_;
  RunPulse& pulse_;
  std::vector<std::uint64_t> placeValue_;  ///< Of the digit of each field

  // Of the current split
  std::int64_t split_ = 0;
  std::vector<const PricedRow*> rows_;
  std::vector<double> openGains_;      ///< Largest gains of this field and all behind it, added
  std::vector<std::size_t> chosen_;    ///< Groups
  std::vector<std::uint32_t> member_;  ///< Places in PricedRow::crops, used by offer()

  unsigned unasked_ = 0;  ///< Number of pairs of last fields for which the exact bound is not computed
  std::size_t work_ = 0;  ///< Done since the clock was last checked
};

}  // namespace verdalis
