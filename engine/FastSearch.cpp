#include "engine/FastSearch.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

#include "engine/CandidateBuilder.h"
#include "engine/SplitSearch.h"

namespace verdalis {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// As long as returns and costs of no candidate exceed this together, sums stay within the range of floats.
constexpr double safeMagnitude = 1e300;

/// Splits and candidates between two checks of the clock.
constexpr std::size_t workPerTurn = 1U << 12U;

/// Number of splits searched in the first round; later rounds search more and more.
constexpr std::size_t firstRound = 256;

/// The largest numbers offered so far, in a fixed number of places.
class LargestNumbers {
 public:
  explicit LargestNumbers(std::size_t places) : places_(places) {}

  void offer(double value) {
    if (heap_.size() == places_) {
      if (value <= heap_.front()) return;
      std::pop_heap(heap_.begin(), heap_.end(), std::greater<>());
      heap_.pop_back();
    }
    heap_.push_back(value);
    std::push_heap(heap_.begin(), heap_.end(), std::greater<>());
  }

  /// Number in the last place; -infinity while it is empty.
  [[nodiscard]] double last() const { return heap_.size() == places_ ? heap_.front() : -infinity; }

 private:
  std::size_t places_;
  std::vector<double> heap_;
};

/// For each field, a property of the row of each level.
template <class Property>
std::vector<std::vector<Property>> byLevel(const FieldTables& tables, Property PricedRow::*property) {
  std::vector<std::vector<Property>> result(tables.fields());
  for (std::size_t field = 0; field < tables.fields(); ++field) {
    for (const std::size_t row : tables.rowNumbers(field))
      result[field].push_back(tables.rows()[row].*property);
  }
  return result;
}

}  // namespace

std::optional<std::vector<KeptCandidate>> FastSearch::run() {
  const auto splitCount = static_cast<std::size_t>(inputs_.depths.Count());
  // The first split starts before anything is priced, so that cancelling it takes precedence over errors.
  if (splitCount > 0 && !pulse_.step()) return std::nullopt;
  isFirstStepTaken_ = splitCount > 0;
  if (!tables_.price(pulse_)) return std::nullopt;
  if (inputs_.combinations.Count() == 0) {
    return stepOver(splitCount) ? std::optional(std::vector<KeptCandidate>()) : std::nullopt;
  }
  // See 4. in the header: twice u is epsilon.
  slack_ = 2 * static_cast<double>(tables_.fields() + 1) * std::numeric_limits<double>::epsilon() *
           tables_.magnitude();
  if (!(tables_.magnitude() < safeMagnitude) && !raiseErrors()) return std::nullopt;
  if (!boundSplits()) return std::nullopt;
  if (!stepOver(splitCount - splits_.size())) return std::nullopt;
  KeptCandidates kept(static_cast<std::size_t>(inputs_.size), lowerBound_);
  if (!searchSplits(kept)) return std::nullopt;
  return kept.ranked();
}

bool FastSearch::step() {
  return std::exchange(isFirstStepTaken_, false) || pulse_.step();
}

bool FastSearch::stepOver(std::size_t count) {
  while (count-- > 0) {
    if (!step()) return false;
  }
  return true;
}

bool FastSearch::raiseErrors() {
  for (std::size_t split = 0; split < static_cast<std::size_t>(inputs_.depths.Count()); ++split) {
    double maxReturns = 0;
    double minReturns = 0;
    double maxCosts = 0;
    double minCosts = 0;
    bool isComplete = true;
    for (std::size_t field = 0; field < tables_.fields(); ++field) {
      const PricedRow& row = tables_.row(field, inputs_.depths.levelNumbers(split)[field]);
      isComplete = isComplete && row.isComplete;
      maxReturns += row.maxReturn;
      minReturns += row.minReturn;
      maxCosts += row.maxCost;
      minCosts += row.minCost;
    }
    if (isComplete && std::isfinite(maxReturns - minCosts) && std::isfinite(minReturns - maxCosts)) continue;
    if (!raiseErrorsOf(split)) return false;
  }
  return true;
}

/// Finds the first candidate of a split, in the order of submission, that cannot be priced, and lets the
/// model price it, which throws.
bool FastSearch::raiseErrorsOf(std::size_t split) {
  const std::uint16_t* levels = inputs_.depths.levelNumbers(split);
  std::vector<std::size_t> crops;
  for (std::uint64_t combination = 0; combination < inputs_.combinations.Count(); ++combination) {
    if (combination % workPerTurn == 0 && !pulse_.turn()) return false;
    inputs_.combinations.positions(combination, crops);
    double returns = 0;
    double costs = 0;
    for (std::size_t field = 0; field < crops.size(); ++field) {
      const PricedRow::Price& price = tables_.row(field, levels[field]).prices[crops[field]];
      returns += price.income;
      costs += price.cost;
    }
    if (std::isfinite(returns - costs)) continue;
    CandidateBuilder builder(inputs_);
    builder.build(inputs_.depths.Item(static_cast<long>(split) + 1), crops).getProfit(inputs_.efficiency);
  }
  return true;
}

bool FastSearch::boundSplits() {
  const auto gains = byLevel(tables_, &PricedRow::bestGain);
  const auto splitCount = static_cast<std::size_t>(inputs_.depths.Count());
  std::vector<double> sums(splitCount);
  LargestNumbers largest(static_cast<std::size_t>(inputs_.size));
  for (std::size_t split = 0; split < splitCount; ++split) {
    const std::uint16_t* levels = inputs_.depths.levelNumbers(split);
    double sum = 0;
    for (std::size_t field = 0; field < gains.size(); ++field)
      sum += gains[field][levels[field]];
    sums[split] = sum;
    largest.offer(sum);
    if (split % workPerTurn == 0 && !pulse_.turn()) return false;
  }
  lowerBound_ = tables_.magnitude() < safeMagnitude ? largest.last() - slack_ : -infinity;
  for (std::size_t split = 0; split < splitCount; ++split) {
    const double tightBound = sums[split] + slack_;
    if (tightBound < lowerBound_) continue;
    const double bound = std::min(exactBound(split), tightBound);
    if (bound < lowerBound_) continue;
    splits_.push_back({bound, split});
    if (splits_.size() % workPerTurn == 0 && !pulse_.turn()) return false;
  }
  leaveOutRepeatedSplits(splits_);
  return true;
}

double FastSearch::exactBound(std::size_t split) const {
  const std::uint16_t* levels = inputs_.depths.levelNumbers(split);
  double returns = 0;
  double costs = 0;
  for (std::size_t field = 0; field < tables_.fields(); ++field) {
    const PricedRow& row = tables_.row(field, levels[field]);
    returns += row.maxReturn;
    costs += row.minCost;
  }
  return returns - costs;
}

/// See 6. in the header.
void FastSearch::leaveOutRepeatedSplits(std::vector<BoundedSplit>& splits) const {
  if (tables_.classCount() == tables_.rows().size()) return;
  constexpr std::size_t mostKeys = 1U << 20U;
  const auto classes = byLevel(tables_, &PricedRow::classNumber);
  std::size_t keys = 1;
  for (std::size_t field = 0; field < classes.size(); ++field) {
    if (keys > mostKeys / tables_.classCount()) return;
    keys *= tables_.classCount();
  }
  std::vector<std::int16_t> seen(keys);
  const auto isRepeated = [&](const BoundedSplit& entry) {
    const std::uint16_t* levels = inputs_.depths.levelNumbers(entry.split);
    std::size_t key = 0;
    for (std::size_t field = 0; field < classes.size(); ++field) {
      key = key * tables_.classCount() + classes[field][levels[field]];
    }
    if (seen[key] == inputs_.size) return true;
    ++seen[key];
    return false;
  };
  // From the last split to the first, so that the later ones stay.
  const auto kept = std::remove_if(splits.rbegin(), splits.rend(), isRepeated);
  splits.erase(splits.begin(), kept.base());
}

/// Rounds bounds to steps of a few rounding errors.
double FastSearch::roughBound(double bound) const {
  return std::isfinite(bound) && std::isfinite(slack_) && slack_ > 0 ? std::floor(bound / (2 * slack_))
                                                                     : bound;
}

bool FastSearch::searchSplits(KeptCandidates& kept) {
  const auto later = [&](const BoundedSplit& a, const BoundedSplit& b) {
    const double boundA = roughBound(a.bound);
    const double boundB = roughBound(b.bound);
    return boundA != boundB ? boundA < boundB : a.split < b.split;
  };
  const auto isOut = [&](const BoundedSplit& entry) {
    return entry.bound < kept.needed(static_cast<std::int64_t>(entry.split), 0);
  };
  SplitSearch search(tables_, slack_, kept, pulse_);
  for (std::size_t round = firstRound; !splits_.empty(); round *= 4) {
    // The best remaining splits are moved to the end, searched and removed. Splits that can no longer enter
    // are then never sorted.
    const auto count = static_cast<std::ptrdiff_t>(std::min(round, splits_.size()));
    std::nth_element(splits_.begin(), splits_.end() - count, splits_.end(), later);
    std::sort(splits_.end() - count, splits_.end(), later);
    for (std::ptrdiff_t i = 0; i < count; ++i) {
      const BoundedSplit entry = splits_.back();
      splits_.pop_back();
      if (!step()) return false;
      if (!isOut(entry) && !search.search(entry.split, inputs_.depths.levelNumbers(entry.split)))
        return false;
    }
    const std::size_t before = splits_.size();
    splits_.erase(std::remove_if(splits_.begin(), splits_.end(), isOut), splits_.end());
    if (!stepOver(before - splits_.size())) return false;
  }
  return true;
}

}  // namespace verdalis
