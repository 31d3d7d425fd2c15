#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "data/StockGrids.h"
#include "tests/data/PlainCropReader.h"
#include "text/encoding.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::plainSplit;
using testing::Texts;

/// The entries of a line of a file, after its key.
Texts entries(const Texts& lines, std::size_t line, const std::string& key) {
  EXPECT_GT(lines.size(), line);
  if (lines.size() <= line) return {};
  EXPECT_TRUE(lines[line].starts_with(key)) << lines[line];
  return plainSplit(lines[line].substr(key.size()));
}

TEST(StockGrids, EqualTheCropFilesCellByCell) {
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(VERDALIS_SOURCE_DIR) / "crops")) {
    if (entry.is_directory()) continue;
    ++files;
    std::ifstream file(entry.path(), std::ios::binary);
    const Texts lines = testing::plainLines(
        std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
    const StockGrid* const grid = stockGrid(entry.path().stem().string());
    ASSERT_NE(grid, nullptr) << entry.path();
    EXPECT_EQ(Texts{std::string(grid->crop)}, entries(lines, 0, "CROP="));
    const Texts rain = entries(lines, 4, "ANNUAL_RAIN=");
    const Texts irrigation = entries(lines, 6, "EFF_IRRIG=");
    const Texts values = entries(lines, 8, "YIELD_VALUES=");
    EXPECT_EQ(grid->firstRain, rain.at(0));
    EXPECT_EQ(grid->lastRain, rain.back());
    EXPECT_EQ(grid->maxIrrigation, irrigation.back());
    const Texts cells = plainSplit(std::string(grid->values));
    ASSERT_EQ(cells.size(), rain.size() * irrigation.size());
    ASSERT_EQ(values.size(), cells.size());
    for (std::size_t i = 0; i < cells.size(); ++i)
      EXPECT_EQ(cells[i], values[i]) << entry.path() << ", cell " << i;
  }
  EXPECT_EQ(files, 6U);
  EXPECT_EQ(stockGrids().size(), files);
}

TEST(StockGrids, DoNotExistForOtherCrops) {
  for (const char* name : {"", "fallow", "Corn", "corn ", "oats"})
    EXPECT_EQ(stockGrid(name), nullptr) << name;
}

}  // namespace
}  // namespace verdalis
