#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "engine/BestMix.h"
#include "tests/support/Candidates.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"

// Which candidates the ranking keeps, and in which order.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Ranking : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

TEST_F(Ranking, HasNoPlacesInitially) {
  EXPECT_EQ(BestMix().getSize(), 0);
  EXPECT_TRUE(BestMix().returnCollection(true).empty());
}

TEST_F(Ranking, HasOnlyPlaceholdersInitially) {
  BestMix best = rankingOf(3);
  EXPECT_EQ(best.getSize(), 3);
  const auto options = best.returnCollection(false);
  ASSERT_EQ(options.size(), 3U);
  for (const auto& option : options) {
    EXPECT_TRUE(option->isNew);
    EXPECT_EQ(option->Count(), 0);
    EXPECT_EQ(option->getProfit(), 0);
  }
}

TEST_F(Ranking, RequiresAtLeastOnePlace) {
  for (const std::int16_t size : std::vector<std::int16_t>{0, -1, -32768}) {
    EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)rankingOf(size); }),
                HasSubstr(std::to_string(size)));
  }
  BestMix unsized;
  errorText(ErrorNumber::subscript, [&] { submit(unsized, candidate("A", 1)); });
}

TEST_F(Ranking, AcceptsTheLargestSize) {
  BestMix best = rankingOf(32767);
  submit(best, candidate("A", 1));
  EXPECT_EQ(namesIn(best)[0], "A");
}

TEST_F(Ranking, PutsTheLargerProfitFirst) {
  BestMix best = rankingOf(5);
  submit(best, candidate("A", 5));
  submit(best, candidate("B", 20));
  submit(best, candidate("C", -7));
  submit(best, candidate("D", 10));
  EXPECT_THAT(namesIn(best), ElementsAre("B", "D", "A", "C", "-"));
}

TEST_F(Ranking, PutsTheLaterOfEqualProfitsFirst) {
  BestMix best = rankingOf(4);
  for (const char* name : {"A", "B", "C"})
    submit(best, candidate(name, 10));
  EXPECT_THAT(namesIn(best), ElementsAre("C", "B", "A", "-"));
}

TEST_F(Ranking, WithOnePlaceKeepsTheBestAndTheLaterOfEqualProfits) {
  BestMix best = rankingOf(1);
  submit(best, candidate("A", 10));
  submit(best, candidate("B", 9));
  EXPECT_THAT(namesIn(best), ElementsAre("A"));
  submit(best, candidate("C", 10));
  EXPECT_THAT(namesIn(best), ElementsAre("C"));
  submit(best, candidate("D", 11));
  EXPECT_THAT(namesIn(best), ElementsAre("D"));
}

TEST_F(Ranking, DropsCandidatesBelowTheLastPlace) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 10));
  submit(best, candidate("B", 10));
  submit(best, candidate("C", 5));
  EXPECT_THAT(namesIn(best), ElementsAre("B", "A"));
}

TEST_F(Ranking, HasItsFreePlacesAtTheEnd) {
  BestMix best = rankingOf(10);
  for (const char* name : {"A", "B", "C", "D", "E"})
    submit(best, candidate(name, -100));
  EXPECT_THAT(namesIn(best), ElementsAre("E", "D", "C", "B", "A", "-", "-", "-", "-", "-"));
  EXPECT_EQ(best.LowEnd, 0);
}

TEST_F(Ranking, FillsFreePlacesEvenWithLosses) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", -1000));
  EXPECT_THAT(namesIn(best), ElementsAre("A", "-"));
  submit(best, candidate("B", -2000));
  EXPECT_THAT(namesIn(best), ElementsAre("A", "B"));
  submit(best, candidate("C", 0));
  EXPECT_THAT(namesIn(best), ElementsAre("C", "A"));
}

TEST_F(Ranking, ComparesProfitsExactly) {
  BestMix best = rankingOf(3);
  const double hair = std::nextafter(10.0, 11.0);
  submit(best, candidate("A", hair));
  submit(best, candidate("B", 10));
  EXPECT_THAT(namesIn(best), ElementsAre("A", "B", "-"));
  submit(best, candidate("C", hair));
  EXPECT_THAT(namesIn(best), ElementsAre("C", "A", "B"));
}

TEST_F(Ranking, TreatsPositiveAndNegativeZeroAsEqual) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 0.0));
  submit(best, candidate("B", -0.0));
  EXPECT_THAT(namesIn(best), ElementsAre("B", "A"));
}

TEST_F(Ranking, RanksByTotalProfitNotProfitPerAcre) {
  BestMix best = rankingOf(2);
  submit(best, candidateOf({{"Small", 1000, 1}}));
  submit(best, candidateOf({{"Large", 2000, 100}}));
  EXPECT_THAT(namesIn(best), ElementsAre("Large", "Small"));
}

TEST_F(Ranking, LowEndIsTheProfitInTheLastPlace) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 10));
  EXPECT_EQ(best.LowEnd, 0);
  submit(best, candidate("B", -5));
  EXPECT_EQ(best.LowEnd, -5);
  submit(best, candidate("C", 7));
  EXPECT_EQ(best.LowEnd, 7);
  submit(best, candidate("D", 1));
  EXPECT_EQ(best.LowEnd, 7);
}

TEST_F(Ranking, StoresCopiesOfCandidates) {
  BestMix best = rankingOf(1);
  FieldCollection offered = candidate("A", 10);
  best.submit(offered);
  offered.Item(1)->theCrop->cropType = "X";
  offered.Item(1)->theCrop->inputCosts.Returns = 99;
  offered.Item(1)->TotalReturn = 0;
  EXPECT_THAT(namesIn(best), ElementsAre("A"));
  EXPECT_EQ(best.returnCollection(false)[0]->getProfit(), 10);
}

TEST_F(Ranking, RejectsACandidateThatCannotBePriced) {
  const ScopedEfficiency none(0);
  BestMix best = rankingOf(1);
  EXPECT_THAT(errorText(ErrorNumber::divisionByZero, [&] { submit(best, candidate("A", 10)); }),
              HasSubstr("efficiency"));
}

TEST_F(Ranking, ChangingTheSizeClearsIt) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 10));
  best.setSize(3);
  EXPECT_THAT(namesIn(best), ElementsAre("-", "-", "-"));
}

TEST_F(Ranking, CopySharesItsOptions) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 10));
  submit(best, candidate("B", 5));
  BestMix copy = best.Copy();
  EXPECT_EQ(copy.getSize(), 2);
  EXPECT_EQ(copy.LowEnd, 5);
  submit(copy, candidate("C", 20));  // the copy has its own places
  EXPECT_THAT(namesIn(copy), ElementsAre("C", "A"));
  EXPECT_THAT(namesIn(best), ElementsAre("A", "B"));
}

TEST_F(Ranking, TakesPlacesFromAnArrayAndSharesTheirObjects) {
  BestMix source = rankingOf(2);
  submit(source, candidate("A", 10));
  const auto options = source.returnCollection(false);
  BestMix best = rankingOf(2);
  best.SetBestArray(options);
  options[0]->Item(1)->theCrop->cropType = "X";
  EXPECT_THAT(namesIn(best), ElementsAre("X", "-"));
}

TEST_F(Ranking, HasTwoOperationsThatDoNothing) {
  BestMix best = rankingOf(2);
  submit(best, candidate("A", 10));
  submit(best, candidate("A", 10));
  best.ridDuplicates();
  best.setCollection();
  EXPECT_THAT(namesIn(best), ElementsAre("A", "A"));
}

}  // namespace
}  // namespace verdalis::testing
