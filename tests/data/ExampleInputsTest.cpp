#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "data/FileReader.h"
#include "data/SavedInputs.h"
#include "tests/data/PlainCropReader.h"
#include "tests/data/PlainTarget.h"
#include "tests/support/TemporaryFolder.h"

// The saved inputs of the example farm, with the stock crops.

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::PlainTarget;
using testing::TemporaryFolder;

const fs::path source = VERDALIS_SOURCE_DIR;
const fs::path example = source / "examples/high-plains/inputs.txt";

class ExampleInputs : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::copy(source / "crops", home_ / "crops", fs::copy_options::recursive);
    FileReader reader(home_.path());
    reader.Initialize();
    library = reader.cropCollection;
    for (const auto& crop : library)
      target.rows.push_back(crop);
    complete = loadInputs(example, target);
  }

  CropScenario library;
  PlainTarget target;
  bool complete = false;

 private:
  TemporaryFolder home_{"example"};
};

TEST_F(ExampleInputs, LoadCompletely) {
  EXPECT_TRUE(complete);
  EXPECT_EQ(target.events.back(), "refresh");
  EXPECT_TRUE(target.has("split " + target.general.splitIndex));
  EXPECT_TRUE(target.plant.active);
  EXPECT_TRUE(fuelPerformance(target.plant.FuelType).has_value());
  EXPECT_EQ(fuelPerformance(target.plant.FuelType), target.plant.NPC);
}

TEST_F(ExampleInputs, HaveABlockForEveryCrop) {
  ASSERT_EQ(library.Count(), 7);
  const TemporaryFolder folder;
  const auto lines = testing::plainLines(folder.read(example));
  ASSERT_EQ(lines.size(), 16U + 7U * 34U);
  for (long i = 1; i <= library.Count(); ++i) {
    const std::size_t at = 16 + 34 * static_cast<std::size_t>(i - 1);
    const Crop& crop = *library.Item(i);
    EXPECT_EQ(lines[at], crop.cropType);
    EXPECT_EQ(std::strtod(lines[at + 1].c_str(), nullptr), crop.price);
    EXPECT_EQ(std::strtod(lines[at + 2].c_str(), nullptr), crop.maxYield);
    EXPECT_EQ(std::strtod(lines[at + 33].c_str(), nullptr), crop.inputCosts.FertilizerApplication);
    EXPECT_EQ(crop.price > 0, crop.cropType != "Fallow") << crop.cropType;
    EXPECT_GT(crop.inputCosts.Tillage, 0) << crop.cropType;
  }
}

TEST_F(ExampleInputs, AreUnchangedWhenSavedAgain) {
  const TemporaryFolder folder;
  ASSERT_TRUE(saveInputs(folder / "inputs.txt", target.general, target.plant, library, target.has("trends")));
  EXPECT_EQ(folder.read("inputs.txt"), folder.read(example));
}

}  // namespace
}  // namespace verdalis
