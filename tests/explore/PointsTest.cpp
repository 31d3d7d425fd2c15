#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "explore/inputMap.h"
#include "explore/inputs.h"
#include "explore/water.h"
#include "tests/explore/SmallFarm.h"
#include "tests/explore/Steps.h"
#include "text/RunTimeError.h"

// Questions that solve many points. Each point must be the best plan of a farm with that input, for any
// number of threads.

namespace verdalis {
namespace {

using testing::smallFarm;
using testing::Steps;
using testing::twoCropFarm;
using Kind = FarmInput::Kind;

constexpr unsigned manyJobs = 5;

std::string numberOf(std::size_t point) {
  return "point " + std::to_string(point);
}

std::string describe(const Plan& plan) {
  std::string text = std::to_string(plan.profit);
  for (const PlannedField& field : plan.fields)
    text += " " + field.crop + std::to_string(field.acres) + "/" + std::to_string(field.netDepth);
  return text;
}

void expectSame(const Plan& a, const Plan& b) {
  EXPECT_EQ(a.profit, b.profit);
  EXPECT_EQ(describe(a), describe(b));
}

Plan planAt(const Farm& farm, const FarmInput& input, double value) {
  ProgramState state;
  RunHooks hooks;
  return bestPlan(withInput(farm, input, value), state, hooks).value();
}

TEST(EvenValues, AreCalculatedFromTheirNumber) {
  const std::vector<double> values = evenValues(0.1, 0.7, 8);
  ASSERT_EQ(values.size(), 8U);
  for (std::size_t i = 0; i + 1 < 8; ++i)
    EXPECT_EQ(values[i], 0.1 + (0.7 - 0.1) * static_cast<double>(i) / 7);
  for (std::size_t count = 2; count < 200; ++count)
    EXPECT_EQ(evenValues(0.1, 0.7, count).back(), 0.7);
}

TEST(BestPlans, DoNotDependOnTheNumberOfThreads) {
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    const Farm farm = smallFarm(seed);
    if (farm.crops.Count() == 0) continue;
    const std::vector<double> amounts = evenValues(1, 25, 13);
    const FarmOfPoint farmOf = [&](const Farm& base, std::size_t point) {
      return withInput(base, {Kind::water, {}}, amounts[point]);
    };
    const auto plansWith = [&](unsigned jobs) {
      ProgramState state;
      Steps hooks(state);
      auto plans = bestPlans(farm, amounts.size(), farmOf, numberOf, state, hooks, jobs);
      EXPECT_EQ(hooks.done, 13);
      return plans;
    };
    try {
      const auto alone = plansWith(1);
      const auto together = plansWith(manyJobs);
      for (std::size_t i = 0; i < amounts.size(); ++i) {
        expectSame((*alone)[i], (*together)[i]);
        expectSame((*alone)[i], planAt(farm, {Kind::water, {}}, amounts[i]));
      }
    } catch (const std::exception& error) {  // a farm that cannot be evaluated or has no candidate
      EXPECT_ANY_THROW(static_cast<void>(plansWith(manyJobs))) << error.what();
    }
  }
}

TEST(BestPlans, TheFirstFailedPointIsReported) {
  const Farm farm = twoCropFarm();
  for (unsigned jobs = 1; jobs <= manyJobs; ++jobs) {
    ProgramState state;
    RunHooks hooks;
    const FarmOfPoint farmOf = [&](const Farm& base, std::size_t point) {
      return withInput(base, {Kind::rain, {}}, point < 30 ? 16 : static_cast<double>(point));
    };
    try {
      static_cast<void>(bestPlans(farm, 60, farmOf, numberOf, state, hooks, jobs));
      ADD_FAILURE() << "30 inches of rain are outside the yield tables";
    } catch (const RunTimeError& error) {
      EXPECT_NE(std::string(error.what()).find("rainfall 30 "), std::string::npos) << error.what();
    }
  }
}

TEST(BestPlans, ACancelEndsTheSearch) {
  const Farm farm = twoCropFarm();
  const FarmOfPoint farmOf = [](const Farm& base, std::size_t /*point*/) { return base.Copy(); };
  for (const unsigned jobs : {1U, manyJobs}) {
    ProgramState state;
    Steps hooks(state, 3);
    EXPECT_FALSE(bestPlans(farm, 100000, farmOf, numberOf, state, hooks, jobs));
    EXPECT_LT(hooks.done, 100000);
  }
}

TEST(BestPlans, AnExceptionInTheHooksEndsTheSearch) {
  class Failing : public RunHooks {
    void pumpEvents() override { throw std::runtime_error("no events"); }
  };
  const Farm farm = twoCropFarm();
  ProgramState state;
  Failing hooks;
  const FarmOfPoint farmOf = [](const Farm& base, std::size_t /*point*/) { return base.Copy(); };
  EXPECT_THROW(static_cast<void>(bestPlans(farm, 100000, farmOf, numberOf, state, hooks, 2)),
               std::runtime_error);
}

TEST(ExploreWater, DefaultAmountsDoNotRoundToZero) {
  Farm farm = twoCropFarm();
  EXPECT_EQ(usualAmounts(farm).size(), 20);
  EXPECT_EQ(usualAmounts(farm).front(), 1.2);
  EXPECT_EQ(usualAmounts(farm).back(), 24);
  farm.acres = 0.3;
  farm.takeWater(4);
  // 0.12 to 2.4 acre-inches in steps of 0.12: only those of at least half an acre-inch remain.
  EXPECT_EQ(usualAmounts(farm).size(), 16);
  for (const double gross : usualAmounts(farm))
    EXPECT_TRUE(isWater(farm, gross));
  EXPECT_FALSE(isWater(farm, 0));
}

TEST(ExploreWater, MostIsTheFirstOfEqualHighestPoints) {
  ProgramState state;
  Steps hooks(state);
  // The same amount is used twice, so two points have the highest profit.
  const auto result = exploreWater(twoCropFarm(), {2, 12, 12, 3}, state, hooks);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->most, 1);
  EXPECT_EQ(hooks.announced, hooks.done);
}

TEST(ExploreWater, NextAndLastInchAreDifferencesOfBestProfitsPerAcre) {
  for (const double gross : {12.0, 2.25, 1.0, 0.75, 0.25}) {
    SCOPED_TRACE(gross);
    Farm farm = twoCropFarm();
    farm.takeWater(gross);
    ProgramState state;
    RunHooks hooks;
    const auto result = exploreWater(farm, {3, 5}, state, hooks);
    ASSERT_TRUE(result);
    const auto bestWith = [&](double inches) { return planAt(farm, {Kind::water, {}}, inches).profit; };
    EXPECT_EQ(result->now.gross, gross);
    EXPECT_EQ(result->now.best.profit, bestWith(gross));
    EXPECT_EQ(result->nextInch, (bestWith(gross + 1) - bestWith(gross)) / farm.acres);
    ASSERT_EQ(result->lastInch.has_value(), gross > 1) << "the rest must be water";
    if (gross > 1) {
      EXPECT_EQ(*result->lastInch, (bestWith(gross) - bestWith(gross - 1)) / farm.acres);
    }
    ASSERT_EQ(result->points.size(), 2U);
    EXPECT_EQ(result->points[0].best.profit, bestWith(3));
    EXPECT_EQ(result->points[1].best.profit, bestWith(5));
  }
}

TEST(ExploreWater, AFarmWithoutPlansLacksNoWish) {
  Farm farm = twoCropFarm();
  farm.crops = CropScenario();
  ProgramState state;
  RunHooks hooks;
  try {
    static_cast<void>(exploreWater(farm, {3, 5}, state, hooks));
    ADD_FAILURE() << "there is no crop";
  } catch (const NoPlan& noPlan) {
    EXPECT_FALSE(noPlan.hasWishes());
    EXPECT_EQ(noPlan.where(), "water 12");
  }
}

TEST(ExploreWater, LastInchIsEmptyIfAWishRequiresIt) {
  Farm farm = twoCropFarm();
  Wish wish;
  wish.kind = Wish::Kind::depthAtLeast;
  wish.field = 1;
  wish.amount = 47.5;  // of the 48 inches that all the water is on a quarter of the farm
  farm.wishes = {wish};
  ProgramState state;
  RunHooks hooks;
  const auto result = exploreWater(farm, {12, 13}, state, hooks);
  ASSERT_TRUE(result);
  EXPECT_FALSE(result->lastInch);
  try {
    static_cast<void>(exploreWater(farm, {13, 11.5, 10}, state, hooks));
    ADD_FAILURE() << "11.5 inches are not enough";
  } catch (const NoPlan& noPlan) {
    EXPECT_EQ(noPlan.where(), "water 11.5");
    EXPECT_EQ(noPlan.relaxations().size(), 1);
  }
}

TEST(ExploreInputs, EachCropNameHasItsInputsOnce) {
  Farm farm = twoCropFarm();
  farm.crops.Add(std::make_shared<Crop>(testing::fallowCrop()));
  farm.crops.Add(std::make_shared<Crop>(testing::cornCrop()));
  const std::vector<FarmInput> expected{
      {Kind::water, {}},     {Kind::rain, {}},         {Kind::efficiency, {}}, {Kind::fuel, {}},
      {Kind::price, "Corn"}, {Kind::maxYield, "Corn"}, {Kind::price, "Wheat"}, {Kind::maxYield, "Wheat"}};
  EXPECT_EQ(inputsOf(farm), expected);
}

TEST(ExploreInputs, EachChangedValueGivesTheBestPlanOfThatFarm) {
  for (std::uint64_t seed = 40; seed < 60; ++seed) {
    const Farm farm = smallFarm(seed);
    ProgramState state;
    Steps hooks(state);
    std::optional<InputsResult> result;
    const auto bounds = [](const FarmInput& input) {
      return input.kind == Kind::efficiency ? InputBounds{0, 90} : InputBounds{};
    };
    try {
      result = exploreInputs(farm, 7.5, bounds, state, hooks, manyJobs);
    } catch (const std::exception&) {
      continue;
    }
    ASSERT_TRUE(result);
    EXPECT_EQ(hooks.done, hooks.announced);
    for (const InputEffect& effect : result->inputs) {
      EXPECT_EQ(effect.profitLow, planAt(farm, effect.input, effect.low).profit);
      EXPECT_EQ(effect.profitHigh, planAt(farm, effect.input, effect.high).profit);
      const auto mixAt = [&](double value) { return mixOf(planAt(farm, effect.input, value)); };
      EXPECT_EQ(effect.changesPlan,
                mixAt(effect.low) != mixOf(result->now) || mixAt(effect.high) != mixOf(result->now));
      EXPECT_EQ(effect.now, valueOf(farm, effect.input));
      if (effect.input.kind != Kind::rain) {
        EXPECT_NEAR(effect.low, effect.now * 0.925, 1e-9 * effect.now);
      }
      if (effect.input.kind != Kind::rain && effect.input.kind != Kind::efficiency) {
        EXPECT_NEAR(effect.high, effect.now * 1.075, 1e-9 * effect.now);
      }
      EXPECT_LE(effect.low, effect.high);
      EXPECT_TRUE(effect.input.kind != Kind::efficiency || effect.high <= 90);
      EXPECT_TRUE(effect.input.kind != Kind::rain || effect.low >= 11);
    }
  }
}

TEST(ExploreInputs, AreSortedByTheLargerChange) {
  ProgramState state;
  RunHooks hooks;
  // The last inputs only gain or only lose.
  const auto bounds = [](const FarmInput& input) {
    if (input == FarmInput{Kind::price, "Corn"}) return InputBounds{6.52, {}};
    if (input == FarmInput{Kind::price, "Wheat"}) return InputBounds{{}, 6.2};
    if (input.kind == Kind::water) return InputBounds{{}, 12};
    return InputBounds{};
  };
  const auto result = exploreInputs(twoCropFarm(), 30, bounds, state, hooks);
  ASSERT_TRUE(result);
  std::vector<double> changes;
  for (const InputEffect& effect : result->inputs) {
    changes.push_back(std::max(std::fabs(effect.profitLow - result->now.profit),
                               std::fabs(effect.profitHigh - result->now.profit)));
    if (effect.input == FarmInput{Kind::price, "Corn"}) {
      EXPECT_EQ(effect.low, 6.52);
    }
    if (effect.input.kind == Kind::water) {
      EXPECT_EQ(effect.high, 12);
    }
    if (effect.input.kind == Kind::rain) {
      EXPECT_EQ(effect.high, 16 * 1.3);
    }
  }
  EXPECT_TRUE(std::is_sorted(changes.rbegin(), changes.rend()));
}

TEST(ExploreInputs, RainIsHeldWithinTheYieldTables) {
  Farm farm = twoCropFarm();
  for (const double rain : {12.0, 20.0}) {
    farm.takeRain(rain);
    ProgramState state;
    RunHooks hooks;
    const auto result = exploreInputs(
        farm, 30, [](const FarmInput&) { return InputBounds(); }, state, hooks);
    ASSERT_TRUE(result);
    for (const InputEffect& effect : result->inputs) {
      if (effect.input.kind != Kind::rain) continue;
      EXPECT_EQ(effect.low, std::max(11.0, rain - rain * 30 / 100));
      EXPECT_EQ(effect.high, std::min(21.0, rain + rain * 30 / 100));
    }
  }
}

TEST(ExploreInputs, EqualChangesKeepTheOrderOfTheInputs) {
  // Crops with only a fixed income: water, rain and yields have no effect.
  Farm farm = twoCropFarm();
  farm.crops = CropScenario();
  farm.crops.Add(std::make_shared<Crop>(testing::namedCrop("Rest")));
  farm.crops.Item(1)->setYieldTable(testing::tableOf(11, {std::vector<double>(11, 0)}));
  farm.plant.active = false;
  ProgramState state;
  RunHooks hooks;
  const auto result = exploreInputs(
      farm, 10, [](const FarmInput&) { return InputBounds(); }, state, hooks);
  ASSERT_TRUE(result);
  std::vector<FarmInput> told;
  for (const InputEffect& effect : result->inputs) {
    told.push_back(effect.input);
    EXPECT_FALSE(effect.changesPlan);
  }
  EXPECT_EQ(told, inputsOf(farm));
}

TEST(ExploreMap, EachPointIsTheBestPlanAndEachMixIsListedOnce) {
  const Farm farm = twoCropFarm();
  const MapAxis x{{Kind::price, "Corn"}, evenValues(0, 9, 4)};
  const MapAxis y{{Kind::rain, {}}, evenValues(12, 20, 3)};
  ProgramState state;
  Steps hooks(state);
  const auto map = exploreMap(farm, x, y, state, hooks, manyJobs);
  ASSERT_TRUE(map);
  EXPECT_EQ(hooks.done, 12);
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      const Plan plan = planAt(withInput(farm, y.input, y.values[row]), x.input, x.values[column]);
      EXPECT_EQ(map->profit[map->at(row, column)], plan.profit);
      EXPECT_EQ(map->mixes[map->mix[map->at(row, column)]], mixOf(plan));
    }
  }
  std::size_t newest = 0;
  for (const std::size_t mix : map->mix) {
    EXPECT_LE(mix, newest);
    if (mix == newest) ++newest;
  }
  EXPECT_EQ(newest, map->mixes.size());
  EXPECT_GE(newest, 2U);
  for (std::size_t i = 0; i < map->mixes.size(); ++i)
    EXPECT_EQ(std::count(map->mixes.begin(), map->mixes.end(), map->mixes[i]), 1);
}

TEST(ExploreMap, APointWithoutAPlanIsNamedByBothInputs) {
  Farm farm = twoCropFarm();
  farm.wishes = {{Wish::Kind::depthAtLeast, "", 1, 30}};
  const MapAxis x{{Kind::price, "Corn"}, {4, 5, 6}};
  const MapAxis y{{Kind::water, {}}, {12, 7}};  // 28 inches at most on a quarter of the farm
  ProgramState state;
  RunHooks hooks;
  try {
    static_cast<void>(exploreMap(farm, x, y, state, hooks));
    ADD_FAILURE() << "7 inches are not enough";
  } catch (const NoPlan& noPlan) {
    EXPECT_TRUE(noPlan.hasWishes());
    EXPECT_EQ(noPlan.where(), "price Corn 4, water 7");
  }
}

TEST(ExploreMap, YieldAndRainCanBeEitherAxis) {
  const Farm farm = twoCropFarm();
  const MapAxis yield{{Kind::maxYield, "Corn"}, {150, 250}};
  const MapAxis rain{{Kind::rain, {}}, {12, 20}};
  ProgramState state;
  RunHooks hooks;
  const auto one = exploreMap(farm, yield, rain, state, hooks);
  const auto other = exploreMap(farm, rain, yield, state, hooks);
  for (std::size_t i = 0; i < 2; ++i) {
    for (std::size_t j = 0; j < 2; ++j)
      EXPECT_EQ(one->profit[one->at(i, j)], other->profit[other->at(j, i)]);
  }
}

TEST(Mix, DoesNotDependOnTheOrderOfTheFields) {
  const Plan a{1, {{40, "Wheat", 0, 0, 0}, {40, "Corn", 5, 6, 7}, {80, "Corn", 0, 0, 0}}};
  const Plan b{2, {{80, "Corn", 1, 2, 3}, {40, "Wheat", 0, 0, 0}, {40, "Corn", 0, 0, 0}}};
  EXPECT_EQ(mixOf(a), mixOf(b));
  EXPECT_EQ(mixOf(a), (Mix{{80, "Corn"}, {40, "Corn"}, {40, "Wheat"}}));
}

}  // namespace
}  // namespace verdalis
