#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/MakingSplits.h"
#include "engine/Split.h"
#include "model/LandDivision.h"
#include "tests/support/Errors.h"

// Splits, the choice of a land division, and the conversion of shares to acres, volumes and depths.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(Split, IsAListOfNumbers) {
  Split split;
  EXPECT_EQ(split.Count(), 0);
  split.addSplit(50);
  split.addSplit(33.5);
  EXPECT_EQ(split.Count(), 2);
  EXPECT_THAT(split.getSplits(), ElementsAre(50, 33.5));
  EXPECT_THAT(split.splits, ElementsAre(50, 33.5));
}

TEST(Split, TotalRoundsEachValueHalvesToEven) {
  EXPECT_EQ(Split().total(), 0);
  EXPECT_EQ((Split{100.0 / 3, 100.0 / 3, 100.0 / 3}).total(), 99);
  EXPECT_EQ((Split{100.0 / 3, 200.0 / 3}).total(), 100);
  EXPECT_EQ((Split{0.5}).total(), 0);
  EXPECT_EQ((Split{1.5}).total(), 2);
  EXPECT_EQ((Split{2.5}).total(), 2);
  EXPECT_EQ((Split{12.5, 12.5, 37.5, 37.5}).total(), 12 + 12 + 38 + 38);
  EXPECT_EQ((Split{99.99999999999997}).total(), 100);
}

TEST(Split, ReportShowsEachValueWithItsUnitOnOneLine) {
  EXPECT_EQ(Split().toString(), "");
  EXPECT_EQ((Split{918, 102.5, 0}).toString(), "918 ac-in      102.5 ac-in      0 ac-in      ");
}

TEST(Split, CopyIsIndependent) {
  Split split{1, 2};
  Split copy = split.Copy();
  EXPECT_EQ(copy, split);
  copy.addSplit(3);
  copy.splits[0] = 9;
  EXPECT_THAT(split.getSplits(), ElementsAre(1, 2));
}

TEST(LandDivision, HasThePercentagesOfItsTable) {
  for (std::size_t i = 0; i < landDivisions().size(); ++i)
    EXPECT_EQ(landDivision(i).getSplits(), landDivisions().at(i).percentages) << i;
  EXPECT_NE(errorText(ErrorNumber::subscript, [] { (void)landDivision(landDivisions().size()); }), "");
}

TEST(LandAcres, AreSharesOfTheFarm) {
  EXPECT_THAT(percentToAcres({75, 25}, 160).getSplits(), ElementsAre(120, 40));
  EXPECT_THAT(percentToAcres({33, 33, 33}, 100).getSplits(), ElementsAre(33, 33, 33));
  EXPECT_THAT(percentToAcres({100}, 0).getSplits(), ElementsAre(0));
}

TEST(LandAcres, AreDividedBy100BeforeMultiplying) {
  const double acres = 70.1;
  EXPECT_THAT(percentToAcres({33}, acres).getSplits(), ElementsAre((33.0 / 100) * acres));
  EXPECT_NE((33.0 / 100) * acres, 33.0 * acres / 100);  // the order affects the last digit
}

TEST(WaterVolume, IsAShareOfTheNetVolume) {
  EXPECT_THAT(percentToVolume(1020, {90, 10, 0}).getSplits(), ElementsAre(918, 102, 0));
  EXPECT_THAT(percentToVolume(1037.3, {100.0 / 3}).getSplits(), ElementsAre(((100.0 / 3) / 100) * 1037.3));
}

TEST(WaterDepth, IsTheVolumeDividedByTheAcresOfTheField) {
  SplitCollection water;
  water.Add({1020, 0}, 2);
  water.Add({340, 680}, 2);
  const SplitCollection depths = volumesToDepths(water, {75, 25});
  ASSERT_EQ(depths.Count(), 2);
  EXPECT_THAT(depths.Item(1).getSplits(), ElementsAre(1020.0 / 75, 0));
  EXPECT_THAT(depths.Item(2).getSplits(), ElementsAre(340.0 / 75, 680.0 / 25));
}

TEST(WaterDepth, OfNoSplitsIsEmpty) {
  EXPECT_EQ(volumesToDepths(SplitCollection(), {0, 0}).Count(), 0);
}

TEST(WaterDepth, RequiresAcres) {
  SplitCollection water;
  water.Add({0, 10}, 2);
  EXPECT_THAT(errorText(ErrorNumber::divisionByZero,
                        [&] {
                          (void)volumesToDepths(water, {50, 0});
                        }),
              AllOf(HasSubstr("0 acres"), HasSubstr("Total Acres:")));
}

TEST(SplitConversions, RejectResultsThatAreTooLarge) {
  EXPECT_THAT(errorText(ErrorNumber::overflow, [] { (void)percentToAcres({1e300}, 1e300); }),
              HasSubstr("size of a field"));
  EXPECT_THAT(errorText(ErrorNumber::overflow, [] { (void)percentToVolume(1e300, {1e300}); }),
              HasSubstr("water of a field"));
  SplitCollection water;
  water.Add({1e300}, 1);
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)volumesToDepths(water, {1e-300}); }),
              HasSubstr("depth of a field"));
}

}  // namespace
}  // namespace verdalis::testing
