#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

// The stock crop files, read byte by byte with a separate parser, so that an error in the program's reader
// cannot hide an error in a file.

namespace {

constexpr std::size_t columns = 11;
constexpr int firstRain = 11;
constexpr int lastRain = 21;

struct StockCrop {
  std::string name;
  std::string file;
  std::string units;
  std::size_t lastRow;
  std::size_t decimals;
};

void PrintTo(const StockCrop& crop, std::ostream* out) {
  *out << crop.name;
}

const std::vector<StockCrop>& stockCrops() {
  static const std::vector<StockCrop> crops = {
      {"Alfalfa", "alfalfa.txt", "ton,tons", 22, 3},
      {"Corn", "corn.txt", "bu.,bushels", 24, 1},
      {"Grain Sorghum", "grain sorghum.txt", "bu.,bushels", 20, 1},
      {"Soybeans", "soybeans.txt", "bu.,bushels", 22, 2},
      {"Sunflower", "sunflower.txt", "lb,pounds", 22, 0},
      {"Wheat", "wheat.txt", "bu.,bushels", 22, 1},
  };
  return crops;
}

struct GivenRow {
  std::string crop;
  std::size_t water;
  std::array<double, columns> yields;
};

// The known yields per acre that the tables are based on, for 11 to 21 inches of rain.
const std::vector<GivenRow>& givenRows() {
  static const std::vector<GivenRow> rows = {
      {"Corn", 0, {0, 0, 0, 0, 0, 0, 0, 11.1, 25.6, 39.9, 54}},
      {"Corn", 6, {51.8, 61.4, 71.2, 81.1, 91.1, 101.2, 111.5, 121.9, 132.3, 142.7, 152.9}},
      {"Corn", 12, {131.6, 140.6, 149.7, 158.7, 167.4, 175.3, 182.1, 187.5, 191.7, 194.9, 197.4}},
      {"Corn", 24, {203.8, 205.4, 206.8, 208, 209.1, 210, 210.8, 211.5, 212.2, 212.7, 213.3}},
      {"Alfalfa", 0, {1.391, 1.616, 1.854, 2.105, 2.368, 2.643, 2.93, 3.227, 3.535, 3.853, 4.181}},
      {"Alfalfa", 6, {3.191, 3.479, 3.776, 4.083, 4.399, 4.724, 5.057, 5.396, 5.742, 6.094, 6.451}},
      {"Alfalfa", 12, {5.061, 5.405, 5.756, 6.112, 6.473, 6.838, 7.205, 7.572, 7.933, 8.282, 8.607}},
      {"Alfalfa", 22, {8.677, 8.977, 9.229, 9.43, 9.585, 9.707, 9.804, 9.883, 9.95, 10.006, 10.055}},
      {"Grain Sorghum", 0, {0, 0, 4.9, 13.5, 22.5, 31.7, 41, 50.2, 58.3, 68.1, 76.6}},
      {"Grain Sorghum", 6, {67.4, 73.8, 80.3, 86.8, 93.4, 100.1, 106.9, 113.6, 120.3, 126.7, 132.6}},
      {"Grain Sorghum", 12, {116.5, 122.6, 128.6, 134.2, 139.2, 143.3, 146.4, 148.8, 150.7, 152.1, 153.3}},
      {"Grain Sorghum", 20, {150, 151.6, 152.9, 154.1, 155, 155.8, 156.5, 157.1, 157.6, 158.1, 158.5}},
      {"Soybeans", 0, {0, 0, 0, 0, 1.69, 5.11, 8.63, 12.24, 15.92, 19.65, 23.41}},
      {"Soybeans", 6, {20.99, 23.63, 26.38, 29.23, 32.15, 35.12, 38.13, 41.17, 44.22, 47.25, 50.21}},
      {"Soybeans", 12, {46.19, 48.54, 50.98, 53.45, 55.9, 58.22, 60.3, 62.04, 63.43, 64.5, 65.32}},
      {"Soybeans", 22, {66.71, 67.32, 67.84, 68.28, 68.66, 68.98, 69.25, 69.48, 69.68, 69.86, 70.01}},
      {"Sunflower", 0, {41, 176, 316, 461, 613, 770, 932, 1097, 1263, 1428, 1591}},
      {"Sunflower", 6, {1517, 1638, 1759, 1879, 1999, 2119, 2239, 2359, 2480, 2599, 2717}},
      {"Sunflower", 12, {2475, 2578, 2685, 2792, 2898, 3000, 3092, 3172, 3236, 3285, 3322}},
      {"Sunflower", 22, {3311, 3344, 3371, 3394, 3414, 3431, 3445, 3458, 3469, 3478, 3486}},
      {"Wheat", 0, {0, 0, 0, 2.2, 7.6, 13, 18.4, 23.8, 29, 34.2, 39.2}},
      {"Wheat", 6, {26.9, 31, 35.2, 39.4, 43.8, 48.1, 52.4, 56.6, 60.4, 63.6, 66}},
      {"Wheat", 12, {54.9, 58.7, 62.3, 65.2, 67.5, 69.2, 70.4, 71.3, 72.1, 72.6, 73.1}},
      {"Wheat", 22, {73.5, 74, 74.5, 74.9, 75.3, 75.6, 75.8, 76.1, 76.3, 76.5, 76.7}},
  };
  return rows;
}

std::filesystem::path cropFolder() {
  return std::filesystem::path(VERDALIS_SOURCE_DIR) / "crops";
}

std::string bytesOf(const StockCrop& crop) {
  std::ifstream file(cropFolder() / crop.file, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The lines that end with CR LF, without it. An incomplete last line is not included.
std::vector<std::string> linesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (auto end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n", begin)) {
    lines.push_back(bytes.substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

/// The texts of line 9, one per cell; empty if the file has no such line.
std::vector<std::string> cellTexts(const StockCrop& crop) {
  const auto lines = linesOf(bytesOf(crop));
  const std::string key = "YIELD_VALUES=";
  if (lines.size() < 9 || !lines[8].starts_with(key)) return {};
  std::istringstream values(lines[8].substr(key.size()));
  std::vector<std::string> texts;
  for (std::string text; std::getline(values, text, ',');)
    texts.push_back(text);
  return texts;
}

double number(const std::string& text) {
  double value = -1;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  EXPECT_TRUE(fault == std::errc() && end == text.data() + text.size()) << "no number: \"" << text << '"';
  return value;
}

/// The yields by row (net irrigation) and column (rain from 11 inches). A missing cell is -1, which is never
/// a yield.
std::vector<std::array<double, columns>> tableOf(const StockCrop& crop) {
  const auto texts = cellTexts(crop);
  std::vector<std::array<double, columns>> table(crop.lastRow + 1);
  for (auto& row : table)
    row.fill(-1);
  for (std::size_t i = 0; i < std::min(texts.size(), table.size() * columns); ++i) {
    table[i / columns][i % columns] = number(texts[i]);
  }
  return table;
}

double cell(const StockCrop& crop, std::size_t water, int rain) {
  return tableOf(crop).at(water).at(static_cast<std::size_t>(rain - firstRain));
}

const StockCrop& cropNamed(const std::string& name) {
  const auto& crops = stockCrops();
  return *std::find_if(crops.begin(), crops.end(), [&](const StockCrop& crop) { return crop.name == name; });
}

std::string wholeNumbers(std::size_t first, std::size_t last) {
  std::string text = std::to_string(first);
  for (auto i = first + 1; i <= last; ++i)
    text += "," + std::to_string(i);
  return text;
}

class StockCrops : public testing::TestWithParam<StockCrop> {};

TEST_P(StockCrops, HasNineLinesEndedByCrLf) {
  const auto bytes = bytesOf(GetParam());
  EXPECT_EQ(linesOf(bytes).size(), 9U);
  EXPECT_TRUE(bytes.ends_with("\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 9);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 9);
}

TEST_P(StockCrops, HasNameUnitsRainAndIrrigationInTheRightLines) {
  const auto lines = linesOf(bytesOf(GetParam()));
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[0], "CROP=" + GetParam().name);
  EXPECT_EQ(lines[2], "UNITS=" + GetParam().units);
  EXPECT_EQ(lines[4], "ANNUAL_RAIN=" + wholeNumbers(firstRain, lastRain));
  EXPECT_EQ(lines[6], "EFF_IRRIG=" + wholeNumbers(0, GetParam().lastRow));
  EXPECT_TRUE(lines[8].starts_with("YIELD_VALUES="));
  for (const std::size_t even : {1U, 3U, 5U, 7U})
    EXPECT_EQ(lines[even], "") << "line " << even + 1;
}

TEST_P(StockCrops, HasOneValuePerCell) {
  EXPECT_EQ(cellTexts(GetParam()).size(), (GetParam().lastRow + 1) * columns);
}

TEST_P(StockCrops, WritesYieldsInShortestForm) {
  for (const auto& text : cellTexts(GetParam())) {
    std::array<char, 64> shortest{};
    const auto end = std::to_chars(shortest.data(), shortest.data() + shortest.size(), number(text),
                                   std::chars_format::fixed)
                         .ptr;
    ASSERT_EQ(text, std::string(shortest.data(), end));
    const auto point = std::min(text.find('.'), text.size() - 1);
    EXPECT_LE(text.size() - 1 - point, GetParam().decimals) << text;
  }
}

TEST_P(StockCrops, ContainsTheKnownRows) {
  const auto table = tableOf(GetParam());
  int compared = 0;
  for (const auto& row : givenRows()) {
    if (row.crop != GetParam().name) continue;
    ++compared;
    for (std::size_t c = 0; c < columns; ++c) {
      EXPECT_EQ(table.at(row.water)[c], row.yields[c])
          << row.water << " inches of irrigation, " << firstRain + static_cast<int>(c) << " inches of rain";
    }
  }
  EXPECT_EQ(compared, 4);
}

TEST_P(StockCrops, YieldNeverFallsAsRainRises) {
  const auto table = tableOf(GetParam());
  for (std::size_t r = 0; r < table.size(); ++r) {
    for (std::size_t c = 1; c < columns; ++c) {
      EXPECT_GE(table[r][c], table[r][c - 1]) << "row " << r << ", column " << c;
    }
  }
}

TEST_P(StockCrops, YieldNeverFallsAsWaterRisesExceptSunflowerByOnePound) {
  const auto table = tableOf(GetParam());
  for (std::size_t r = 1; r < table.size(); ++r) {
    for (std::size_t c = 0; c < columns; ++c) {
      const int rain = firstRain + static_cast<int>(c);
      if (GetParam().name == "Sunflower" && r == GetParam().lastRow && rain >= 20) {
        EXPECT_EQ(table[r][c], table[r - 1][c] - 1) << rain << " inches of rain";
      } else {
        EXPECT_GE(table[r][c], table[r - 1][c]) << "row " << r << ", column " << c;
      }
    }
  }
}

// In wet years an inch near the last row adds less than half the yield of an inch in the middle of the table.
TEST_P(StockCrops, YieldLevelsOffTowardsTheLastRowsIfRainIsHigh) {
  const auto table = tableOf(GetParam());
  const auto last = GetParam().lastRow;
  for (int rain = 18; rain <= lastRain; ++rain) {
    const auto c = static_cast<std::size_t>(rain - firstRain);
    const double lastInch = (table[last][c] - table[last - 3][c]) / 3;
    const double middleInch = (table[12][c] - table[6][c]) / 6;
    EXPECT_LT(lastInch, middleInch / 2) << rain << " inches of rain";
  }
}

// A yield of at most 1 would be read as a fraction of the maximum yield, so that a nearly failed crop looks
// like a good one. So the tables contain no such cell except the known one.
TEST_P(StockCrops, HasNoCellThatReadsAsAFractionExceptOneOfCorn) {
  const auto table = tableOf(GetParam());
  int fractions = 0;
  for (const auto& row : table) {
    fractions +=
        static_cast<int>(std::count_if(row.begin(), row.end(), [](double y) { return y > 0 && y <= 1; }));
  }
  EXPECT_EQ(fractions, GetParam().name == "Corn" ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Files, StockCrops, testing::ValuesIn(stockCrops()),
                         [](const testing::TestParamInfo<StockCrop>& crop) {
                           std::string name = crop.param.name;
                           name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
                           return name;
                         });

TEST(StockCropsExtraCells, CornYieldsFromTheFirstInchAt15InchesOfRain) {
  const auto& corn = cropNamed("Corn");
  EXPECT_EQ(cell(corn, 1, 15), 0.4);
  EXPECT_EQ(cell(corn, 1, 14), 0);
  EXPECT_GT(cell(corn, 1, 16), 1);
  EXPECT_GT(cell(corn, 1, 17), cell(corn, 1, 16));
  EXPECT_GT(cell(corn, 1, 18), cell(corn, 1, 17));
}

TEST(StockCropsExtraCells, SunflowerPeaksOneRowBeforeTheLast) {
  EXPECT_EQ(cell(cropNamed("Sunflower"), 21, 20), 3479);
  EXPECT_EQ(cell(cropNamed("Sunflower"), 21, 21), 3487);
}

// Any other file in these folders that is not hidden would become a crop.
TEST(StockCropsFolder, ContainsOnlyTheSixFiles) {
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(cropFolder())) {
    if (!entry.is_directory())
      found.push_back(std::filesystem::relative(entry.path(), cropFolder()).string());
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> expected;
  for (const auto& crop : stockCrops())
    expected.push_back(crop.file);
  EXPECT_EQ(found, expected);
}

}  // namespace
