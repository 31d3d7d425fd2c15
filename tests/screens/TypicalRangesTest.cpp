#include <gtest/gtest.h>

#include "screens/typicalRanges.h"

namespace verdalis::testing {
namespace {

/// A crop that yields from 0.25 to 1 of its maximum, with 14 inches of rain or more.
Crop cropNamed(const std::string& name, int firstRain, int lastRain) {
  Crop crop;
  crop.cropType = name;
  crop.cropUnitsArray = {"bu.", "bushels"};
  YieldTable table(3, firstRain, lastRain);
  for (int rain = firstRain; rain <= lastRain; ++rain) {
    for (int inches = 0; inches <= 3; ++inches)
      table.setCell(inches, rain, 0.25 * (inches + 1));
  }
  crop.setYieldTable(table);
  return crop;
}

TEST(TypicalRanges, TheRainIsThatOfAllCrops) {
  const Crop corn = cropNamed("Corn", 11, 21);
  const Crop oats = cropNamed("Oats", 14, 24);
  const Crop rice = cropNamed("Rice", 30, 40);
  EXPECT_EQ(rainRange({&corn}), "Yields are known from 11 to 21 inches of rain.");
  EXPECT_EQ(rainRange({&corn, &oats}), "Yields are known from 14 to 21 inches of rain.");
  EXPECT_EQ(rainRange({&corn, &rice}), "");
  EXPECT_EQ(rainRange({}), "");
}

TEST(TypicalRanges, TheWaterIsThatOfTheYieldTables) {
  const Crop corn = cropNamed("Corn", 11, 21);
  EXPECT_EQ(waterRange({&corn}, "75"), "Yields are known up to 3 net inches on a field: 4.0 gross at 75 %.");
  EXPECT_EQ(waterRange({&corn}, ""), "Yields are known up to 3 net inches on a field.");
  EXPECT_EQ(waterRange({&corn}, "0"), "Yields are known up to 3 net inches on a field.");
  EXPECT_EQ(waterRange({}, "75"), "");
}

TEST(TypicalRanges, TheAcresAreThoseThatThePlantCanWater) {
  IrrigationCosts plant;
  EXPECT_EQ(acresRange(plant, "12"), "");
  plant.GPM = 750;
  plant.dblEstHours = 1800;
  const double acres = plant.getMaxInches(1) / 12;
  EXPECT_EQ(acresRange(plant, "12"), "In its hours the plant pumps 12 inches for up to " +
                                         std::to_string(static_cast<int>(acres + 0.5)) + " acres.");
  EXPECT_EQ(acresRange(plant, ""), "");
  EXPECT_EQ(acresRange(plant, "x"), "");
}

TEST(TypicalRanges, PricesAreKnownForStockCropsAlone) {
  EXPECT_EQ(priceRange(cropNamed("Corn", 11, 21)), "Default $6.52 per bu., at most $10.00.");
  EXPECT_EQ(priceRange(cropNamed("Oats", 11, 21)), "");
}

TEST(TypicalRanges, YieldsAreThoseOfTheTable) {
  EXPECT_EQ(maxYieldRange(cropNamed("Oats", 11, 21), "100", "16"),
            "With 16 inches of rain the yield table goes from 25.0 without irrigation to 100.0.");
  EXPECT_EQ(maxYieldRange(cropNamed("Oats", 11, 21), "100", "40"), "");
  EXPECT_EQ(maxYieldRange(cropNamed("Oats", 11, 21), "", "16"), "");
  EXPECT_EQ(maxYieldRange(cropNamed("Corn", 11, 21), "x", "16"),
            "Default 220 bushels per acre, at most 500.");
  EXPECT_EQ(
      maxYieldRange(cropNamed("Corn", 11, 21), "200", "16"),
      "Default 220 bushels per acre, at most 500. With 16 inches of rain the yield table goes from 50.0 "
      "without irrigation to 200.0.");
}

TEST(TypicalRanges, TheEfficiencyHasALimit) {
  EXPECT_EQ(efficiencyRange(), "At most 100 %. A new farm has 85 %.");
}

}  // namespace
}  // namespace verdalis::testing
