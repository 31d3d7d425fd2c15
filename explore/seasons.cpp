#include "explore/seasons.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "engine/CandidateBuilder.h"
#include "engine/PlanSearch.h"
#include "engine/meetsWishes.h"
#include "model/PricedField.h"
#include "model/checked.h"
#include "model/shownAlike.h"

namespace verdalis {
namespace {

constexpr double rainStep = 3;    ///< Inches between the default seasons
constexpr double leastRain = 11;  ///< Inches; lowest rain of the yield tables
constexpr double mostRain = 21;   ///< Inches; highest rain of the yield tables

/// Steps of the progress after the best plans of the seasons: pricing, the ranking, the safest plan.
constexpr std::size_t searchSteps = 3;

/// A plan with the data for comparing it.
struct RankedPlan {
  SeasonPlan plan;
  std::vector<std::size_t> crops;  ///< Position of each field's crop
};

/// The farm in each season. The scenarios are not moved because the search refers to them.
class SeasonFarms {
 public:
  SeasonFarms(const Farm& farm, const std::vector<Season>& seasons) {
    for (const Season& season : seasons) {
      Farm changed = farm.Copy();
      changed.takeRain(season.rain);
      scenarios_.push_back(std::make_unique<Scenario>(scenarioOf(changed)));
      farms_.push_back(std::move(changed));
    }
  }

  [[nodiscard]] std::size_t count() const { return farms_.size(); }
  [[nodiscard]] const Farm& farm(std::size_t season) const { return farms_[season]; }
  [[nodiscard]] const Scenario& scenario(std::size_t season) const { return *scenarios_[season]; }

  [[nodiscard]] const Crop& crop(std::size_t season, std::size_t position) const {
    return *scenario(season).combinations.crops()[position];
  }

  /// Units per acre.
  [[nodiscard]] double yieldOf(std::size_t season, std::size_t position, double netDepth) const {
    return crop(season, position).yieldAt(netDepth, scenario(season).rain);
  }

 private:
  std::vector<Farm> farms_;
  std::vector<std::unique_ptr<Scenario>> scenarios_;
};

/// Finds and ranks the plans of one question.
class SeasonSearch {
 public:
  SeasonSearch(const SeasonFarms& farms, const std::vector<Season>& seasons, RunPulse& pulse)
      : farms_(farms), question_(makeQuestion(farms, seasons)), search_(question_, pulse) {}

  /// Runs the search, in `searchSteps` steps.
  /// \returns false after a cancel.
  [[nodiscard]] bool run(const std::vector<double>& bestProfits, SeasonsResult& result, RunHooks& hooks) {
    if (!search_.price()) return false;
    hooks.update();
    const auto kept = search_.best();
    if (!kept) return false;
    hooks.update();
    const auto safest = search_.safest(bestProfits);
    if (!safest) return false;
    hooks.update();
    std::vector<RankedPlan> ranking;
    for (const KeptCandidate& candidate : *kept)
      ranking.push_back(planOf(candidate, bestProfits));
    std::optional<SeasonPlan> least;
    if (!safest->empty()) least = planOf(safest->front(), bestProfits).plan;
    if (farms_.scenario(0).noSplit) {
      for (std::size_t position = 0; position < farms_.scenario(0).combinations.crops().size(); ++position)
        submitUndivided(position, bestProfits, ranking, least);
    }
    if (ranking.size() > question_.places) ranking.resize(question_.places);
    takeOptions(ranking, result);
    result.safest = std::move(*least);
    return true;
  }

 private:
  static PlanQuestion makeQuestion(const SeasonFarms& farms, const std::vector<Season>& seasons) {
    PlanQuestion question;
    for (std::size_t season = 0; season < seasons.size(); ++season) {
      question.seasons.push_back(farms.scenario(season).searchInputs());
      question.weights.push_back(seasons[season].weight);
    }
    question.wishes = farms.scenario(0).wishes;
    question.places = static_cast<std::size_t>(std::max<std::int16_t>(farms.scenario(0).size, 0));
    return question;
  }

  void rate(SeasonPlan& plan, const std::vector<double>& bestProfits) const {
    plan.average = search_.average(plan.profits);
    plan.worst = *std::min_element(plan.profits.begin(), plan.profits.end());
    plan.regret = PlanSearch::regret(plan.profits, bestProfits);
  }

  void plant(RankedPlan& ranked, double acres, std::size_t position, double depth) const {
    const Crop& crop = farms_.crop(0, position);
    const double netDepth = netDepthOf(crop, depth);
    ranked.plan.fields.push_back(
        {acres, crop.cropType, netDepth, grossFromNet(netDepth, farms_.scenario(0).efficiency), 0});
    ranked.crops.push_back(position);
  }

  [[nodiscard]] RankedPlan planOf(const KeptCandidate& candidate,
                                  const std::vector<double>& bestProfits) const {
    const Scenario& scenario = farms_.scenario(0);
    std::vector<std::size_t> crops;
    scenario.combinations.positions(scenario.combinations.Count() - 1 - candidate.digits, crops);
    const Split depths = scenario.depths.Item(static_cast<long>(candidate.split) + 1);
    RankedPlan ranked;
    for (std::size_t field = 0; field < crops.size(); ++field)
      plant(ranked, scenario.landSplit.getSplits()[field], crops[field], depths.getSplits()[field]);
    ranked.plan.profits = search_.profitsOf(candidate);
    rate(ranked.plan, bestProfits);
    return ranked;
  }

  /// Adds a crop on the undivided farm. It is submitted last, so it ranks above plans of equal average, but
  /// is not the safest among plans of equal regret.
  void submitUndivided(std::size_t position, const std::vector<double>& bestProfits,
                       std::vector<RankedPlan>& ranking, std::optional<SeasonPlan>& least) const {
    RankedPlan ranked;
    const Scenario& first = farms_.scenario(0);
    plant(ranked, first.acres, position, first.netVolume / first.acres);
    const PlannedField& field = ranked.plan.fields.front();
    if (!meetsWishes(first.wishes, {{field.acres, &field.crop, field.grossDepth}})) return;
    for (std::size_t season = 0; season < farms_.count(); ++season) {
      const Scenario& scenario = farms_.scenario(season);
      ranked.plan.profits.push_back(priceField({field.acres, field.netDepth, scenario.rain},
                                               farms_.crop(season, position), scenario.plant,
                                               scenario.efficiency)
                                        .profit());
    }
    rate(ranked.plan, bestProfits);
    if (!least || ranked.plan.regret < least->regret) least = ranked.plan;
    const auto place = std::find_if(ranking.begin(), ranking.end(), [&](const RankedPlan& other) {
      return other.plan.average <= ranked.plan.average;
    });
    ranking.insert(place, std::move(ranked));
  }

  [[nodiscard]] bool looksLike(const RankedPlan& a, std::size_t i, const RankedPlan& b, std::size_t j) const {
    const PlannedField& f = a.plan.fields[i];
    const PlannedField& g = b.plan.fields[j];
    if (f.crop != g.crop || f.acres != g.acres || !sameShownDepth(f.netDepth, g.netDepth)) return false;
    for (std::size_t season = 0; season < farms_.count(); ++season) {
      if (!sameShownYield(farms_.yieldOf(season, a.crops[i], f.netDepth),
                          farms_.yieldOf(season, b.crops[j], g.netDepth))) {
        return false;
      }
    }
    return true;
  }

  /// Whether two neighbours in the ranking are duplicates, by the rule of BestMix::sameScenario(): if the
  /// first field of the lower plan has a match, the other fields are not compared.
  [[nodiscard]] bool areDuplicates(const RankedPlan& lower, const RankedPlan& above) const {
    if (lower.plan.average != above.plan.average) return false;
    if (lower.plan.fields.size() != above.plan.fields.size()) return true;
    for (std::size_t j = 0; j < above.plan.fields.size(); ++j) {
      if (looksLike(lower, 0, above, j)) return true;
    }
    return false;
  }

  void takeOptions(const std::vector<RankedPlan>& ranking, SeasonsResult& result) const {
    for (std::size_t i = 0; i < ranking.size(); ++i) {
      if (i == 0 || !areDuplicates(ranking[i], ranking[i - 1])) result.options.push_back(ranking[i].plan);
    }
  }

  const SeasonFarms& farms_;
  PlanQuestion question_;
  PlanSearch search_;
};

}  // namespace

std::vector<Season> usualSeasons(double rain) {
  const auto held = [](double inches) { return std::clamp(inches, leastRain, mostRain); };
  return {{"dry", held(rain - rainStep), 1}, {"normal", held(rain), 2}, {"wet", held(rain + rainStep), 1}};
}

std::optional<SeasonsResult> exploreSeasons(const Farm& farm, const std::vector<Season>& seasons,
                                            ProgramState& state, RunHooks& hooks) {
  const SeasonFarms farms(farm, seasons);
  SeasonsResult result;
  hooks.showProgress("Exploring Seasons");
  hooks.setProgress(static_cast<double>(seasons.size() + searchSteps), "");
  std::vector<double> bestProfits;
  for (std::size_t season = 0; season < seasons.size(); ++season) {
    std::optional<Plan> best = bestPlan(farms.farm(season), state, hooks);
    if (!best) return std::nullopt;
    bestProfits.push_back(best->profit);
    result.seasons.push_back({seasons[season], std::move(*best)});
    hooks.update();
  }
  RunPulse pulse(state, hooks);
  SeasonSearch search(farms, seasons, pulse);
  if (!search.run(bestProfits, result, hooks) || state.CancelRequested) return std::nullopt;
  hooks.closeProgress();
  return result;
}

}  // namespace verdalis
