#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "tests/charts/drawings.h"

namespace verdalis {
namespace {

using testing::areasOf;
using testing::hasText;
using testing::linesOf;
using testing::PlainMeasure;

const PlainMeasure measure;

Chart mapChart(std::size_t columns, std::size_t rows, bool byCategory) {
  MapChart data;
  data.x = {"price of corn", {"$", "", 2, false}};
  data.y = {"rain", {"", " in", 0, false}};
  for (std::size_t x = 0; x < columns; ++x)
    data.xValues.push_back(3 + static_cast<double>(x) * 0.25);
  for (std::size_t y = 0; y < rows; ++y)
    data.yValues.push_back(11 + static_cast<double>(y));
  data.categories = {"Corn", "Wheat", "Corn and Wheat"};
  data.valueStyle = {"$", "", 0, true};
  for (std::size_t y = 0; y < rows; ++y) {
    for (std::size_t x = 0; x < columns; ++x) {
      data.value.push_back(1000 * static_cast<double>(x + y));
      if (byCategory) data.category.push_back(x + y < columns / 2 ? 1 : x < columns / 2 ? 2 : 0);
    }
  }
  data.now = ChartLine::Point{3.5, 14, {}};
  data.picks = true;
  return {"Crops by price and rain", "", data, {}};
}

TEST(MapLayout, CellsPickTheirIndexWithTheFirstRowBelow) {
  const Chart chart = mapChart(5, 4, true);
  const Drawing drawing = layOut(chart, 500, 400, measure);
  ASSERT_EQ(drawing.targets.size(), 20U);
  const auto cell = [&](std::size_t index) {
    return *std::find_if(drawing.targets.begin(), drawing.targets.end(),
                         [&](const Target& target) { return target.pick == ChartPick(index); });
  };
  EXPECT_LT(cell(0).at.x, cell(1).at.x);
  EXPECT_GT(cell(0).at.y, cell(5).at.y);
  EXPECT_EQ(tipOf(chart, cell(1)), "$3.25\n11 in\nWheat\n$1,000");
  EXPECT_EQ(targetBeside(drawing, cell(1), Direction::up).pick, ChartPick(6));
  EXPECT_EQ(targetBeside(drawing, cell(6), Direction::down).pick, ChartPick(1));
  EXPECT_EQ(targetBeside(drawing, cell(6), Direction::right).pick, ChartPick(7));
  EXPECT_EQ(targetBeside(drawing, cell(0), Direction::left).pick, ChartPick(0));
}

TEST(MapLayout, CategoriesHaveLinesOfTheirOwn) {
  const Drawing drawing = layOut(mapChart(5, 4, true), 500, 400, measure);
  std::set<std::size_t> hatched;
  for (const DrawnLine& line : linesOf(drawing, Ink::hatch))
    hatched.insert(line.paint.index);
  EXPECT_EQ(hatched, (std::set<std::size_t>{1, 2}));
  for (const char* name : {"Corn", "Wheat", "Corn and Wheat", "now"})
    EXPECT_TRUE(hasText(drawing, name)) << name;
}

TEST(MapLayout, ValuesStandInTheCellsIfAllHaveRoom) {
  EXPECT_TRUE(hasText(layOut(mapChart(5, 4, false), 600, 400, measure), "$7,000"));
  EXPECT_FALSE(hasText(layOut(mapChart(5, 4, false), 200, 200, measure), "$7,000"));
  EXPECT_TRUE(hasText(layOut(mapChart(5, 4, false), 600, 400, measure), "$0 to $7,000"));
}

TEST(MapLayout, LargeMapsAreComplete) {
  const Drawing drawing = layOut(mapChart(101, 101, false), 500, 400, measure);
  EXPECT_EQ(drawing.targets.size(), 101U * 101U);
  EXPECT_EQ(testing::faultOf(drawing, measure), "");
  EXPECT_GT(areasOf(drawing, Ink::value).size(), 101U);
}

TEST(MapLayout, MapsWithMoreCellsThanPixelsAreThinned) {
  const Drawing drawing = layOut(mapChart(2000, 50, true), 400, 300, measure);
  EXPECT_LE(drawing.targets.size(), 400U * 50U);
  EXPECT_EQ(testing::faultOf(drawing, measure), "");
}

TEST(MapLayout, AMapThatDoesNotFitTogetherShowsNothing) {
  Chart chart = mapChart(5, 4, true);
  std::get<MapChart>(chart.data).category.pop_back();
  EXPECT_TRUE(hasText(layOut(chart, 500, 400, measure), "No values"));
  chart = mapChart(5, 4, false);
  std::get<MapChart>(chart.data).xValues[2] = std::nan("");
  EXPECT_TRUE(hasText(layOut(chart, 500, 400, measure), "No values"));
}

}  // namespace
}  // namespace verdalis
