#include "engine/PlanSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/CandidateBuilder.h"
#include "engine/meetsWishes.h"
#include "model/checked.h"

namespace verdalis {
namespace {

/// Candidates between two looks at the clock.
constexpr std::size_t workPerTurn = 1U << 12U;

double sumOf(const std::vector<double>& values) {
  double sum = 0;
  for (const double value : values)
    sum += value;
  return sum;
}

}  // namespace

PlanSearch::PlanSearch(const PlanQuestion& question, RunPulse& pulse)
    : question_(question),
      pulse_(pulse),
      tables_(question),
      water_(question.seasons.front().depths),
      patterns_(makeCropPatterns(question)) {}

bool PlanSearch::price() {
  if (!tables_.price(pulse_)) return false;
  if (tables_.isSafe()) return true;
  for (std::size_t season = 0; season < question_.seasons.size(); ++season) {
    if (!raiseErrors(season)) return false;
  }
  tables_.closeUnpriced();
  return true;
}

/// Goes through the candidates in the plain order, and lets the model price the first that meets the wishes
/// and fails. Splits on which nothing can fail are passed over.
bool PlanSearch::raiseErrors(std::size_t season) {
  const SearchInputs& inputs = question_.seasons[season];
  const std::vector<double>& acres = inputs.landSplit.getSplits();
  const auto& crops = inputs.combinations.crops();
  std::vector<std::size_t> planted;
  for (std::size_t split = 0; split < splitCount(); ++split) {
    const std::uint16_t* levels = inputs.depths.levelNumbers(split);
    double returns = 0;
    double costs = 0;
    for (std::size_t field = 0; field < tables_.fields(); ++field) {
      double mostReturn = 0;
      double mostCost = 0;
      for (std::size_t crop = 0; crop < crops.size(); ++crop) {
        if (!tables_.isOpen(field, crop, levels[field])) continue;
        const PricedRow::Price& price = tables_.price(season, field, levels[field], crop);
        mostReturn = std::isnan(price.income) ? price.income : std::max(mostReturn, std::fabs(price.income));
        mostCost = std::max(mostCost, std::fabs(price.cost));
        if (std::isnan(mostReturn)) break;
      }
      returns += mostReturn;
      costs += mostCost;
    }
    if (std::isfinite(returns + costs)) continue;
    for (std::uint64_t combination = 0; combination < inputs.combinations.Count(); ++combination) {
      if (combination % workPerTurn == 0 && !pulse_.turn()) return false;
      inputs.combinations.positions(combination, planted);
      returns = 0;
      costs = 0;
      bool isOpen = true;
      for (std::size_t field = 0; field < planted.size() && isOpen; ++field) {
        const PricedRow::Price& price = tables_.price(season, field, levels[field], planted[field]);
        isOpen = tables_.isOpen(field, planted[field], levels[field]);
        returns += price.income;
        costs += price.cost;
      }
      if (!isOpen || std::isfinite(returns - costs)) continue;
      std::vector<WishedField> plan;
      for (std::size_t field = 0; field < planted.size(); ++field) {
        const Crop& crop = *crops[planted[field]];
        const double depth = netDepthOf(crop, inputs.depths.levels(field)[levels[field]]);
        plan.push_back({acres[field], &crop.cropType, grossFromNet(depth, inputs.efficiency)});
      }
      if (!meetsWishes(question_.wishes, plan)) continue;
      CandidateBuilder builder(inputs);
      builder.build(inputs.depths.Item(static_cast<long>(split) + 1), planted).getProfit(inputs.efficiency);
    }
  }
  return true;
}

double PlanSearch::slack(double magnitude) const {
  const auto roundings = static_cast<double>(tables_.fields() + tables_.seasons() + 4);
  return 8 * roundings * std::numeric_limits<double>::epsilon() * magnitude;
}

std::optional<std::vector<KeptCandidate>> PlanSearch::walk(const PlanValue& value, KeptPlans kept) {
  if (splitCount() > 0 && tables_.crops() > 0) {
    PlanWalk walk(tables_, water_, patterns_, question_.seasons.front().landSplit.getSplits(), value,
                  splitCount(), kept, pulse_);
    if (!walk.run()) return std::nullopt;
  }
  std::vector<KeptCandidate> ranked = kept.ranked();
  if (value.isFirstPreferred) {
    for (KeptCandidate& candidate : ranked) {
      candidate.split = static_cast<std::int64_t>(splitCount()) - 1 - candidate.split;
      candidate.digits = question_.seasons.front().combinations.Count() - 1 - candidate.digits;
    }
  }
  return ranked;
}

std::optional<std::vector<KeptCandidate>> PlanSearch::best() {
  if (tables_.seasons() == 1) {
    return walk(profitIn(0), KeptPlans(question_.places, question_.mixes));
  }
  const double all = sumOf(question_.weights);
  PlanValue value;
  value.of = [this](const std::vector<double>& profits) { return average(profits); };
  std::vector<double> factors;
  double magnitude = 0;
  for (std::size_t season = 0; season < tables_.seasons(); ++season) {
    factors.push_back(question_.weights[season] / all);
    magnitude = std::max(magnitude, tables_.magnitude(season));
  }
  value.bounds.push_back({tables_.gains(factors), slack(magnitude)});
  return walk(value, KeptPlans(question_.places, question_.mixes));
}

double PlanSearch::average(const std::vector<double>& profits) const {
  double sum = 0;
  for (std::size_t season = 0; season < profits.size(); ++season)
    sum += question_.weights[season] * profits[season];
  return sum / sumOf(question_.weights);
}

PlanValue PlanSearch::profitIn(std::size_t season) const {
  PlanValue value;
  value.of = [season](const std::vector<double>& profits) { return profits[season]; };
  std::vector<double> factors(tables_.seasons(), 0);
  factors[season] = 1;
  value.bounds.push_back({tables_.gains(factors), slack(tables_.magnitude(season))});
  return value;
}

std::optional<std::vector<KeptCandidate>> PlanSearch::bestOf(std::size_t season) {
  return walk(profitIn(season), KeptPlans(1, false));
}

double PlanSearch::regret(const std::vector<double>& profits, const std::vector<double>& bestProfits) {
  double regret = bestProfits[0] - profits[0];
  for (std::size_t season = 1; season < profits.size(); ++season)
    regret = std::max(regret, bestProfits[season] - profits[season]);
  return regret;
}

std::vector<double> PlanSearch::profitsOf(const KeptCandidate& candidate) const {
  const SearchInputs& inputs = question_.seasons.front();
  std::vector<std::size_t> crops;
  inputs.combinations.positions(inputs.combinations.Count() - 1 - candidate.digits, crops);
  const std::uint16_t* levels = inputs.depths.levelNumbers(static_cast<std::size_t>(candidate.split));
  std::vector<double> profits;
  for (std::size_t season = 0; season < tables_.seasons(); ++season)
    profits.push_back(tables_.profit(season, levels, crops));
  return profits;
}

/// The factors of the seasons with which the best candidate comes closest to the least regret: those where
/// the losses of the candidate that the weighted profits prefer are level. They are approached in steps; any
/// factors of 0 or more with a sum of 1 give a bound that holds, good ones only make it tight. So no answer
/// depends on exp(), the only function here of which C libraries may differ in the last bit.
std::vector<double> PlanSearch::levelFactors(const std::vector<double>& bestProfits) {
  constexpr int mostSteps = 40;
  const std::size_t seasons = tables_.seasons();
  std::vector<double> factors(seasons, 1 / static_cast<double>(seasons));
  std::vector<double> bestFactors = factors;
  double bestBound = -std::numeric_limits<double>::infinity();
  for (int step = 1; step <= mostSteps; ++step) {
    PlanValue value;
    value.of = [&](const std::vector<double>& profits) {
      double sum = 0;
      for (std::size_t season = 0; season < seasons; ++season)
        sum += factors[season] * profits[season];
      return sum;
    };
    double magnitude = 0;
    for (std::size_t season = 0; season < seasons; ++season)
      magnitude = std::max(magnitude, tables_.magnitude(season));
    value.bounds.push_back({tables_.gains(factors), slack(magnitude)});
    const auto found = walk(value, KeptPlans(1, false));
    if (!found || found->empty()) break;
    const std::vector<double> profits = profitsOf(found->front());
    double bound = 0;
    double largest = 0;
    for (std::size_t season = 0; season < seasons; ++season) {
      bound += factors[season] * (bestProfits[season] - profits[season]);
      largest = std::max(largest, bestProfits[season] - profits[season]);
    }
    if (bound > bestBound) {
      bestBound = bound;
      bestFactors = factors;
    }
    if (!(largest > bound) || !(largest > 0)) break;
    // Seasons with a loss above the mean count more the next time.
    double all = 0;
    for (std::size_t season = 0; season < seasons; ++season) {
      const double loss = bestProfits[season] - profits[season];
      factors[season] *= std::exp((loss - bound) / largest / std::sqrt(static_cast<double>(step)));
      all += factors[season];
    }
    for (double& factor : factors)
      factor /= all;
  }
  return bestFactors;
}

std::optional<std::vector<KeptCandidate>> PlanSearch::safest(const std::vector<double>& bestProfits) {
  PlanValue value;
  value.isFirstPreferred = true;
  value.of = [&](const std::vector<double>& profits) { return -regret(profits, bestProfits); };
  double magnitude = 0;
  for (std::size_t season = 0; season < tables_.seasons(); ++season)
    magnitude = std::max(magnitude, tables_.magnitude(season) + std::fabs(bestProfits[season]));
  const auto addBound = [&](const std::vector<double>& factors) {
    double offset = slack(magnitude);
    for (std::size_t season = 0; season < factors.size(); ++season)
      offset -= factors[season] * bestProfits[season];
    value.bounds.push_back({tables_.gains(factors), offset});
  };
  addBound(levelFactors(bestProfits));
  for (std::size_t season = 0; season < tables_.seasons(); ++season) {
    std::vector<double> factors(tables_.seasons(), 0);
    factors[season] = 1;
    addBound(factors);
  }
  return walk(value, KeptPlans(1, false));
}

}  // namespace verdalis
