#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace verdalis {

/// A candidate as the search ranks it: its profit and its place in the order of submission.
///
/// `split` is the index of its water split, from 0. `digits` are the positions of its crops, read as the
/// digits of a number, first field first. Combinations are submitted in descending order of this number, so
/// of two candidates the later one has the higher split, or the same split and the lower digits.
struct KeptCandidate {
  double profit;
  std::int64_t split;
  std::uint64_t digits;

  [[nodiscard]] bool comesAfter(std::int64_t otherSplit, std::uint64_t otherDigits) const {
    return split != otherSplit ? split > otherSplit : digits < otherDigits;
  }

  /// Whether it ranks above another one: by profit, then the later one.
  [[nodiscard]] bool ranksAbove(const KeptCandidate& other) const {
    return profit != other.profit ? profit > other.profit : comesAfter(other.split, other.digits);
  }
};

/// The best candidates so far, in a fixed number of places.
class KeptCandidates {
 public:
  /// \param lowerBound profit that the last place is known to reach in the end; -infinity if unknown.
  KeptCandidates(std::size_t places, double lowerBound) : places_(places) { setWorst({lowerBound, -1, 0}); }

  /// Profits below this can no longer enter.
  [[nodiscard]] double threshold() const { return worst_.profit; }

  /// Minimum profit to enter the ranking for candidates that come no later than the given one, ties included:
  /// a candidate of equal profit does not enter if the one in the last place is later.
  [[nodiscard]] double needed(std::int64_t split, std::uint64_t digits) const {
    return worst_.comesAfter(split, digits) ? above_ : worst_.profit;
  }

  /// Adds the candidate if it is good enough.
  /// \returns whether it was added.
  bool offer(const KeptCandidate& candidate) {
    if (!candidate.ranksAbove(worst_)) return false;
    const auto above = [](const KeptCandidate& a, const KeptCandidate& b) { return a.ranksAbove(b); };
    if (heap_.size() == places_) {
      std::pop_heap(heap_.begin(), heap_.end(), above);
      heap_.pop_back();
    }
    heap_.push_back(candidate);
    std::push_heap(heap_.begin(), heap_.end(), above);
    if (heap_.size() == places_) setWorst(heap_.front());
    return true;
  }

  /// The kept candidates, best first.
  [[nodiscard]] std::vector<KeptCandidate> ranked() const {
    std::vector<KeptCandidate> result = heap_;
    std::sort(result.begin(), result.end(),
              [](const KeptCandidate& a, const KeptCandidate& b) { return a.ranksAbove(b); });
    return result;
  }

 private:
  void setWorst(const KeptCandidate& worst) {
    worst_ = worst;
    above_ = std::nextafter(worst.profit, std::numeric_limits<double>::infinity());
  }

  std::size_t places_;
  std::vector<KeptCandidate> heap_;  ///< The worst candidate is at the front
  KeptCandidate worst_{};  ///< The last place once all are taken; before that, a candidate below all others
  double above_ = 0;       ///< The next float above the profit in the last place
};

}  // namespace verdalis
