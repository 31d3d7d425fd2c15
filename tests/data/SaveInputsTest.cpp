#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "data/SavedInputs.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/SampleInputs.h"
#include "tests/data/SampleValues.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::cornOfSample;
using testing::fallowOfSample;
using testing::generalOfSample;
using testing::plantOfSample;
using testing::TemporaryFolder;

CropScenario sampleCrops() {
  CropScenario crops;
  crops.Add(cornOfSample());
  crops.Add(fallowOfSample());
  return crops;
}

/// The file saved for these values.
std::string saved(const GeneralInputs& general, const IrrigationCosts& plant, const CropScenario& crops,
                  bool trendEnabled) {
  const TemporaryFolder folder;
  EXPECT_TRUE(saveInputs(folder / "inputs.txt", general, plant, crops, trendEnabled));
  EXPECT_EQ(folder.names(), std::vector<std::string>{"inputs.txt"});
  return folder.read("inputs.txt");
}

std::string savedCrop(const std::shared_ptr<Crop>& crop) {
  CropScenario crops;
  crops.Add(crop);
  const std::string file = saved({}, {}, crops, false);
  const std::string head = saved({}, {}, {}, false);
  EXPECT_TRUE(file.starts_with(head));
  return file.substr(head.size());
}

// Checks the sample: with no number twice, exchanged lines cannot go unnoticed.
TEST(SaveInputs, SampleContainsNoNumberTwice) {
  auto lines = testing::plainLines(testing::sampleGeneral + testing::samplePlant + testing::sampleCorn);
  EXPECT_EQ(lines.size(), 5U + 11U + 34U);
  lines.erase(std::remove_if(lines.begin(), lines.end(),
                             [](const auto& line) { return line == "True" || line == "False"; }),
              lines.end());
  std::sort(lines.begin(), lines.end());
  EXPECT_EQ(std::adjacent_find(lines.begin(), lines.end()), lines.end());
}

TEST(SaveInputs, WritesTheSampleLineByLine) {
  EXPECT_EQ(saved(generalOfSample(), plantOfSample(), sampleCrops(), false), testing::sampleInputs);
}

TEST(SaveInputs, WritesTheTrendKeywordLast) {
  EXPECT_EQ(saved(generalOfSample(), plantOfSample(), sampleCrops(), true),
            testing::sampleInputs + "batch_enabled\r\n");
  EXPECT_EQ(saved(generalOfSample(), plantOfSample(), {}, true),
            testing::sampleGeneral + testing::samplePlant + "batch_enabled\r\n");
}

TEST(SaveInputs, WritesA34LineBlockForEachCropInLibraryOrder) {
  CropScenario crops;
  for (const char* name : {"Wheat", "Corn", "Fallow", "Mine", "Corn"}) {
    crops.Add(std::make_shared<Crop>());
    crops.Item(crops.Count())->cropType = name;
  }
  const auto lines = testing::plainLines(saved({}, {}, crops, false));
  ASSERT_EQ(lines.size(), 16U + 5U * 34U);
  for (long i = 1; i <= crops.Count(); ++i)
    EXPECT_EQ(lines.at(16 + 34 * static_cast<std::size_t>(i - 1)), crops.Item(i)->cropType);
}

TEST(SaveInputs, WritesEmptyTextsAsEmptyLines) {
  EXPECT_EQ(saved({}, {}, {}, false),
            "\r\n\r\n\r\n\r\n\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\nFalse\r\n\r\n0\r\n");
}

TEST(SaveInputs, WritesGeneralInputsUnchanged) {
  const GeneralInputs general{"0", "1,200", " 14 ", "eighty", "17.50"};
  EXPECT_TRUE(saved(general, {}, {}, false).starts_with("0\r\n1,200\r\n 14 \r\neighty\r\n17.50\r\n"));
}

TEST(SaveInputs, WritesEachBooleanToItsOwnLine) {
  for (const std::size_t line : {6U, 9U, 12U}) {
    Crop crop;
    (line == 6   ? crop.inputCosts.NOptimal
     : line == 9 ? crop.inputCosts.POptimal
                 : crop.inputCosts.SeedOptimal) = true;
    const auto lines = testing::plainLines(savedCrop(std::make_shared<Crop>(crop)));
    ASSERT_EQ(lines.size(), 34U);
    for (const std::size_t other : {6U, 9U, 12U})
      EXPECT_EQ(lines.at(other - 1), other == line ? "True" : "False") << line << ' ' << other;
  }
}

TEST(SaveInputs, WritesANumberSetTo0AsANonEmptyLine) {
  auto crop = std::make_shared<Crop>();
  const std::vector<Number inputCosts::*> numbers{
      &inputCosts::HarvestBasePerAcre, &inputCosts::HarvestExceedBu,  &inputCosts::HarvestExceedRate,
      &inputCosts::HarvestHauling,     &inputCosts::HarvestFlatRate,  &inputCosts::AlfalfaSwathing,
      &inputCosts::AlfalfaSwathingNum, &inputCosts::AlfalfaRaking,    &inputCosts::AlfalfaRakingNum,
      &inputCosts::AlfalfaBaling,      &inputCosts::AlfalfaBalingNum, &inputCosts::AlfalfaPerTon,
      &inputCosts::AlfalfaStand};
  for (std::size_t set = 0; set < numbers.size(); ++set) {
    for (std::size_t i = 0; i < numbers.size(); ++i)
      crop->inputCosts.*numbers[i] = i == set ? Number(0) : Number();
    const auto lines = testing::plainLines(savedCrop(crop));
    ASSERT_EQ(lines.size(), 34U);
    for (std::size_t i = 0; i < numbers.size(); ++i)
      EXPECT_EQ(lines.at(19 + i), i == set ? "0" : "") << "line " << 20 + i;
  }
}

TEST(SaveInputs, WritesNumbersInTheirShortestForm) {
  auto crop = std::make_shared<Crop>();
  crop->price = 0.1 + 0.2;
  crop->maxYield = 1e15;
  crop->inputCosts.NitrogenCost = 100'000;
  crop->inputCosts.NitrogenApplied = 1e-5;
  crop->inputCosts.PCost = 1.5e-7;
  crop->inputCosts.PApplied = -0.0;
  crop->inputCosts.SeedCost = -12.50;
  crop->inputCosts.SeedRate = 1.7976931348623157e308;
  crop->inputCosts.HarvestFlatRate = 5e-324;
  const auto lines = testing::plainLines(savedCrop(crop));
  EXPECT_EQ(lines.at(1), "0.30000000000000004");
  EXPECT_EQ(lines.at(2), "1E+15");
  EXPECT_EQ(lines.at(3), "100000");
  EXPECT_EQ(lines.at(4), "0.00001");
  EXPECT_EQ(lines.at(6), "1.5E-07");
  EXPECT_EQ(lines.at(7), "0");
  EXPECT_EQ(lines.at(9), "-12.5");
  EXPECT_EQ(lines.at(10), "1.7976931348623157E+308");
  EXPECT_EQ(lines.at(23), "5E-324");
}

// Values that are not saved have no line.
TEST(SaveInputs, OmitsResultsAndTrendValues) {
  auto crop = cornOfSample();
  crop->inputCost = 1;
  crop->normalFactor = 2;
  crop->Yield = 3;
  crop->soilName = "Silt Loam";
  crop->Custom = true;
  crop->inputCosts.AlfalfaFlat = 4;
  crop->inputCosts.NPerAcre = 5;
  crop->inputCosts.PPerAcre = 6;
  crop->inputCosts.UseBatch = true;
  crop->inputCosts.BatchGeneralCosts = 7;
  EXPECT_EQ(savedCrop(crop), testing::sampleCorn);
  IrrigationCosts plant = plantOfSample();
  plant.hours = 8;
  plant.dblMaxInches = 9;
  plant.UseBatch = true;
  plant.BatchIrrigationCosts = 10;
  EXPECT_EQ(saved(generalOfSample(), plant, {}, false), testing::sampleGeneral + testing::samplePlant);
}

TEST(SaveInputs, WritesNamesInUtf8) {
  auto crop = std::make_shared<Crop>();
  crop->cropType = "Ma\xC3\xAFs";
  EXPECT_TRUE(savedCrop(crop).starts_with("Ma\xC3\xAFs\r\n"));
}

TEST(SaveInputs, ReplacesTheOldFile) {
  const TemporaryFolder folder;
  folder.write("inputs.txt", std::string(50'000, 'x'));
  EXPECT_TRUE(saveInputs(folder / "inputs.txt", generalOfSample(), plantOfSample(), sampleCrops(), false));
  EXPECT_EQ(folder.read("inputs.txt"), testing::sampleInputs);
}

// A run continues if its inputs cannot be saved, so nothing is thrown.
TEST(SaveInputs, ReturnsFalseOnFailureWithoutThrowing) {
  const TemporaryFolder folder;
  EXPECT_FALSE(
      saveInputs(folder / "missing/inputs.txt", generalOfSample(), plantOfSample(), sampleCrops(), true));
  fs::create_directory(folder / "inputs.txt");
  EXPECT_FALSE(saveInputs(folder / "inputs.txt", generalOfSample(), plantOfSample(), sampleCrops(), true));
  EXPECT_TRUE(fs::is_directory(folder / "inputs.txt"));
  EXPECT_EQ(folder.names(), std::vector<std::string>{"inputs.txt"});
}

}  // namespace
}  // namespace verdalis
