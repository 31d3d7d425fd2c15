#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/BestMix.h"
#include "tests/support/Candidates.h"
#include "tests/support/Plant.h"

// Which neighbours in the ranking count as duplicates, the ranking without them, and its reports.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class Duplicates : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

bool same(const std::vector<Plot>& lower, const std::vector<Plot>& upper, bool compare = true) {
  FieldCollection a = candidateOf(lower);
  FieldCollection b = candidateOf(upper);
  return BestMix::sameScenario(a, b, compare);
}

TEST_F(Duplicates, HaveEqualProfitAndLookAlike) {
  EXPECT_TRUE(same({{"Corn", 10}}, {{"Corn", 10}}));
}

TEST_F(Duplicates, AreNotRemovedIfTheSwitchIsOff) {
  EXPECT_FALSE(same({{"Corn", 10}}, {{"Corn", 10}}, false));
}

TEST_F(Duplicates, MustHaveExactlyEqualProfits) {
  EXPECT_FALSE(same({{"Corn", 10}}, {{"Corn", std::nextafter(10.0, 11.0)}}));
}

TEST_F(Duplicates, MustHaveTheSameCropByExactName) {
  EXPECT_FALSE(same({{"Corn", 10}}, {{"Wheat", 10}}));
  EXPECT_FALSE(same({{"Corn", 10}}, {{"corn", 10}}));
}

TEST_F(Duplicates, MustHaveExactlyTheSameAcres) {
  EXPECT_FALSE(same({{"Corn", 16, 2}}, {{"Corn", 16, 4}}));
  EXPECT_TRUE(same({{"Corn", 16, 2}}, {{"Corn", 16, 2}}));
}

TEST_F(Duplicates, MustShowTheSameRoundedYield) {
  EXPECT_TRUE(same({{"Corn", 10, 1, 183.6}}, {{"Corn", 10, 1, 184.4}}));
  EXPECT_FALSE(same({{"Corn", 10, 1, 184.4}}, {{"Corn", 10, 1, 184.5}}));  // shown as 184 and 185
  EXPECT_TRUE(same({{"Corn", 10, 1, 0.4}}, {{"Corn", 10, 1, -0.4}}));      // both shown as 0
}

TEST_F(Duplicates, MustShowTheSameDepthToTwoDecimals) {
  EXPECT_TRUE(same({{"Corn", 10, 1, 100, 8.495}}, {{"Corn", 10, 1, 100, 8.504}}));  // both shown as 8.50
  EXPECT_FALSE(same({{"Corn", 10, 1, 100, 8.494}}, {{"Corn", 10, 1, 100, 8.495}}));
}

TEST_F(Duplicates, OfEqualProfitMayHaveDifferentNumbersOfFields) {
  EXPECT_TRUE(same({{"Corn", 10}}, {{"Wheat", 4}, {"Wheat", 6}}));
  EXPECT_FALSE(same({{"Corn", 10}}, {{"Wheat", 4}, {"Wheat", 7}}));
  EXPECT_TRUE(same({}, {{"Corn", 0}}));
}

TEST_F(Duplicates, AreNeverTwoPlaceholders) {
  EXPECT_FALSE(same({}, {}));
}

TEST_F(Duplicates, MayHaveTheirFieldsInAnotherOrder) {
  const Plot corn{"Corn", 7, 50, 180, 12};
  const Plot wheat{"Wheat", 3, 50, 60, 4};
  EXPECT_TRUE(same({wheat, corn}, {corn, wheat}));
}

TEST_F(Duplicates, OnlyNeedAMatchForTheFirstFieldOfTheLowerOption) {
  const Plot corn{"Corn", 5};
  const Plot wheat{"Wheat", 5};
  const Plot oats{"Oats", 5};
  const Plot rye{"Rye", 5};
  EXPECT_TRUE(same({corn, oats}, {corn, wheat}));
  EXPECT_TRUE(same({wheat, oats}, {corn, wheat}));  // the match may be any field
  EXPECT_FALSE(same({oats, corn}, {corn, wheat}));
  EXPECT_TRUE(same({corn, oats, rye}, {corn, wheat, wheat}));
  EXPECT_FALSE(same({oats, rye}, {corn, wheat}));
}

BestMix rankingOf(std::int16_t size, const std::vector<std::vector<Plot>>& bestFirst) {
  BestMix best;
  best.setSize(size);
  for (auto plots = bestFirst.rbegin(); plots != bestFirst.rend(); ++plots)
    submit(best, candidateOf(*plots));
  return best;
}

TEST_F(Duplicates, ReduceARunOfEqualOptionsToItsFirst) {
  BestMix best = rankingOf(6, {{{"Corn", 9}}, {{"Corn", 9}}, {{"Corn", 9}}, {{"Wheat", 9}}, {{"Corn", 5}}});
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("Corn", "Wheat", "Corn", "-", "-", "-"));
}

TEST_F(Duplicates, AreKeptIfTheSwitchIsOff) {
  BestMix best = rankingOf(4, {{{"Corn", 9}}, {{"Corn", 9}}, {{"Wheat", 9}}});
  EXPECT_THAT(namesIn(best.returnCollection(false)), ElementsAre("Corn", "Corn", "Wheat", "-"));
}

TEST_F(Duplicates, AreFoundOnlyBetweenNeighbours) {
  BestMix best = rankingOf(3, {{{"Corn", 9}}, {{"Wheat", 9}}, {{"Corn", 9}}});
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("Corn", "Wheat", "Corn"));
}

TEST_F(Duplicates, OfSwappedFieldsKeepOnlyTheUpperOption) {
  const Plot corn{"Corn", 7, 50, 180, 12};
  const Plot wheat{"Wheat", 3, 50, 60, 4};
  BestMix best = rankingOf(2, {{corn, wheat}, {wheat, corn}});
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("Corn", "-"));
}

TEST_F(Duplicates, AreFoundByComparisonWithARemovedNeighbourToo) {
  const Plot p{"P", 5};
  const Plot q{"Q", 5};
  const Plot r{"R", 5};
  const Plot s{"S", 5};
  // The second matches the first, and the third matches the second but not the first.
  ASSERT_TRUE(same({p, r}, {p, q}));
  ASSERT_TRUE(same({r, s}, {p, r}));
  ASSERT_FALSE(same({r, s}, {p, q}));
  BestMix best = rankingOf(3, {{p, q}, {p, r}, {r, s}});
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("P", "-", "-"));
}

TEST_F(Duplicates, CanAppearAgainWhenTheListIsPacked) {
  const Plot p{"P", 5};
  const Plot q{"Q", 5};
  const Plot r{"R", 5};
  const Plot s{"S", 5};
  // The second matches the first and is removed. The third matches the first too, and is now its neighbour.
  ASSERT_FALSE(same({q, s}, {p, r}));
  ASSERT_TRUE(same({q, s}, {p, q}));
  BestMix best = rankingOf(3, {{p, q}, {p, r}, {q, s}});
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("P", "Q", "-"));
  EXPECT_THAT(namesIn(best.returnCollection(true)), ElementsAre("P", "-", "-"));
}

TEST_F(Duplicates, DoNotReappearInASecondCall) {
  BestMix best = rankingOf(5, {{{"Corn", 9}}, {{"Corn", 9}}, {{"Wheat", 9}}});
  const auto first = namesIn(best.returnCollection(true));
  EXPECT_EQ(namesIn(best.returnCollection(true)), first);
}

TEST_F(Duplicates, LeaveCopiesInTheirPlaces) {
  BestMix best = rankingOf(2, {{{"Corn", 9}}});
  const auto before = best.returnCollection(true);
  const auto after = best.returnCollection(true);
  ASSERT_THAT(after, SizeIs(2));
  EXPECT_NE(before[0], after[0]);
  before[0]->Item(1)->theCrop->cropType = "X";
  EXPECT_THAT(namesIn(after), ElementsAre("Corn", "-"));
}

TEST_F(Duplicates, MakeRoomForMoreCandidates) {
  BestMix best = rankingOf(2, {{{"Corn", 9}}, {{"Corn", 9}}});
  (void)best.returnCollection(true);
  submit(best, candidate("Wheat", 3));
  EXPECT_THAT(namesIn(best), ElementsAre("Corn", "Wheat"));
}

const std::string stars(90, '*');

TEST_F(Duplicates, AreCountedInTheReport) {
  BestMix best = rankingOf(4, {{{"Corn", 1234.5}}, {{"Corn", 1234.5}}, {{"Wheat", -7.25, 2, 100, 17}}});
  FieldCollection corn = candidate("Corn", 1234.5);
  FieldCollection wheat = candidateOf({{"Wheat", -7.25, 2, 100, 17}});
  EXPECT_EQ(
      best.toString(),
      "OPTION 1 " + stars + "\r\n\r\n" + corn.toString() +
          "**********************\r\nProfit = $1,234.50\r\nTotal Gross Irrigated Volume = 11.76ac-in\r\n\r\n"
          "OPTION 2 " +
          stars + "\r\n\r\n" + wheat.toString() +
          "**********************\r\nProfit = $-007.25\r\nTotal Gross Irrigated Volume = 40.00ac-in\r\n\r\n"
          "OPTION 3 " +
          stars +
          "\r\n\r\n**********************\r\nProfit = $000.00\r\nTotal Gross Irrigated Volume = "
          ".00ac-in\r\n\r\n"
          "\r\n\r\nThere were 1 duplicates");
}

TEST_F(Duplicates, AreInTheShortReport) {
  BestMix best = rankingOf(2, {{{"Corn", 1234.5}}, {{"Corn", 1234.5}}});
  FieldCollection corn = candidate("Corn", 1234.5);
  const std::string option = "\r\n\r\n" + corn.toString() +
                             "---------------------------------------\r\nReturn = $1,235\r\n"
                             "Total Gross Irrigated Volume = 012ac-in\r\n\r\n";
  EXPECT_EQ(best.getCollection(), option + option);
}

TEST(BestMixReport, WithOnlyPlaceholdersWorksBeforeTheFirstRun) {
  const ScopedEfficiency none(0);
  BestMix best;
  best.setSize(1);
  EXPECT_THAT(best.toString(), ::testing::HasSubstr("OPTION 1 " + stars));
  EXPECT_EQ(BestMix().toString(), "\r\n\r\nThere were 0 duplicates");
}

}  // namespace
}  // namespace verdalis::testing
