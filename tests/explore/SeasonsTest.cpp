#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "engine/evaluateScenario.h"
#include "explore/seasons.h"
#include "selfcheck/PlainEvaluator.h"
#include "tests/explore/SmallFarm.h"
#include "tests/explore/Steps.h"

namespace verdalis {
namespace {

using testing::smallFarm;
using testing::twoCropFarm;

/// A candidate over several seasons, calculated separately.
struct PlainSeasonPlan {
  std::vector<double> profits;
  double average = 0;
  std::vector<PlannedField> fields;
  std::vector<std::vector<double>> yields;  ///< By season and field
};

double profitAndYields(FieldCollection& candidate, double efficiency, std::vector<double>& yields) {
  yields.clear();
  for (const auto& field : candidate)
    yields.push_back(field->theCrop->Yield);
  return candidate.getProfit(efficiency);
}

/// All plans that meet the wishes, in the order of submission, priced season by season.
std::vector<PlainSeasonPlan> allPlans(const Farm& farm, const std::vector<Season>& seasons) {
  std::vector<PlainSeasonPlan> plans;
  for (std::size_t season = 0; season < seasons.size(); ++season) {
    Farm changed = farm.Copy();
    changed.takeRain(seasons[season].rain);
    const Scenario scenario = scenarioOf(changed);
    std::size_t place = 0;
    reference::forEachCandidate(scenario, [&](FieldCollection& candidate) {
      if (season == 0) {
        plans.emplace_back();
        for (const auto& field : candidate) {
          plans.back().fields.push_back(
              {field->acres, field->theCrop->cropType, field->Depth, field->Depth / scenario.efficiency, 0});
        }
      }
      PlainSeasonPlan& plan = plans.at(place++);
      plan.profits.push_back(profitAndYields(candidate, scenario.efficiency, plan.yields.emplace_back()));
    });
  }
  for (PlainSeasonPlan& plan : plans) {
    double sum = 0;
    double weights = 0;
    for (std::size_t season = 0; season < seasons.size(); ++season) {
      sum += seasons[season].weight * plan.profits[season];
      weights += seasons[season].weight;
    }
    plan.average = sum / weights;
  }
  return plans;
}

std::string textOf(const std::vector<PlannedField>& fields) {
  std::string text;
  for (const PlannedField& field : fields)
    text += field.crop + " " + std::to_string(field.acres) + " " + std::to_string(field.netDepth) + "; ";
  return text;
}

/// The rule of the ranking: neighbours of equal value are duplicates if the first field has a match that
/// looks the same.
bool areDuplicates(const PlainSeasonPlan& lower, const PlainSeasonPlan& above) {
  if (lower.average != above.average) return false;
  if (lower.fields.size() != above.fields.size()) return true;
  const auto shown = [](double value, double step) { return std::round(value * step); };
  for (std::size_t j = 0; j < above.fields.size(); ++j) {
    bool same = lower.fields[0].crop == above.fields[j].crop &&
                lower.fields[0].acres == above.fields[j].acres &&
                shown(lower.fields[0].netDepth, 100) == shown(above.fields[j].netDepth, 100);
    for (std::size_t season = 0; season < lower.yields.size(); ++season)
      same = same && shown(lower.yields[season][0], 1) == shown(above.yields[season][j], 1);
    if (same) return true;
  }
  return false;
}

TEST(ExploreSeasons, RanksByAverageAndFindsTheSafestLikeAFullEnumeration) {
  std::mt19937_64 random(11);
  for (std::uint64_t seed = 0; seed < 600; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed));
    Farm farm = smallFarm(seed);
    farm.size = static_cast<std::int16_t>(1 + random() % 20);
    if (random() % 3 == 0) {
      const std::string& crop = farm.crops.Item(1)->cropType;
      farm.wishes.push_back({static_cast<Wish::Kind>(random() % 2), crop, 0, farm.acres / 2});
    }
    std::vector<Season> seasons{{"dry", 11, 1}, {"normal", 12, 2}, {"wet", 13, 1}};
    if (random() % 2 == 0) seasons = {{"a", 11, 1.5}, {"b", 13, 0.3}};
    std::vector<PlainSeasonPlan> plans = allPlans(farm, seasons);
    ProgramState state;
    RunHooks hooks;
    std::optional<SeasonsResult> result;
    try {
      result = exploreSeasons(farm, seasons, state, hooks);
    } catch (const NoPlan&) {
      EXPECT_TRUE(plans.empty());
      continue;
    }
    ASSERT_TRUE(result);
    ASSERT_FALSE(plans.empty());

    std::vector<double> best(seasons.size(), -std::numeric_limits<double>::infinity());
    for (const PlainSeasonPlan& plan : plans) {
      for (std::size_t season = 0; season < seasons.size(); ++season)
        best[season] = std::max(best[season], plan.profits[season]);
    }
    for (std::size_t season = 0; season < seasons.size(); ++season)
      EXPECT_EQ(result->seasons[season].best.profit, best[season]);

    const auto regretOf = [&](const PlainSeasonPlan& plan) {
      double regret = -std::numeric_limits<double>::infinity();
      for (std::size_t season = 0; season < seasons.size(); ++season)
        regret = std::max(regret, best[season] - plan.profits[season]);
      return regret;
    };
    const auto safest = std::min_element(
        plans.begin(), plans.end(), [&](const auto& a, const auto& b) { return regretOf(a) < regretOf(b); });
    EXPECT_EQ(result->safest.regret, regretOf(*safest));
    EXPECT_EQ(textOf(result->safest.fields), textOf(safest->fields));
    EXPECT_EQ(result->safest.profits, safest->profits);

    std::reverse(plans.begin(), plans.end());
    std::stable_sort(plans.begin(), plans.end(),
                     [](const auto& a, const auto& b) { return a.average > b.average; });
    if (plans.size() > static_cast<std::size_t>(farm.size)) plans.resize(static_cast<std::size_t>(farm.size));
    std::vector<PlainSeasonPlan> expected;
    for (std::size_t i = 0; i < plans.size(); ++i) {
      if (i == 0 || !areDuplicates(plans[i], plans[i - 1])) expected.push_back(plans[i]);
    }
    ASSERT_EQ(result->options.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(result->options[i].average, expected[i].average);
      EXPECT_EQ(result->options[i].profits, expected[i].profits);
      EXPECT_EQ(result->options[i].worst,
                *std::min_element(expected[i].profits.begin(), expected[i].profits.end()));
      EXPECT_EQ(textOf(result->options[i].fields), textOf(expected[i].fields));
    }
    if (HasFailure()) return;
  }
}

TEST(ExploreSeasons, EqualPlansAreDuplicatesIfTheyLookAlikeInEverySeason) {
  // Two rows that earn nothing on one field.
  const auto optionsOf = [](const std::string& secondName, double secondYieldInWetYears) {
    Farm farm;
    farm.acres = 100;
    farm.division = landDivision(5);
    farm.efficiency = 100;
    farm.plant.active = false;
    for (int row = 0; row < 2; ++row) {
      Crop crop = testing::namedCrop(row == 0 ? "Clover" : secondName);
      const std::vector<double> yields(11, 10);
      YieldTable table = testing::tableThrough({{0, yields}, {20, yields}});
      if (row == 1) table.setCell(12, 18, secondYieldInWetYears);
      crop.setYieldTable(table);
      crop.maxYield = 10;
      farm.crops.Add(std::make_shared<Crop>(crop));
    }
    farm.factor = 1;
    farm.size = 2;
    farm.takeWater(12);
    farm.takeRain(12);
    ProgramState state;
    RunHooks hooks;
    const auto result = exploreSeasons(farm, {{"dry", 12, 1}, {"wet", 18, 1}}, state, hooks);
    return result ? result->options.size() : 0;
  };
  EXPECT_EQ(optionsOf("Clover", 10), 1U);
  EXPECT_EQ(optionsOf("Clover", 4), 2U);
  EXPECT_EQ(optionsOf("Vetch", 10), 2U);
}

TEST(ExploreSeasons, IdenticalSeasonsGiveTheRankingOfAnEvaluation) {
  for (std::uint64_t seed = 0; seed < 100; ++seed) {
    const Farm farm = smallFarm(seed);
    const std::vector<Season> seasons{{"one", farm.rain, 1}, {"two", farm.rain, 1}};
    ProgramState state;
    RunHooks hooks;
    const auto result = exploreSeasons(farm, seasons, state, hooks);
    ASSERT_TRUE(result);
    const Scenario scenario = scenarioOf(farm);
    auto best = evaluateScenario(scenario, state, hooks);
    ASSERT_TRUE(best);
    std::vector<double> profits;
    for (const auto& option : best->returnCollection(true)) {
      if (!option->isNew) profits.push_back(option->getProfit(scenario.efficiency));
    }
    ASSERT_EQ(result->options.size(), profits.size());
    for (std::size_t i = 0; i < profits.size(); ++i)
      EXPECT_EQ(result->options[i].average, profits[i]);
    EXPECT_EQ(result->safest.regret, 0);
  }
}

TEST(ExploreSeasons, UsualSeasonsAreLimitedToTheYieldTables) {
  const auto rains = [](double rain) {
    std::vector<double> result;
    for (const Season& season : usualSeasons(rain))
      result.push_back(season.rain);
    return result;
  };
  EXPECT_EQ(rains(16), (std::vector<double>{13, 16, 19}));
  EXPECT_EQ(rains(12), (std::vector<double>{11, 12, 15}));
  EXPECT_EQ(rains(20.5), (std::vector<double>{17.5, 20.5, 21}));
  EXPECT_EQ(usualSeasons(16)[1].weight, 2);
  EXPECT_EQ(usualSeasons(16)[0].name, "dry");
}

TEST(ExploreSeasons, ProgressReachesItsEnd) {
  ProgramState state;
  testing::Steps hooks(state);
  ASSERT_TRUE(exploreSeasons(twoCropFarm(), usualSeasons(16), state, hooks));
  EXPECT_GT(hooks.announced, 3);
  EXPECT_EQ(hooks.done, hooks.announced);
}

TEST(ExploreSeasons, ACancelAtAnyStepGivesNoResult) {
  for (int step = 1; step <= 5; ++step) {
    ProgramState state;
    testing::Steps hooks(state, step);
    EXPECT_FALSE(exploreSeasons(twoCropFarm(), usualSeasons(16), state, hooks)) << step;
  }
}

TEST(ExploreSeasons, ACancelGivesNoResult) {
  class CancelAtOnce : public RunHooks {
   public:
    explicit CancelAtOnce(ProgramState& state) : state_(state) {}
    void pumpEvents() override { state_.CancelRequested = true; }

   private:
    ProgramState& state_;
  };
  ProgramState state;
  CancelAtOnce hooks(state);
  EXPECT_FALSE(exploreSeasons(twoCropFarm(), usualSeasons(16), state, hooks));
}

}  // namespace
}  // namespace verdalis
