#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/KeptCandidates.h"
#include "engine/RunPulse.h"

namespace verdalis {

/// Goes through the candidates of one water split after the other, depth first: a crop on the first field,
/// then on the second and so on, best gain first. Why what it passes over can be passed over stands in
/// FastSearch.h.
class SplitSearch {
 public:
  /// `slack`: dollars by which a sum of gains may lie below the profit of a candidate that it bounds.
  SplitSearch(const FieldTables& tables, double slack, KeptCandidates& kept, RunPulse& pulse);

  /// Offers the candidates of a split that can enter. \returns false when the search is to be given up.
  [[nodiscard]] bool search(std::size_t split, const std::uint16_t* levelNumbers);

 private:
  /// Sums over the first fields, in field order.
  struct Partial {
    double returns = 0;
    double costs = 0;
    double gains = 0;
    std::uint64_t digits = 0;  ///< The least of the groups chosen so far, zeros for the open fields
  };

  /// How many groups of each of the last two fields cannot be turned away at once.
  struct OpenPair {
    std::size_t first;
    std::size_t second;
    bool isWholly;  ///< Nor can any two of them together
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

  // Of the split at hand
  std::int64_t split_ = 0;
  std::vector<const PricedRow*> rows_;
  std::vector<double> openGains_;      ///< The largest gains of this field and all after it
  std::vector<std::size_t> chosen_;    ///< Groups
  std::vector<std::uint32_t> member_;  ///< Places in PricedRow::crops, used by offer()

  unsigned unasked_ = 0;  ///< For so many pairs of last fields the exact bound is not asked
  std::size_t work_ = 0;  ///< Done since the clock was looked at
};

}  // namespace verdalis
