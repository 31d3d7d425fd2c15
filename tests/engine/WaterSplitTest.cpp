#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "engine/MakingSplits.h"
#include "tests/engine/waterShares.h"
#include "tests/support/Errors.h"

// The water splits, their number and their order.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::vector<double>> waterSplits(std::int16_t n, std::int16_t factor, double netVolume = 100) {
  ProgramState state;
  state.FineFactor = factor;
  std::vector<std::vector<double>> result;
  for (const Split& split : makeWaterSplits(n, netVolume, 100, state))
    result.push_back(split.getSplits());
  return result;
}

/// All tuples of shares whose rounded sum is 100, in descending order by first share, second share and so on.
void addTuples(const std::vector<double>& levels, std::size_t n, double rounded, std::vector<double>& tuple,
               std::vector<std::vector<double>>& result) {
  if (tuple.size() == n) {
    if (rounded == 100) result.push_back(tuple);
    return;
  }
  for (auto level = levels.rbegin(); level != levels.rend(); ++level) {
    tuple.push_back(*level);
    addTuples(levels, n, rounded + std::nearbyint(*level), tuple, result);
    tuple.pop_back();
  }
}

std::vector<std::vector<double>> tuples(std::int16_t n, std::int16_t factor) {
  std::vector<double> tuple;
  std::vector<std::vector<double>> result;
  addTuples(shares(factor), static_cast<std::size_t>(n), 0, tuple, result);
  return result;
}

TEST(WaterSplits, HaveTheKnownCounts) {
  struct Row {
    std::int16_t factor;
    std::array<std::size_t, 4> counts;  ///< For one to four fields
  };
  const std::vector<Row> rows = {
      {1, {1, 2, 3, 4}},      {2, {1, 3, 6, 10}},       {3, {1, 4, 9, 16}},
      {5, {1, 6, 21, 56}},    {6, {0, 5, 21, 60}},      {7, {0, 6, 27, 84}},
      {10, {1, 11, 66, 286}}, {20, {1, 21, 231, 1771}}, {25, {1, 26, 351, 3276}},
  };
  for (const Row& row : rows) {
    for (std::int16_t n = 1; n <= 4; ++n) {
      EXPECT_EQ(waterSplits(n, row.factor).size(), row.counts.at(static_cast<std::size_t>(n) - 1))
          << "factor " << row.factor << ", fields " << n;
    }
  }
}

TEST(WaterSplits, AreInDescendingOrder) {
  const auto splits = waterSplits(3, 10);
  ASSERT_EQ(splits.size(), 66U);
  EXPECT_THAT(splits[0], ElementsAre(100, 0, 0));
  EXPECT_THAT(splits[1], ElementsAre(90, 10, 0));
  EXPECT_THAT(splits[2], ElementsAre(90, 0, 10));
  EXPECT_THAT(splits[3], ElementsAre(80, 20, 0));
  EXPECT_THAT(splits[4], ElementsAre(80, 10, 10));
  EXPECT_THAT(splits[5], ElementsAre(80, 0, 20));
  EXPECT_THAT(splits[65], ElementsAre(0, 0, 100));
  EXPECT_TRUE(std::is_sorted(splits.rbegin(), splits.rend()));
}

TEST(WaterSplits, OfTwoFieldsRunFromAllToNothing) {
  const auto splits = waterSplits(2, 10);
  ASSERT_EQ(splits.size(), 11U);
  for (std::size_t i = 0; i < splits.size(); ++i) {
    EXPECT_THAT(splits[i], ElementsAre(DoubleEq(100 - 10.0 * static_cast<double>(i)),
                                       DoubleEq(10.0 * static_cast<double>(i))));
  }
}

TEST(WaterSplits, OfFourFieldsStartAndEndWithAllWaterOnOneField) {
  const auto splits = waterSplits(4, 10);
  ASSERT_EQ(splits.size(), 286U);
  EXPECT_THAT(splits.front(), ElementsAre(100, 0, 0, 0));
  EXPECT_THAT(splits[1], ElementsAre(90, 10, 0, 0));
  EXPECT_THAT(splits[2], ElementsAre(90, 0, 10, 0));
  EXPECT_THAT(splits[3], ElementsAre(90, 0, 0, 10));
  EXPECT_THAT(splits.back(), ElementsAre(0, 0, 0, 100));
}

TEST(WaterSplits, OfOneFieldGiveItAllWater) {
  EXPECT_THAT(waterSplits(1, 10), ElementsAre(ElementsAre(100)));
}

TEST(WaterSplits, WithFactor1GiveAllWaterToOneField) {
  EXPECT_THAT(waterSplits(2, 1), ElementsAre(ElementsAre(100, 0), ElementsAre(0, 100)));
}

TEST(WaterSplits, WithFactor3OmitThreeThirdsBecauseTheyRoundTo99) {
  const double third = 100.0 / 3;
  const double twoThirds = third + third;
  EXPECT_THAT(waterSplits(2, 3),
              ElementsAre(ElementsAre(100, 0), ElementsAre(DoubleEq(twoThirds), DoubleEq(third)),
                          ElementsAre(DoubleEq(third), DoubleEq(twoThirds)), ElementsAre(0, 100)));
  for (const auto& split : waterSplits(3, 3)) {
    EXPECT_NE(split[0] > 30 && split[1] > 30 && split[2] > 30, true);  // three thirds round to 99
  }
}

TEST(WaterSplits, HaveNoFullShareIfTheStepsAddUpToMoreThan100) {
  for (const std::int16_t factor : std::vector<std::int16_t>{6, 7, 9, 11, 15}) {
    EXPECT_EQ(shares(factor).size(), static_cast<std::size_t>(factor))
        << factor;  // one less than the number of steps
    EXPECT_TRUE(waterSplits(1, factor).empty()) << factor;
    for (std::int16_t n = 2; n <= 4; ++n) {
      for (const auto& split : waterSplits(n, factor)) {
        for (const double share : split)
          EXPECT_LT(share, 95) << factor;
      }
    }
  }
}

TEST(WaterSplits, HaveAFullShareSlightlyBelow100IfTheStepsAddUpToIt) {
  for (const std::int16_t factor : std::vector<std::int16_t>{12, 14}) {
    const auto splits = waterSplits(1, factor);
    ASSERT_EQ(splits.size(), 1U) << factor;
    EXPECT_EQ(splits[0][0], (shares(factor).back() / 100) * 100);
    EXPECT_LT(shares(factor).back(), 100);
    EXPECT_NEAR(shares(factor).back(), 100, 1e-12);
  }
}

TEST(WaterSplits, WithFactor30StartWithAShareThatRoundsTo100) {
  EXPECT_EQ(shares(30).back(), 99.99999999999997);
  const auto splits = waterSplits(4, 30, 1020);
  EXPECT_THAT(splits.front(), ElementsAre((99.99999999999997 / 100) * 1020, 0, 0, 0));
}

TEST(WaterSplits, WithFactor6OmitSplitsThatRoundTo101) {
  // 16.67, 33.33, 50, 66.67 and 83.33 round to 17, 33, 50, 67 and 83.
  EXPECT_EQ(waterSplits(2, 6).size(), 5U);
  std::size_t overfull = 0;
  const auto levels = shares(6);
  for (const double a : levels) {
    for (const double b : levels) {
      for (const double c : levels) {
        const double exact = a + b + c;
        const double rounded = std::nearbyint(a) + std::nearbyint(b) + std::nearbyint(c);
        if (std::fabs(exact - 100) < 1e-9 && rounded == 101) ++overfull;
      }
    }
  }
  EXPECT_GT(overfull, 0U);
  for (const auto& split : waterSplits(3, 6)) {
    EXPECT_EQ(std::nearbyint(split[0]) + std::nearbyint(split[1]) + std::nearbyint(split[2]), 100);
  }
}

TEST(WaterSplits, AreAllTuplesOfSharesThatRoundTo100InDescendingOrder) {
  const auto expectTuples = [](std::int16_t n, std::int16_t factor) {
    auto expected = tuples(n, factor);
    for (auto& split : expected) {
      for (double& share : split)
        share = (share / 100) * 1037.3;
    }
    ASSERT_EQ(waterSplits(n, factor, 1037.3), expected) << "factor " << factor << ", fields " << n;
  };
  for (std::int16_t factor = 1; factor <= 99; ++factor) {
    expectTuples(1, factor);
    expectTuples(2, factor);
  }
  for (std::int16_t factor = 1; factor <= 30; ++factor)
    expectTuples(3, factor);
  expectTuples(3, 99);
  for (std::int16_t factor = 1; factor <= 15; ++factor)
    expectTuples(4, factor);
}

TEST(WaterSplits, DoNotDependOnTheAcres) {
  ProgramState state;
  for (const double acres : {0.0, 100.0, -5.0}) {
    EXPECT_EQ(makeWaterSplits(2, 1020, acres, state).Item(2).getSplits(), (std::vector<double>{918, 102}));
  }
}

TEST(WaterSplits, CountCompletedAndOverfullSplitsOfAllRuns) {
  ProgramState state;
  (void)makeWaterSplits(2, 1020, 100, state);
  // 10 splits are completed by their second share; after 9 of them the next share exceeds 100.
  EXPECT_EQ(state.splitCounter, 19);
  (void)makeWaterSplits(2, 1020, 100, state);
  EXPECT_EQ(state.splitCounter, 38);
  (void)makeWaterSplits(1, 1020, 100, state);  // one field: the full share completes the split immediately
  EXPECT_EQ(state.splitCounter, 38);
}

TEST(WaterSplits, RequireAnIterationFactorAbove0) {
  ProgramState state;
  state.FineFactor = 0;
  EXPECT_THAT(errorText(ErrorNumber::divisionByZero, [&] { (void)makeWaterSplits(2, 1020, 100, state); }),
              AllOf(HasSubstr("iteration factor is 0"), HasSubstr("Options")));
  state.FineFactor = -3;
  EXPECT_THAT(errorText(ErrorNumber::invalidCall, [&] { (void)makeWaterSplits(2, 1020, 100, state); }),
              HasSubstr("-3"));
}

}  // namespace
}  // namespace verdalis::testing
