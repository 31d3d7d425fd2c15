#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "engine/KeptCandidates.h"

namespace verdalis {

/// Acres and crops of a candidate as sorted numbers.
using MixKey = std::vector<std::uint32_t>;

/// The best candidates so far, or the best of each mix, in a fixed number of places.
class KeptPlans {
 public:
  KeptPlans(std::size_t places, bool mixes)
      : places_(places), mixes_(mixes), kept_(places, -std::numeric_limits<double>::infinity()) {}

  [[nodiscard]] bool countsMixes() const { return mixes_; }
  [[nodiscard]] std::size_t places() const { return places_; }

  /// Values below this can no longer enter.
  [[nodiscard]] double threshold() const { return mixes_ ? worst().profit : kept_.threshold(); }

  /// The same for a candidate of a mix.
  [[nodiscard]] double thresholdOf(const MixKey& mix) const {
    if (!mixes_) return kept_.threshold();
    const auto found = best_.find(mix);
    return found == best_.end() ? worst().profit : std::max(worst().profit, found->second.profit);
  }

  /// Whether candidates of at most this value, no later than this place, may still enter.
  [[nodiscard]] bool mayEnter(double value, std::int64_t split, std::uint64_t digits) const {
    if (!mixes_) return !(value < kept_.needed(split, digits));
    const KeptCandidate last = worst();
    return value > last.profit || (value == last.profit && !last.comesAfter(split, digits));
  }

  void offer(const KeptCandidate& candidate, const MixKey& mix) {
    if (!mixes_) {
      static_cast<void>(kept_.offer(candidate));
      return;
    }
    const auto [entry, isNew] = best_.try_emplace(mix, candidate);
    if (!isNew) {
      if (!candidate.ranksAbove(entry->second)) return;
      ranking_.erase({entry->second, mix});
      entry->second = candidate;
    }
    ranking_.insert({candidate, mix});
    if (ranking_.size() > places_) {
      const auto last = std::prev(ranking_.end());
      best_.erase(last->mix);
      ranking_.erase(last);
    }
  }

  /// The kept candidates, best first.
  [[nodiscard]] std::vector<KeptCandidate> ranked() const {
    if (!mixes_) return kept_.ranked();
    std::vector<KeptCandidate> result;
    for (const Entry& entry : ranking_)
      result.push_back(entry.candidate);
    return result;
  }

 private:
  struct Entry {
    KeptCandidate candidate;
    MixKey mix;
    friend bool operator<(const Entry& a, const Entry& b) {
      if (a.candidate.ranksAbove(b.candidate)) return true;
      return !b.candidate.ranksAbove(a.candidate) && a.mix < b.mix;
    }
  };

  /// Last place of the mixes; a candidate below all others while places are free.
  [[nodiscard]] KeptCandidate worst() const {
    if (ranking_.size() < places_) return {-std::numeric_limits<double>::infinity(), -1, 0};
    return std::prev(ranking_.end())->candidate;
  }

  std::size_t places_;
  bool mixes_;
  KeptCandidates kept_;
  std::map<MixKey, KeptCandidate> best_;
  std::set<Entry> ranking_;
};

}  // namespace verdalis
