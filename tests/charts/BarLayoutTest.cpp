#include <gtest/gtest.h>

#include <cmath>

#include "tests/charts/drawings.h"

namespace verdalis {
namespace {

using testing::areasOf;
using testing::hasText;
using testing::PlainMeasure;

const PlainMeasure measure;

Chart barChart() {
  BarChart data;
  data.x = {"net return of the farm", {"$", "", 0, true}};
  data.bars = {{"Price of Corn", 30000, 44000, "$4.14", "$5.06", BarChart::Bar::Kind::plain, 0},
               {"Fuel", 39000, 35000, "$2.70", "$3.30", BarChart::Bar::Kind::loss, 1},
               {"Rain", 37000, 37000, "15 in", "19 in", BarChart::Bar::Kind::plain, 2}};
  data.base = 37000;
  return {"What matters most", "", data, {}};
}

TEST(BarLayout, NamesAndEndsStandBesideTheBars) {
  const Chart chart = barChart();
  const Drawing drawing = layOut(chart, 600, 300, measure);
  for (const char* text : {"Price of Corn", "$4.14", "$5.06", "15 in", "What matters most"})
    EXPECT_TRUE(hasText(drawing, text)) << text;
  ASSERT_EQ(drawing.targets.size(), 3U);
  EXPECT_EQ(drawing.targets[1].pick, ChartPick(1));
  EXPECT_EQ(tipOf(chart, drawing.targets[1]), "Fuel\n$2.70 to $3.30");
  EXPECT_EQ(&targetBeside(drawing, drawing.targets[0], Direction::down), &drawing.targets[1]);
}

TEST(BarLayout, ABarThatFallsHasItsFirstTextAtTheRight) {
  const Drawing drawing = layOut(barChart(), 600, 300, measure);
  double from = 0;
  double to = 0;
  for (const DrawnText& text : testing::textsOf(drawing)) {
    if (text.text == "$2.70") from = text.at.x;
    if (text.text == "$3.30") to = text.at.x;
  }
  EXPECT_GT(from, to);
  EXPECT_EQ(areasOf(drawing, Ink::loss).size(), 1U);
}

TEST(BarLayout, ABarWithoutLengthIsSeen) {
  const Drawing drawing = layOut(barChart(), 600, 300, measure);
  const DrawnArea last = areasOf(drawing, Ink::plain).back();
  EXPECT_GE(last.corners[1].x - last.corners[0].x, 2);
}

TEST(BarLayout, BarsThatHaveNoRoomAreCounted) {
  Chart chart = barChart();
  auto& data = std::get<BarChart>(chart.data);
  for (int i = 0; i < 97; ++i)
    data.bars.push_back(data.bars[0]);
  const Drawing drawing = layOut(chart, 600, 300, measure);
  EXPECT_TRUE(hasText(drawing, "and " + std::to_string(100 - drawing.targets.size()) + " more"));
  EXPECT_EQ(testing::faultOf(drawing, measure), "");
}

}  // namespace
}  // namespace verdalis
