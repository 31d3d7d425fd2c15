#include <gtest/gtest.h>

#include <string>

#include "screens/fieldHints.h"

namespace verdalis::testing {
namespace {

std::string hintOf(const std::string& text, bool isWhole = false) {
  return readingHint("Total acres", text, isWhole).value_or("");
}

TEST(ReadingHint, IsNotNeededForAPlainNumber) {
  for (const char* text : {"", " ", "125", "125.5", " 125 ", "+7", "1e2", "0", ".5", "12."})
    EXPECT_EQ(hintOf(text), "") << text;
}

TEST(ReadingHint, TellsWhatIsReadInsteadOfWhatIsSeen) {
  EXPECT_EQ(hintOf("1,250"), "Total acres: read as 1. Leave out the comma.");
  EXPECT_EQ(hintOf("1,250", true), "Total acres: read as 1. Leave out the comma.");
  EXPECT_EQ(hintOf("12,5 acres"), "Total acres: read as 12. Leave out the comma.");
  EXPECT_EQ(hintOf("125 acres"), "Total acres: read as 125. Enter digits only.");
  EXPECT_EQ(hintOf("12a"), "Total acres: read as 12. Enter digits only.");
}

TEST(ReadingHint, TellsWhatIsNoNumber) {
  EXPECT_EQ(hintOf("many"), "Total acres: this is not a number. It counts as 0.");
  EXPECT_EQ(hintOf("many", true), "Total acres: this is not a number.");
  EXPECT_EQ(hintOf("12a", true), "Total acres: this is not a number.");
  EXPECT_EQ(hintOf("1e400"), "Total acres: this number is too large.");
  EXPECT_EQ(hintOf("-5"), "Total acres: this is below 0.");
}

Crop cropOf(int firstRain, int lastRain) {
  Crop crop;
  crop.cropType = "Corn";
  crop.setYieldTable(YieldTable(24, firstRain, lastRain));
  return crop;
}

TEST(RainHint, TellsTheYearsOfTheYieldTable) {
  const Crop corn = cropOf(11, 21);
  const std::string outside = "Annual rainfall: the yields of Corn are known from 11 to 21 inches.";
  EXPECT_EQ(rainHint(corn, "10").value_or(""), outside);
  EXPECT_EQ(rainHint(corn, "22").value_or(""), outside);
  EXPECT_EQ(rainHint(corn, "21.6").value_or(""), outside);
  for (const char* text : {"11", "21", "21.4", "10.6", "", "dry"})
    EXPECT_EQ(rainHint(corn, text), std::nullopt) << text;
  EXPECT_EQ(rainHint(Crop(), "5"), std::nullopt);
}

TEST(CapacityHint, TellsWhatThePlantPumps) {
  IrrigationCosts plant;
  EXPECT_EQ(capacityHint(plant, "125", "100"), std::nullopt);
  plant.GPM = 500;
  plant.dblEstHours = 1000;
  const double most = plant.getMaxInches(125);
  const auto hint = capacityHint(plant, "125", std::to_string(most + 1));
  ASSERT_TRUE(hint);
  EXPECT_NE(hint->find("pumps no more than"), std::string::npos);
  EXPECT_EQ(capacityHint(plant, "125", std::to_string(most - 1)), std::nullopt);
  EXPECT_EQ(capacityHint(plant, "0", "10"), std::nullopt);
  EXPECT_EQ(capacityHint(plant, "1e400", "10"), std::nullopt);
}

TEST(MissingInput, IsToldInTheOrderOfThePage) {
  ScenarioInputs inputs;
  const auto missing = [&] {
    const auto found = missingInput(inputs);
    return found ? found->text : std::string();
  };
  EXPECT_EQ(missing(), "Enter the total acres");
  inputs.txtArea = "125 acres";
  EXPECT_EQ(missing(), "Correct the total acres");
  inputs.txtArea = "125";
  EXPECT_EQ(missing(), "Enter the gross irrigation");
  inputs.txtMax = "0.001";
  EXPECT_EQ(missing(), "The water comes to less than half an acre-inch");
  inputs.txtMax = "14";
  getVolume(inputs);
  EXPECT_EQ(missing(), "Enter the annual rainfall");
  inputs.txtAnnRain = "16";
  EXPECT_EQ(missing(), "Choose a land split");
  inputs.Option1[3] = true;
  EXPECT_EQ(missing(), "Tick the crops to compare");
  inputs.cr = {{false, "", ""}, {true, "", ""}};
  EXPECT_EQ(missing(), "");
  EXPECT_TRUE(ready(inputs));
}

TEST(WaterSplits, AreCountedAsARunCountsThem) {
  EXPECT_EQ(waterSplits(1, 10), 1U);
  EXPECT_EQ(waterSplits(2, 10), 11U);
  EXPECT_EQ(waterSplits(3, 10), 66U);
  EXPECT_EQ(waterSplits(4, 20), 1771U);
  EXPECT_EQ(waterSplits(3, 0), std::nullopt);
  EXPECT_EQ(waterSplits(3, -1), std::nullopt);
}

}  // namespace
}  // namespace verdalis::testing
