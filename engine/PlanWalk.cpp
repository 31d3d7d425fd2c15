#include "engine/PlanWalk.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace verdalis {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

/// Edges between two looks at the clock, some microseconds' worth.
constexpr std::size_t workPerTurn = 1U << 15U;

std::vector<std::uint32_t> classesOf(const std::vector<double>& acres) {
  std::vector<std::uint32_t> classes;
  for (std::size_t field = 0; field < acres.size(); ++field) {
    const auto first = std::find(acres.begin(), acres.end(), acres[field]);
    classes.push_back(static_cast<std::uint32_t>(first - acres.begin()));
  }
  return classes;
}

/// Ways to order the fields: candidates of one mix on one split, at most.
std::uint64_t orders(std::size_t fields) {
  std::uint64_t result = 1;
  for (std::size_t i = 2; i <= fields; ++i)
    result *= i;
  return result;
}

}  // namespace

PlanWalk::PlanWalk(const PlanTables& tables, const WaterPaths& water, const CropPatterns& patterns,
                   const std::vector<double>& acres, const PlanValue& value, std::size_t splitCount,
                   KeptPlans& kept, RunPulse& pulse)
    : tables_(tables),
      water_(water),
      patterns_(patterns),
      value_(value),
      splitCount_(splitCount),
      kept_(kept),
      pulse_(pulse),
      placeValue_(tables.fields(), 1),
      acresClass_(classesOf(acres)),
      leaders_(tables.fields(), none),
      chosen_(tables.fields()),
      digits_(tables.fields()),
      twinRank_(tables.fields()),
      levels_(tables.fields()),
      profits_(tables.seasons()) {
  const std::size_t fields = tables.fields();
  for (std::size_t field = fields; field-- > 1;)
    placeValue_[field - 1] = placeValue_[field] * tables.crops();
  mostTwins_ = kept.places() * (kept.countsMixes() ? orders(fields) : 1);
  const std::size_t classes = patterns.classes.size();
  best_.resize(value.bounds.size());
  for (std::size_t bound = 0; bound < value.bounds.size(); ++bound) {
    best_[bound].resize(fields);
    for (std::size_t field = 0; field < fields; ++field) {
      for (std::size_t cropClass = 0; cropClass < classes; ++cropClass)
        best_[bound][field].push_back(bestByLevel(bound, field, patterns.classes[cropClass]));
    }
    splitRests_.emplace_back(fields + 1);
    splitRests_[bound][fields] = {0};
  }
  findTwinPlaces();
  findExtremes();
}

/// For each class, how many twins stand before a crop, and how many there are.
void PlanWalk::findTwinPlaces() {
  for (const std::vector<std::uint32_t>& crops : patterns_.classes) {
    std::vector<Twins>& twins = twins_.emplace_back(tables_.crops(), Twins{0, 1});
    // What one crop does to the number of crops, its twin may not do; and crops of one name make no new
    // mixes.
    if (patterns_.hasBlocks || (kept_.countsMixes() && patterns_.ofName.size() < tables_.crops())) continue;
    std::vector<std::uint32_t> count(tables_.crops(), 0);
    const auto meet = [&](std::uint32_t crop) { twins[crop].place = count[tables_.twinClass(crop)]++; };
    if (value_.isFirstPreferred) {
      std::for_each(crops.rbegin(), crops.rend(), meet);
    } else {
      std::for_each(crops.begin(), crops.end(), meet);
    }
    for (const std::uint32_t crop : crops)
      twins[crop].count = count[tables_.twinClass(crop)];
  }
}

void PlanWalk::findExtremes() {
  for (std::size_t season = 0; season < tables_.seasons(); ++season) {
    for (std::size_t field = 0; field < tables_.fields(); ++field) {
      for (const std::vector<std::uint32_t>& crops : patterns_.classes) {
        PlanTables::Extremes extremes{-infinity, infinity};
        for (const std::uint32_t crop : crops) {
          extremes.income = std::max(extremes.income, tables_.extremes(season, field, crop).income);
          extremes.cost = std::min(extremes.cost, tables_.extremes(season, field, crop).cost);
        }
        classExtremes_.push_back(extremes);
      }
    }
  }
}

bool PlanWalk::run() {
  for (const RatedPattern& rated : ratePatterns()) {
    if (!reaches(0, rated.bound, kept_.threshold())) break;
    if (!searchPattern(patterns_.patterns[rated.pattern])) return false;
  }
  return true;
}

bool PlanWalk::reaches(std::size_t bound, double sum, double limit) const {
  return sum > -infinity && !(sum + value_.bounds[bound].offset < limit);
}

PlanWalk::Numbers PlanWalk::bestByLevel(std::size_t bound, std::size_t field,
                                        const std::vector<std::uint32_t>& crops) const {
  Numbers best(tables_.levels(field), -infinity);
  for (const std::uint32_t crop : crops) {
    for (std::size_t level = 0; level < best.size(); ++level)
      best[level] = std::max(best[level], gain(bound, field, crop, level));
  }
  return best;
}

/// What the open fields from `field` on earn at most from each state, when this field earns `gains` by level.
void PlanWalk::restOf(std::size_t field, const double* gains, const Numbers& next, Numbers& rest) const {
  rest.resize(water_.states(field));
  for (std::size_t state = 0; state < rest.size(); ++state) {
    double best = -infinity;
    for (const WaterPaths::Edge& edge : water_.stateEdges(field, state))
      best = std::max(best, gains[edge.level] + next[edge.target]);
    rest[state] = best;
  }
}

/// The patterns by the first bound, best first. Those with the same classes on the last fields share their
/// rests.
std::vector<PlanWalk::RatedPattern> PlanWalk::ratePatterns() const {
  const std::size_t fields = tables_.fields();
  const std::size_t classes = patterns_.classes.size();
  // By the classes of the fields from the last one on, read as the digits of a number.
  std::vector<Numbers> last{{0}};
  for (std::size_t field = fields; field-- > 0;) {
    std::vector<Numbers> next;
    for (std::size_t cropClass = 0; cropClass < classes; ++cropClass) {
      for (const Numbers& rest : last)
        restOf(field, best_[0][field][cropClass].data(), rest, next.emplace_back());
    }
    last = std::move(next);
  }
  std::vector<RatedPattern> rated;
  for (std::size_t pattern = 0; pattern < patterns_.patterns.size(); ++pattern) {
    std::size_t number = 0;
    for (const CropPatterns::Slot& slot : patterns_.patterns[pattern])
      number = number * classes + slot.cropClass;
    rated.push_back({last[number][0], pattern});
  }
  std::stable_sort(rated.begin(), rated.end(),
                   [](const RatedPattern& a, const RatedPattern& b) { return a.bound > b.bound; });
  return rated;
}

bool PlanWalk::searchPattern(const std::vector<CropPatterns::Slot>& slots) {
  slots_ = &slots;
  std::fill(leaders_.begin(), leaders_.end(), none);
  Rests rests(value_.bounds.size(), std::vector<Numbers>(slots.size() + 1));
  workOutRests(rests, 0);
  for (std::size_t bound = 0; bound < rests.size(); ++bound) {
    if (!reaches(bound, rests[bound][0][0], kept_.threshold())) return true;
  }
  return chooseCrop(0, std::vector<Numbers>(value_.bounds.size(), Numbers{0}), rests);
}

/// The crops of which one stands on the field: those of its class, or of its block once that has a crop.
const std::vector<std::uint32_t>& PlanWalk::allowedOn(std::size_t field) const {
  const CropPatterns::Slot& slot = (*slots_)[field];
  const bool hasLeader = isInBlock(slot) && leaders_[slot.block] != none;
  return hasLeader ? patterns_.ofName[patterns_.nameOf[leaders_[slot.block]]]
                   : patterns_.classes[slot.cropClass];
}

bool PlanWalk::isInBlock(const CropPatterns::Slot& slot) const {
  return patterns_.hasBlocks && slot.cropClass + 1 == patterns_.classes.size();
}

void PlanWalk::workOutRests(Rests& rests, std::size_t from) const {
  for (std::size_t bound = 0; bound < rests.size(); ++bound) {
    rests[bound].back() = {0};
    for (std::size_t field = slots_->size(); field-- > from;) {
      const CropPatterns::Slot& slot = (*slots_)[field];
      if (isInBlock(slot) && leaders_[slot.block] != none) {
        const Numbers best = bestByLevel(bound, field, allowedOn(field));
        restOf(field, best.data(), rests[bound][field + 1], rests[bound][field]);
      } else {
        restOf(field, best_[bound][field][slot.cropClass].data(), rests[bound][field + 1],
               rests[bound][field]);
      }
    }
  }
}

/// Different blocks have different crops.
bool PlanWalk::isAllowed(std::size_t field, std::uint32_t crop) const {
  const CropPatterns::Slot& slot = (*slots_)[field];
  if (!isInBlock(slot)) return true;
  for (std::uint32_t block = 0; block < leaders_.size(); ++block) {
    if (block != slot.block && leaders_[block] != none &&
        patterns_.nameOf[leaders_[block]] == patterns_.nameOf[crop]) {
      return false;
    }
  }
  return true;
}

/// The crops that may stand on a field and lead to a candidate that can enter, best bound first.
std::vector<PlanWalk::Choice> PlanWalk::choices(std::size_t field, const std::vector<Numbers>& sums,
                                                const Rests& rests) {
  const std::size_t levelCount = tables_.levels(field);
  // By bound: what the other fields earn at most, by the level of this one.
  std::vector<Numbers> others(sums.size(), Numbers(levelCount, -infinity));
  for (std::size_t bound = 0; bound < sums.size(); ++bound) {
    Numbers& other = others[bound];
    const Numbers& next = rests[bound][field + 1];
    for (std::size_t state = 0; state < sums[bound].size(); ++state) {
      const double sum = sums[bound][state];
      if (!(sum > -infinity)) continue;
      for (const WaterPaths::Edge& edge : water_.stateEdges(field, state))
        other[edge.level] = std::max(other[edge.level], sum + next[edge.target]);
    }
  }
  std::vector<Choice> result;
  const double limit = kept_.threshold();
  for (const std::uint32_t crop : allowedOn(field)) {
    if (!isAllowed(field, crop)) continue;
    Choice choice{-infinity, crop};
    bool isOpen = true;
    for (std::size_t bound = 0; bound < sums.size() && isOpen; ++bound) {
      const double* gains = &value_.bounds[bound].gains[field][crop * levelCount];
      double best = -infinity;
      for (std::size_t level = 0; level < levelCount; ++level)
        best = std::max(best, others[bound][level] + gains[level]);
      isOpen = reaches(bound, best, limit);
      if (bound == 0) choice.bound = best;
    }
    if (isOpen) result.push_back(choice);
  }
  std::sort(result.begin(), result.end(), [&](const Choice& a, const Choice& b) {
    return a.bound != b.bound ? a.bound > b.bound : digitOf(a.crop) < digitOf(b.crop);
  });
  return result;
}

std::uint64_t PlanWalk::digitOf(std::uint32_t crop) const {
  return value_.isFirstPreferred ? tables_.crops() - 1 - crop : crop;
}

void PlanWalk::choose(std::size_t field, std::uint32_t crop) {
  chosen_[field] = crop;
  const bool isFirst = field == 0;
  digits_[field] = (isFirst ? 0 : digits_[field - 1]) + digitOf(crop) * placeValue_[field];
  const Twins& twins = twins_[(*slots_)[field].cropClass][crop];
  twinRank_[field] = (isFirst ? 0 : twinRank_[field - 1]) * twins.count + twins.place;
}

/// Whether a candidate with the crops up to this field can enter, by sums that are rounded as its value is.
bool PlanWalk::mayStillEnter(std::size_t field) {
  const std::size_t fields = chosen_.size();
  const std::size_t classes = patterns_.classes.size();
  for (std::size_t season = 0; season < profits_.size(); ++season) {
    double returns = 0;
    double costs = 0;
    for (std::size_t k = 0; k < fields; ++k) {
      const PlanTables::Extremes& extremes =
          k <= field ? tables_.extremes(season, k, chosen_[k])
                     : classExtremes_[(season * fields + k) * classes + (*slots_)[k].cropClass];
      returns += extremes.income;
      costs += extremes.cost;
    }
    profits_[season] = returns - costs;
  }
  return kept_.mayEnter(value_.of(profits_), static_cast<std::int64_t>(splitCount_) - 1, digits_[field]);
}

bool PlanWalk::chooseCrop(std::size_t field, const std::vector<Numbers>& sums, const Rests& rests) {
  if (!pulse_.turn()) return false;
  const CropPatterns::Slot& slot = (*slots_)[field];
  const bool leads = isInBlock(slot) && leaders_[slot.block] == none;
  for (const Choice& choice : choices(field, sums, rests)) {
    if (!reaches(0, choice.bound, kept_.threshold())) break;
    choose(field, choice.crop);
    if (twinRank_[field] >= mostTwins_ || !mayStillEnter(field)) continue;
    bool goesOn = true;
    if (field + 1 == chosen_.size()) {
      goesOn = searchSplits(choice.bound);
    } else if (leads) {
      leaders_[slot.block] = choice.crop;
      Rests own = rests;
      workOutRests(own, field + 1);
      goesOn = chooseCrop(field + 1, sumsBehind(field, sums), own);
      leaders_[slot.block] = none;
    } else {
      goesOn = chooseCrop(field + 1, sumsBehind(field, sums), rests);
    }
    if (!goesOn) return false;
  }
  return true;
}

/// The largest gains of the first fields by the state behind `field`, which has its crop.
std::vector<PlanWalk::Numbers> PlanWalk::sumsBehind(std::size_t field,
                                                    const std::vector<Numbers>& sums) const {
  std::vector<Numbers> result(sums.size(), Numbers(water_.states(field + 1), -infinity));
  for (std::size_t bound = 0; bound < sums.size(); ++bound) {
    const double* gains = &value_.bounds[bound].gains[field][chosen_[field] * tables_.levels(field)];
    Numbers& next = result[bound];
    for (std::size_t state = 0; state < sums[bound].size(); ++state) {
      const double sum = sums[bound][state];
      if (!(sum > -infinity)) continue;
      for (const WaterPaths::Edge& edge : water_.stateEdges(field, state))
        next[edge.target] = std::max(next[edge.target], sum + gains[edge.level]);
    }
  }
  return result;
}

/// The splits of the chosen crops.
bool PlanWalk::searchSplits(double firstBound) {
  const std::size_t fields = chosen_.size();
  mix_.clear();
  if (kept_.countsMixes()) {
    constexpr unsigned shift = 16;
    for (std::size_t field = 0; field < fields; ++field)
      mix_.push_back(acresClass_[field] << shift | patterns_.nameOf[chosen_[field]]);
    std::sort(mix_.begin(), mix_.end());
  }
  limit_ = kept_.thresholdOf(mix_);
  if (!reaches(0, firstBound, limit_)) return true;
  for (std::size_t bound = 0; bound < splitRests_.size(); ++bound) {
    for (std::size_t field = fields; field-- > 0;) {
      restOf(field, &value_.bounds[bound].gains[field][chosen_[field] * tables_.levels(field)],
             splitRests_[bound][field + 1], splitRests_[bound][field]);
    }
    if (!reaches(bound, splitRests_[bound][0][0], limit_)) return true;
  }
  return followPath(0, 0, std::vector<double>(splitRests_.size(), 0));
}

bool PlanWalk::followPath(std::size_t field, std::uint32_t node, const std::vector<double>& sums) {
  struct Step {
    double bound;
    WaterPaths::Edge edge;
  };
  const std::size_t bounds = sums.size();
  const bool isLast = field + 1 == chosen_.size();
  const WaterPaths::Edges edges = water_.edgesOf(field, node);
  work_ += static_cast<std::size_t>(edges.last - edges.first);
  if (work_ >= workPerTurn) {
    work_ = 0;
    if (!pulse_.turn()) return false;
  }
  std::vector<Step> steps;
  for (const WaterPaths::Edge* edge = edges.last; edge-- != edges.first;) {
    const std::uint32_t state = isLast ? 0 : water_.stateOf(field + 1, edge->target);
    bool isOpen = true;
    double first = 0;
    for (std::size_t bound = 0; bound < bounds && isOpen; ++bound) {
      const double sum = sums[bound] + gain(bound, field, chosen_[field], edge->level) +
                         splitRests_[bound][field + 1][state];
      isOpen = reaches(bound, sum, limit_);
      if (bound == 0) first = sum;
    }
    if (isOpen) steps.push_back({first, *edge});
  }
  if (steps.size() > 1) {
    std::stable_sort(steps.begin(), steps.end(),
                     [](const Step& a, const Step& b) { return a.bound > b.bound; });
  }
  std::vector<double> next(bounds);
  for (const Step& step : steps) {
    if (!reaches(0, step.bound, limit_)) break;
    levels_[field] = step.edge.level;
    if (isLast) {
      offer(step.edge.target);
      continue;
    }
    for (std::size_t bound = 0; bound < bounds; ++bound)
      next[bound] = sums[bound] + gain(bound, field, chosen_[field], step.edge.level);
    if (!followPath(field + 1, step.edge.target, next)) return false;
  }
  return true;
}

void PlanWalk::offer(std::uint32_t split) {
  for (std::size_t season = 0; season < profits_.size(); ++season)
    profits_[season] = tables_.profit(season, levels_.data(), chosen_);
  const double value = value_.of(profits_);
  if (value < limit_) return;
  const std::int64_t place =
      value_.isFirstPreferred ? static_cast<std::int64_t>(splitCount_) - 1 - split : split;
  kept_.offer({value, place, digits_.back()}, mix_);
  limit_ = kept_.thresholdOf(mix_);
}

}  // namespace verdalis
