#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/charts/drawings.h"

namespace verdalis {
namespace {

using testing::areasOf;
using testing::hasText;
using testing::linesOf;
using testing::PlainMeasure;
using testing::textsOf;

const PlainMeasure measure;
const NumberStyle dollars{"$", "", 0, true};
const NumberStyle inches{"", " in", 0, false};

/// Net returns by water, as a farm has them.
Chart waterChart() {
  LineChart data{
      {"gross inches over the farm", inches}, {"", dollars}, {{}}, {}, {"Corn", "Wheat", "Fallow"}, {}};
  data.strip = ChartStrip{};
  for (std::size_t i = 0; i <= 13; ++i) {
    const double x = 2 + 2.0 * static_cast<double>(i);
    data.lines[0].points.push_back({x, 43000 - 60 * (x - 22) * (x - 22), i});
    data.strip->boxes.push_back({x - 0.8, x + 0.8, {i < 4 ? std::size_t{1} : std::size_t{0}, 0}});
  }
  data.markers = {{ChartMarker::Kind::now, 14, "now 14 in"}, {ChartMarker::Kind::best, 22, "most at 22 in"}};
  return {"Best net return of the farm", "", data, {}};
}

TEST(LineLayout, TicksAreRoundAndShort) {
  const Drawing drawing = layOut(waterChart(), 700, 420, measure);
  for (const char* text : {"$20k", "$40k", "Best net return of the farm", "gross inches over the farm",
                           "now 14 in", "most at 22 in"}) {
    EXPECT_TRUE(hasText(drawing, text)) << text;
  }
}

TEST(LineLayout, TheLegendNamesOnlyTheCategoriesOfTheStrip) {
  const Drawing drawing = layOut(waterChart(), 700, 420, measure);
  EXPECT_TRUE(hasText(drawing, "Corn"));
  EXPECT_TRUE(hasText(drawing, "Wheat"));
  EXPECT_FALSE(hasText(drawing, "Fallow"));
}

TEST(LineLayout, EachPointPicksItsIndexFromAnywhereAboveIt) {
  const Chart chart = waterChart();
  const Drawing drawing = layOut(chart, 700, 420, measure);
  std::size_t points = 0;
  for (const Target& target : drawing.targets) {
    if (target.kind != Target::Kind::point) continue;
    ++points;
    EXPECT_EQ(target.pick, ChartPick(target.column));
    const Target* found = targetAt(drawing, {target.at.x + 3, (target.reach.top + target.reach.bottom) / 2});
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->column, target.column);
  }
  EXPECT_EQ(points, 14U);
  const auto box = std::find_if(drawing.targets.begin(), drawing.targets.end(), [](const Target& target) {
    return target.kind == Target::Kind::box && target.column == 3;
  });
  ASSERT_NE(box, drawing.targets.end());
  EXPECT_EQ(box->pick, ChartPick(3));
  EXPECT_EQ(tipOf(chart, *box), "7 to 9 in\nWheat, Corn");
}

TEST(LineLayout, TheTipTellsValuesAndCrops) {
  const Chart chart = waterChart();
  const Drawing drawing = layOut(chart, 700, 420, measure);
  EXPECT_EQ(tipOf(chart, drawing.targets[0]), "2 in\n$19,000\nWheat, Corn");
  EXPECT_EQ(targetAt(drawing, {0, 0}), nullptr);
}

TEST(LineLayout, KeysGoFromPointToPoint) {
  const Drawing drawing = layOut(waterChart(), 700, 420, measure);
  const Target* at = drawing.targets.data();
  for (int i = 0; i < 20; ++i)
    at = &targetBeside(drawing, *at, Direction::right);
  EXPECT_EQ(at->kind, Target::Kind::point);
  EXPECT_EQ(at->column, 13U);
  const Target& below = targetBeside(drawing, *at, Direction::down);
  EXPECT_EQ(below.kind, Target::Kind::box);
  EXPECT_EQ(below.column, 13U);
  EXPECT_EQ(&targetBeside(drawing, below, Direction::up), at);
  EXPECT_EQ(targetBeside(drawing, *at, Direction::left).column, 12U);
}

TEST(LineLayout, TextsOfMarkersAtTheEdgeAndSideBySideAreWhole) {
  Chart chart = waterChart();
  std::get<LineChart>(chart.data).markers = {{ChartMarker::Kind::now, 28, "now 28 in"},
                                             {ChartMarker::Kind::best, 27.8, "most at 27.8 in"},
                                             {ChartMarker::Kind::change, 2, "corn from here"},
                                             {ChartMarker::Kind::change, 2.6, "wheat from here"}};
  const Drawing drawing = layOut(chart, 500, 400, measure);
  for (const char* text : {"now 28 in", "most at 27.8 in", "corn from here", "wheat from here"})
    EXPECT_TRUE(hasText(drawing, text)) << text;
  EXPECT_EQ(testing::faultOf(drawing, measure), "");
}

TEST(LineLayout, ManyPointsAreThinnedToThePixelsAndKeepTheirPeaks) {
  LineChart data{{}, {}, {{}}, {}, {}, {}};
  for (std::size_t i = 0; i < 100000; ++i) {
    const double x = static_cast<double>(i);
    data.lines[0].points.push_back({x, i == 77777 ? 900.0 : std::sin(x / 5000) * 100, {}});
  }
  const Drawing drawing = layOut({"", "", data, {}}, 800, 400, measure);
  const std::vector<DrawnLine> curves = linesOf(drawing, Ink::series);
  ASSERT_EQ(curves.size(), 1U);
  EXPECT_LE(curves[0].points.size(), 4U * 801U);
  EXPECT_TRUE(areasOf(drawing, Ink::series).empty()) << "marks that would touch each other";
  EXPECT_TRUE(std::any_of(drawing.targets.begin(), drawing.targets.end(),
                          [](const Target& target) { return target.column == 77777; }));
}

TEST(LineLayout, AValueThatIsMissingIsAGap) {
  LineChart data{{}, {}, {{}}, {}, {}, {}};
  for (const double y : {1.0, 2.0, std::nan(""), 4.0, 5.0})
    data.lines[0].points.push_back({static_cast<double>(data.lines[0].points.size()), y, {}});
  const Drawing drawing = layOut({"", "", data, {}}, 400, 300, measure);
  EXPECT_EQ(linesOf(drawing, Ink::series).size(), 2U);
  EXPECT_EQ(drawing.targets.size(), 4U);
}

TEST(LineLayout, SeriesAreToldApartWithoutColour) {
  LineChart data{{}, {}, {}, {}, {}, {}};
  for (const char* name : {"one", "two", "three"})
    data.lines.push_back({name, {{0, 1, {}}, {10, static_cast<double>(data.lines.size()), {}}}, true, true});
  const Drawing drawing = layOut({"", "", data, {}}, 500, 300, measure);
  const std::vector<DrawnLine> curves = linesOf(drawing, Ink::series);
  const std::vector<DrawnArea> marks = areasOf(drawing, Ink::series);
  ASSERT_EQ(curves.size(), 6U) << "the legend has one of each too";
  EXPECT_NE(curves[3].dash, curves[4].dash);
  EXPECT_NE(curves[4].dash, curves[5].dash);
  EXPECT_NE(marks[3].corners.size(), marks[5].corners.size());
  for (const char* name : {"one", "two", "three"})
    EXPECT_TRUE(hasText(drawing, name));
}

TEST(LineLayout, OnePointAndEqualValuesHaveAnAxis) {
  LineChart data{{"", inches}, {"", dollars}, {{}}, {}, {}, {}};
  data.lines[0].points = {{14, 37117, 0}};
  EXPECT_EQ(layOut({"", "", data, {}}, 400, 300, measure).targets.size(), 1U);
  data.lines[0].points = {{14, 0, 0}, {15, 0, 1}};
  EXPECT_EQ(layOut({"", "", data, {}}, 400, 300, measure).targets.size(), 2U);
}

TEST(LineLayout, LongNamesAreShortened) {
  Chart chart = waterChart();
  auto& data = std::get<LineChart>(chart.data);
  data.categories[0] = std::string(500, 'x');
  data.x.title = std::string(500, 'y');
  chart.title = std::string(500, 'z');
  const Drawing drawing = layOut(chart, 300, 300, measure);
  EXPECT_EQ(testing::faultOf(drawing, measure), "");
  const std::vector<DrawnText> texts = textsOf(drawing);
  EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const DrawnText& text) {
    return text.text.starts_with("zzz") && text.text.ends_with("…");
  }));
}

}  // namespace
}  // namespace verdalis
