#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace verdalis {

/// A candidate as the search ranks it. `split` is the number of its water split, from 0. `digits` are the
/// positions of its crops, read as the digits of a number, first field first; the combinations come in
/// falling order of it. So of two candidates the later one is that of the higher split, or of the same split
/// and the lower digits.
struct KeptCandidate {
  double profit;
  std::int64_t split;
  std::uint64_t digits;

  [[nodiscard]] bool comesAfter(std::int64_t otherSplit, std::uint64_t otherDigits) const {
    return split != otherSplit ? split > otherSplit : digits < otherDigits;
  }

  /// Whether it stands above another in the ranking: by profit, then the later one.
  [[nodiscard]] bool ranksAbove(const KeptCandidate& other) const {
    return profit != other.profit ? profit > other.profit : comesAfter(other.split, other.digits);
  }
};

/// The best candidates so far, in a fixed number of places.
class KeptCandidates {
 public:
  /// `lowerBound` is a profit that the last place is known to reach in the end; -infinity where none is
  /// known.
  KeptCandidates(std::size_t places, double lowerBound) : places_(places) { setWorst({lowerBound, -1, 0}); }

  /// A profit below this cannot enter any more.
  [[nodiscard]] double threshold() const { return worst_.profit; }

  /// The least profit with which a candidate that is not later than the given one can enter: an equal one
  /// gives way to the candidate in the last place if that one is later.
  [[nodiscard]] double needed(std::int64_t split, std::uint64_t digits) const {
    return worst_.comesAfter(split, digits) ? above_ : worst_.profit;
  }

  /// Takes the candidate in if it is good enough. \returns whether it was.
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

  /// What was kept, best first.
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
  std::vector<KeptCandidate> heap_;  ///< The worst in front
  KeptCandidate worst_{};  ///< The last place once all are taken; before that, one that gives way to all
  double above_ = 0;       ///< The next float above the worst profit
};

}  // namespace verdalis
