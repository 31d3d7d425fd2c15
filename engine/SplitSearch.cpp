#include "engine/SplitSearch.h"

#include <algorithm>

#include "engine/priceBlock.h"

namespace verdalis {
namespace {

/// Blocks of prices, a few nanoseconds each, between two checks of the clock: well below a millisecond.
constexpr std::size_t workPerTurn = 1U << 14U;
constexpr std::size_t workOfOffer = 16;

}  // namespace

SplitSearch::SplitSearch(const FieldTables& tables, double slack, KeptCandidates& kept, RunPulse& pulse)
    : tables_(tables),
      slack_(slack),
      kept_(kept),
      pulse_(pulse),
      placeValue_(tables.fields(), 1),
      rows_(tables.fields()),
      openGains_(tables.fields() + 1),
      chosen_(tables.fields()),
      member_(tables.fields()) {
  for (std::size_t field = tables.fields(); field-- > 1;) {
    placeValue_[field - 1] = placeValue_[field] * tables.cropCount();
  }
}

bool SplitSearch::search(std::size_t split, const std::uint16_t* levelNumbers) {
  split_ = static_cast<std::int64_t>(split);
  for (std::size_t field = rows_.size(); field-- > 0;) {
    rows_[field] = &tables_.row(field, levelNumbers[field]);
    openGains_[field] = rows_[field]->gains.front() + openGains_[field + 1];
  }
  return searchField(0, {});
}

bool SplitSearch::goOn(std::size_t work) {
  work_ += work;
  if (work_ < workPerTurn) return true;
  work_ = 0;
  return pulse_.turn();
}

bool SplitSearch::searchField(std::size_t field, const Partial& partial) {
  if (field + 1 == rows_.size()) return searchLastField(partial);
  if (field + 2 == rows_.size()) {
    const OpenPair open = openPair(partial);
    if (open.isWholly) return searchLastTwoFields(partial, open);
  }
  const PricedRow& row = *rows_[field];
  if (!goOn(row.groups)) return false;
  for (std::size_t group = 0; group < row.groups; ++group) {
    const Partial next = planted(field, group, partial);
    if (next.gains + openGains_[field + 1] + slack_ < kept_.threshold()) break;
    chosen_[field] = group;
    if (canEnter(field + 1, next) && !searchField(field + 1, next)) return false;
  }
  return true;
}

inline SplitSearch::Partial SplitSearch::planted(std::size_t field, std::size_t group,
                                                 const Partial& partial) const {
  const PricedRow& row = *rows_[field];
  return {partial.returns + row.returns[group], partial.costs + row.costs[group],
          partial.gains + row.gains[group],
          partial.digits + row.crops[row.firstOfGroup[group]] * placeValue_[field]};
}

/// Whether a candidate with these first fields can enter, by the exact bound.
bool SplitSearch::canEnter(std::size_t nextField, const Partial& partial) const {
  double returns = partial.returns;
  double costs = partial.costs;
  for (std::size_t field = nextField; field < rows_.size(); ++field) {
    returns += rows_[field]->maxReturn;
    costs += rows_[field]->minCost;
  }
  return !(returns - costs < kept_.needed(split_, partial.digits));
}

/// Groups of the last two fields that the tight bound leaves, each combined with the best crop of the other.
SplitSearch::OpenPair SplitSearch::openPair(const Partial& partial) const {
  const auto countOpen = [&](const PricedRow& row, double otherGain) {
    const auto isOpen = [&](double gain) {
      return !(partial.gains + (gain + otherGain) + slack_ < kept_.threshold());
    };
    const auto end = row.gains.begin() + static_cast<std::ptrdiff_t>(row.groups);
    return static_cast<std::size_t>(std::partition_point(row.gains.begin(), end, isOpen) - row.gains.begin());
  };
  const PricedRow& first = *rows_[rows_.size() - 2];
  const PricedRow& second = *rows_.back();
  OpenPair open{countOpen(first, second.bestGain), countOpen(second, first.bestGain), false};
  if (open.first == 0 || open.second == 0) return open;
  const double least = first.gains[open.first - 1] + second.gains[open.second - 1];
  open.isWholly = !(partial.gains + least + slack_ < kept_.threshold());
  return open;
}

/// Prices the remaining groups of the last two fields. The exact bound is computed before a row of prices as
/// long as it excludes some, and occasionally after that, because it costs a good part of the pricing.
bool SplitSearch::searchLastTwoFields(const Partial& partial, const OpenPair& open) {
  constexpr unsigned rest = 15;
  const std::size_t field = rows_.size() - 2;
  const PricedRow& row = *rows_[field];
  const bool isAsked = unasked_ == 0;
  std::size_t turnedAway = 0;
  if (!goOn(open.first * (open.second / priceBlockSize + 1))) return false;
  for (std::size_t group = 0; group < open.first; ++group) {
    if (isAsked && !canEnter(field + 1, planted(field, group, partial))) {
      ++turnedAway;
      continue;
    }
    chosen_[field] = group;
    const std::uint64_t digits = partial.digits + row.crops[row.firstOfGroup[group]] * placeValue_[field];
    if (!priceLastField(open.second, partial.returns + row.returns[group], partial.costs + row.costs[group],
                        digits)) {
      return false;
    }
  }
  unasked_ = isAsked ? (turnedAway == 0 ? rest : 0) : unasked_ - 1;
  return true;
}

inline bool SplitSearch::priceLastField(std::size_t groups, double returns, double costs,
                                        std::uint64_t digits) {
  const PricedRow& row = *rows_.back();
  const double* rowReturns = row.returns.data();
  const double* rowCosts = row.costs.data();
  const double limit = kept_.needed(split_, digits);  // may rise meanwhile; a lower limit only excludes less
  for (std::size_t begin = 0; begin < groups; begin += priceBlockSize) {
    if (anyReaches(limit, returns, costs, rowReturns + begin, rowCosts + begin) &&
        !priceBlock(begin, returns, costs)) {
      return false;
    }
  }
  return true;
}

bool SplitSearch::searchLastField(const Partial& partial) {
  const PricedRow& row = *rows_.back();
  for (std::size_t begin = 0; begin < row.groups; begin += priceBlockSize) {
    if (partial.gains + row.gains[begin] + slack_ < kept_.threshold()) break;
    if (!goOn(1)) return false;
    if (anyReaches(kept_.needed(split_, partial.digits), partial.returns, partial.costs, &row.returns[begin],
                   &row.costs[begin]) &&
        !priceBlock(begin, partial.returns, partial.costs)) {
      return false;
    }
  }
  return true;
}

bool SplitSearch::priceBlock(std::size_t begin, double returns, double costs) {
  const PricedRow& row = *rows_.back();
  const std::size_t end = std::min(begin + priceBlockSize, row.groups);
  for (std::size_t group = begin; group < end; ++group) {
    const double profit = (returns + row.returns[group]) - (costs + row.costs[group]);
    if (profit < kept_.threshold()) continue;
    chosen_.back() = group;
    if (!offer(profit)) return false;
  }
  return true;
}

/// Offers the candidates of the chosen groups, latest first, as long as they enter.
bool SplitSearch::offer(double profit) {
  const std::size_t fields = rows_.size();
  for (std::size_t field = 0; field < fields; ++field) {
    member_[field] = rows_[field]->firstOfGroup[chosen_[field]];
  }
  while (true) {
    std::uint64_t digits = 0;
    for (std::size_t field = 0; field < fields; ++field) {
      digits += rows_[field]->crops[member_[field]] * placeValue_[field];
    }
    if (!kept_.offer({profit, split_, digits})) return true;
    if (!goOn(workOfOffer)) return false;
    std::size_t field = fields;
    while (field > 0 && ++member_[field - 1] == rows_[field - 1]->firstOfGroup[chosen_[field - 1] + 1]) {
      member_[field - 1] = rows_[field - 1]->firstOfGroup[chosen_[field - 1]];
      --field;
    }
    if (field == 0) return true;
  }
}

}  // namespace verdalis
