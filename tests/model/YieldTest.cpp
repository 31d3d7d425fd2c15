#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "model/Crop.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/PlainFarm.h"

// Yields of a crop by net irrigation and rainfall, and the scaling of its table.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

/// A crop that yields the values of its table: scale 1 for absolute and relative cells.
Crop plainCrop(const std::vector<std::vector<double>>& rows) {
  Crop crop = namedCrop("Oats");
  crop.maxYield = 1;
  crop.normalFactor = 1;
  crop.setYieldTable(tableOf(11, rows));
  return crop;
}

TEST(SetNormal, ScalesTheTopYieldAtThisRainToTheExpectedYield) {
  Crop corn = cornCrop();
  corn.setNormal(220, 16);
  EXPECT_EQ(corn.normalFactor, 220.0 / 210);
  corn.setNormal(220, 16.5);  // halves to the even inch, as for the yield
  EXPECT_EQ(corn.normalFactor, 220.0 / 210);
  corn.setNormal(180, 17.5);
  EXPECT_EQ(corn.normalFactor, 180 / 211.5);
  corn.setNormal(0, 16);
  EXPECT_EQ(corn.normalFactor, 0);
}

TEST(SetNormal, KeepsTheFactorIfItCannotBeComputed) {
  Crop corn = cornCrop();
  corn.normalFactor = 1.5;
  for (const double rain : {22.0, 21.5, -1.0, 1e300, -1e300}) {
    corn.setNormal(220, rain);
    EXPECT_EQ(corn.normalFactor, 1.5) << rain;
  }
  corn.setNormal(220, 5);  // a column of zeros below the first rainfall
  EXPECT_EQ(corn.normalFactor, 1.5);
  corn.setNormal(0, 5);  // 0 / 0
  EXPECT_EQ(corn.normalFactor, 1.5);
  Crop tiny = plainCrop({{1e-300}});
  tiny.setNormal(1e300, 11);  // overflow
  EXPECT_EQ(tiny.normalFactor, 1);
  Crop fallow = fallowCrop();
  fallow.normalFactor = 2;
  fallow.setNormal(220, 16);
  EXPECT_EQ(fallow.normalFactor, 2);
}

TEST(GetMaxIrrigation, IsTheLastRowOfTheTableOr0) {
  EXPECT_EQ(cornCrop().getMaxIrrigation(), 24);
  EXPECT_EQ(wheatCrop().getMaxIrrigation(), 22);
  EXPECT_EQ(fallowCrop().getMaxIrrigation(), 0);
}

TEST(SetYield, ReadsAWholeInchFromItsRow) {
  Crop corn = cornCrop();
  corn.normalFactor = 1;
  EXPECT_EQ(yieldAt(corn, 6, 11), 51.8);
  EXPECT_EQ(yieldAt(corn, 6, 16), 101.2);
  EXPECT_EQ(yieldAt(corn, 12, 21), 197.4);
  EXPECT_EQ(yieldAt(corn, 0, 18), 11.1);
}

TEST(SetYield, InterpolatesLinearlyBetweenTwoRows) {
  Crop crop = plainCrop({{10}, {20}, {40}});
  EXPECT_DOUBLE_EQ(yieldAt(crop, 0.5, 11), 15);
  EXPECT_DOUBLE_EQ(yieldAt(crop, 1.25, 11), 25);
}

TEST(SetYield, ScalesAbsoluteCellsByTheNormalFactor) {
  Crop corn = cornCrop();
  corn.setNormal(220, 16);
  EXPECT_EQ(yieldAt(corn, 12, 16), 175.3 * (220.0 / 210));
}

TEST(SetYield, GivesTheExpectedYieldAtFullIrrigationAndAbove) {
  for (const double depth : {24.0, 24.5, 100.0, 1e300}) {
    Crop corn = cornCrop();
    corn.setNormal(220, 16);
    EXPECT_DOUBLE_EQ(yieldAt(corn, depth, 16), 220) << depth;
  }
}

TEST(SetYield, LowersADepthAboveTheTableInTheCallersVariable) {
  Crop corn = cornCrop();
  double depth = 30;
  corn.setYield(depth, 16);
  EXPECT_EQ(depth, 24);
  depth = 23.97;  // reads row 24, and the depth is unchanged
  corn.setYield(depth, 16);
  EXPECT_EQ(depth, 23.97);
}

TEST(SetYield, RoundsToTenthsBeforeTakingTheWholeInches) {
  Crop crop = plainCrop({{10}, {20}, {40}, {70}, {110}, {160}});
  // 3.96 rounds to 4.0: row 4, and 0.04 inches below it on the line from row 4 to row 5.
  EXPECT_EQ(yieldAt(crop, 3.96, 11), 110 + (3.96 - 4) * 50);
  EXPECT_EQ(yieldAt(crop, 3.94, 11), 70 + (3.94 - 3) * 40);
  EXPECT_EQ(yieldAt(crop, 3.95, 11), 110 + (3.95 - 4) * 50);  // halves away from zero
  EXPECT_EQ(yieldAt(crop, std::nextafter(3.95, 0), 11), 70 + (std::nextafter(3.95, 0) - 3) * 40);
}

TEST(SetYield, ExtrapolatesSlightlyJustBelowAWholeInch) {
  Crop corn = cornCrop();
  corn.setNormal(220, 16);
  const double y10 = corn.yieldTable->cell(10, 16);
  const double y11 = corn.yieldTable->cell(11, 16);
  EXPECT_EQ(yieldAt(corn, 9.96, 16), (y10 + (9.96 - 10) * (y11 - y10)) * corn.normalFactor);
  EXPECT_NEAR(9.96 - 10, -0.04, 1e-12);
  EXPECT_LT(corn.Yield, y10 * corn.normalFactor);
}

TEST(SetYield, UsesTheTopRowJustBelowTheTop) {
  Crop crop = plainCrop({{10}, {20}});
  EXPECT_EQ(yieldAt(crop, 0.96, 11), 20);
  EXPECT_EQ(yieldAt(crop, 1, 11), 20);
}

TEST(SetYield, ReadsATableOfOneRow) {
  Crop crop = plainCrop({{33}});
  double depth = 7;
  crop.setYield(depth, 11);
  EXPECT_EQ(crop.Yield, 33);
  EXPECT_EQ(depth, 0);
}

TEST(SetYield, TreatsCellsUpTo1AsFractionsOfTheMaximumYield) {
  Crop crop = namedCrop("Oats");
  crop.maxYield = 80;
  crop.normalFactor = 3;
  crop.setYieldTable(tableOf(11, {{0.25, 0.25, 0.25}, {0.5, 1.0, 1.0000001}}));
  EXPECT_EQ(yieldAt(crop, 1, 11), 0.5 * 80);
  EXPECT_EQ(yieldAt(crop, 1, 12), 80);
  EXPECT_EQ(yieldAt(crop, 1, 13), 1.0000001 * 3);  // absolute, because just above 1
}

TEST(SetYield, DecidesByTheUpperCellWhetherALookupIsAbsolute) {
  Crop crop = namedCrop("Oats");
  crop.maxYield = 100;
  crop.normalFactor = 2;
  crop.setYieldTable(tableOf(11, {{0}, {0.4}, {50}, {0.9}}));
  EXPECT_EQ(yieldAt(crop, 0.5, 11), 0.2 * 100);                      // a dry corner of an absolute table
  EXPECT_EQ(yieldAt(crop, 1.5, 11), (0.4 + 0.5 * (50 - 0.4)) * 2);   // small lower cell, large upper one
  EXPECT_EQ(yieldAt(crop, 2.5, 11), (50 + 0.5 * (0.9 - 50)) * 100);  // large lower cell, small upper one
  EXPECT_EQ(yieldAt(crop, 3, 11), 0.9 * 100);
}

TEST(SetYield, GivesCorn44BushelsInItsDryCorner) {
  Crop corn = cornCrop();
  corn.setNormal(220, 15);
  EXPECT_DOUBLE_EQ(yieldAt(corn, 0.5, 15), 44);
}

TEST(SetYield, UsesTheNearestInchOfRainHalvesToEven) {
  Crop corn = cornCrop();
  corn.normalFactor = 1;
  const std::vector<std::pair<double, int>> cases = {{16, 16},   {16.4, 16}, {16.5, 16}, {16.6, 17},
                                                     {17.5, 18}, {14.5, 14}, {15.5, 16}, {21.5, 22},
                                                     {20.5, 20}, {10.5, 10}, {11.5, 12}, {21.4, 21}};
  for (const auto& [rain, column] : cases) {
    if (column > 21) continue;
    EXPECT_EQ(yieldAt(corn, 12, rain), corn.yieldTable->cell(12, column)) << rain;
  }
}

TEST(SetYield, IsZeroBelowTheFirstRainfallOfTheTable) {
  Crop corn = cornCrop();
  for (const double rain : {10.0, 10.4, 5.0, 0.0, 0.4, -0.4, -0.5})
    EXPECT_EQ(yieldAt(corn, 12, rain), 0) << rain;
}

TEST(SetYield, RejectsARainfallOutsideTheTableAndNamesItsRange) {
  for (const double rain : {22.0, 21.5, 25.0, 1e300, -1.0, -0.6}) {
    Crop corn = cornCrop();
    double depth = 12;
    const std::string text = errorText(ErrorNumber::subscript, [&] { corn.setYield(depth, rain); });
    EXPECT_THAT(text, AllOf(HasSubstr("Annual rainfall " + generalText(rain)), HasSubstr("Corn"),
                            HasSubstr("11 to 21 inches")));
  }
}

TEST(SetYield, RejectsANegativeDepth) {
  Crop corn = cornCrop();
  EXPECT_EQ(yieldAt(corn, -0.04, 11), 0);
  for (const double depth : {-0.95, -1.0, -1e300, -std::numeric_limits<double>::infinity()}) {
    double copy = depth;
    const std::string text = errorText(ErrorNumber::subscript, [&] { corn.setYield(copy, 16); });
    EXPECT_THAT(text, AllOf(HasSubstr(generalText(depth)), HasSubstr("Corn"), HasSubstr("irrigation")));
  }
}

TEST(SetYield, ExtrapolatesDepthsLessThanAnInchBelow0) {
  Crop crop = plainCrop({{10}, {20}});
  EXPECT_EQ(yieldAt(crop, -0.5, 11), 5);
  EXPECT_EQ(yieldAt(crop, -0.0, 11), 10);
}

TEST(SetYield, RejectsACropWithoutATable) {
  Crop crop = namedCrop("Oats");
  double depth = 1;
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { crop.setYield(depth, 16); }), HasSubstr("Oats"));
}

TEST(SetYield, RejectsAYieldThatIsTooLarge) {
  Crop crop = plainCrop({{1e300}});
  crop.normalFactor = 1e300;
  double depth = 0;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { crop.setYield(depth, 11); }), HasSubstr("Oats"));
}

TEST(SetYield, Is0ForFallowWhateverTheWaterAndRain) {
  Crop fallow = fallowCrop();
  fallow.Yield = 7;
  for (const double wanted : {0.0, 5.0, 1e300, -3.0}) {
    double depth = wanted;
    fallow.setYield(depth, 99);
    EXPECT_EQ(fallow.Yield, 0);
    EXPECT_EQ(depth, wanted);
  }
  Crop named = namedCrop("Fallow");  // even with a table
  named.setYieldTable(cornTable());
  EXPECT_EQ(yieldAt(named, 12, 16), 0);
}

TEST(SetYield, RecognizesFallowOnlyByItsExactName) {
  for (const char* name : {"fallow", "FALLOW", "Fallow ", " Fallow"}) {
    Crop crop = plainCrop({{10}, {20}});
    crop.cropType = name;
    EXPECT_EQ(yieldAt(crop, 1, 11), 20) << name;
  }
}

TEST(SetYield, UsesTheWholeInchesAsShownAtAndNearEveryHundredth) {
  Crop crop = namedCrop("Oats");
  crop.normalFactor = 1;
  YieldTable table(1000, 0, 0);
  for (int water = 0; water <= 1000; ++water)
    table.setCell(water, 0, 2 + static_cast<double>(water) * water);
  crop.setYieldTable(table);
  for (int hundredths = 0; hundredths <= 100'000; ++hundredths) {
    const double at = hundredths / 100.0;
    for (const double depth : {std::nextafter(at, 0), at, std::nextafter(at, 1e9)}) {
      ASSERT_EQ(yieldAt(crop, depth, 0), plainYield(crop, depth, 0)) << generalText(depth);
    }
  }
}

}  // namespace
}  // namespace verdalis::testing
