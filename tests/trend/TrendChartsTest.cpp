#include <gmock/gmock.h>

#include "results/figures.h"
#include "tests/trend/TrendTest.h"
#include "trend/trendCharts.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class TrendChartsTest : public TrendTest {
 protected:
  void run(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
    setup.cmdBatchIt.click();
  }
  [[nodiscard]] const Chart& chart() { return *results.chtTrend.chart(); }
  [[nodiscard]] const LineChart& lines() { return std::get<LineChart>(chart().data); }
  [[nodiscard]] const MapChart& map() { return std::get<MapChart>(chart().data); }
  [[nodiscard]] std::string shownNetReturn() const { return results.theResults.lblTotalProfit.caption(); }
  static std::string netReturn(double value) { return dollarsAnAcre(value, "###,###,###"); }

  TrendBest step(double value, const std::vector<Crop>& crops) {
    auto option = std::make_shared<FieldCollection>();
    for (const Crop& crop : crops)
      option->Add(fieldOf(crop, 50, 8));
    return {value, option};
  }
  const TrendedInput price{"Corn Crop Price", {"$", "/ bu."}};
};

TEST_F(TrendChartsTest, EachStepIsAPointThatShowsIt) {
  openVariable();
  run(0, "7, 5, 6");
  ASSERT_TRUE(results.chtTrend.visible());
  const LineChart drawn = lines();
  EXPECT_EQ(drawn.x.title, "Corn Crop Price ($/ bu.)");
  ASSERT_EQ(drawn.lines.at(0).points.size(), 3U);
  const std::vector<double> values{5, 6, 7};
  const std::vector<std::size_t> steps{1, 2, 0};  // the list is not in order
  for (std::size_t i = 0; i < 3; ++i) {
    const ChartLine::Point& point = drawn.lines[0].points[i];
    EXPECT_EQ(point.x, values[i]);
    ASSERT_EQ(point.pick, ChartPick(steps[i]));
    results.chtTrend.pick(*point.pick);
    EXPECT_EQ(results.currentStep(), static_cast<long>(steps[i]) + 1);
    EXPECT_EQ(shownNetReturn(), netReturn(point.y));
  }
  EXPECT_TRUE(results.chtTrend.isReachable());
}

TEST_F(TrendChartsTest, TheStepOnShowIsMarked) {
  openVariable();
  run(0, "5, 6, 7");
  const auto mark = [&] { return lines().markers.back(); };
  EXPECT_EQ(mark().kind, ChartMarker::Kind::now);
  EXPECT_EQ(mark().x, 5);
  EXPECT_EQ(mark().text, "step 1");
  results.cmdBatchStep[0].click();
  EXPECT_EQ(mark().x, 6);
  EXPECT_EQ(mark().text, "step 2");
}

TEST_F(TrendChartsTest, ASwitchOfCropsIsMarkedBetweenItsSteps) {
  const Chart drawn = variableTrendChart(
      {step(3, {wheat(), wheat()}), step(4, {corn(), wheat()}), step(6, {corn(), wheat()})}, price, 1);
  const auto& data = std::get<LineChart>(drawn.data);
  ASSERT_EQ(data.markers.size(), 2U);
  EXPECT_EQ(data.markers[0].kind, ChartMarker::Kind::change);
  EXPECT_EQ(data.markers[0].x, 3.5);
  EXPECT_EQ(data.markers[0].text, "Corn, Wheat");
  EXPECT_EQ(data.categories, (std::vector<std::string>{"Wheat", "Corn"}));
  ASSERT_EQ(data.strip->boxes.size(), 3U);
  EXPECT_EQ(data.strip->boxes[0].from, 2.5);
  EXPECT_EQ(data.strip->boxes[1].from, 3.5);
  EXPECT_EQ(data.strip->boxes[1].to, 5);
  EXPECT_EQ(data.strip->boxes[2].to, 7);
  EXPECT_THAT(data.strip->boxes[1].categories, ElementsAre(1, 0));
  EXPECT_THAT(drawn.table.front(), ElementsAre("Corn Crop Price ($/ bu.)", "Net return per acre", "Crops"));
  EXPECT_EQ(drawn.table.size(), 4U);
  EXPECT_THAT(drawn.summary, ::testing::HasSubstr("The crops change once."));
}

TEST_F(TrendChartsTest, StepsWithoutAnOptionAreLeftOut) {
  const Chart drawn = variableTrendChart(
      {step(3, {wheat()}), {4, nullptr}, {5, std::make_shared<FieldCollection>()}, step(6, {wheat()})}, price,
      std::nullopt);
  const auto& data = std::get<LineChart>(drawn.data);
  EXPECT_EQ(data.lines[0].points.size(), 2U);
  EXPECT_EQ(data.lines[0].points[1].pick, ChartPick(3));
  EXPECT_TRUE(std::get<LineChart>(variableTrendChart({}, price, 0).data).lines[0].points.empty());
}

TEST_F(TrendChartsTest, ASingleStepHasNoChart) {
  openVariable();
  run(0, "5");
  EXPECT_FALSE(results.chtTrend.visible());
  EXPECT_FALSE(results.chtTrend.chart().has_value());
}

TEST_F(TrendChartsTest, AFixedTrendOfOneProcessIsALineOfItsOptions) {
  openFixed();
  run(0, "5, 9, 7");
  const LineChart drawn = lines();
  EXPECT_EQ(drawn.x.title, "Crop Price - Corn ($/ bu.)");
  ASSERT_EQ(drawn.lines[0].points.size(), 3U);
  for (const ChartLine::Point& point : drawn.lines[0].points) {
    results.chtTrend.pick(*point.pick);
    EXPECT_EQ(shownNetReturn(), netReturn(point.y));
    EXPECT_EQ(
        results.theResults.FieldCollection.at(static_cast<std::size_t>(results.theResults.getOption()) - 1)
            ->theValue.at(0),
        point.x);
  }
  // 126.25 dollars an acre at the price of 5
  EXPECT_EQ(drawn.lines[0].points[0].y, 126.25);
}

TEST_F(TrendChartsTest, AFixedTrendOfTwoProcessesIsAMapOfItsOptions) {
  openFixed();
  choose(0);
  typeList("7, 5");
  setup.cmdAddBatchProcess.click();
  run(5, "16, 20, 18");
  const MapChart drawn = map();
  EXPECT_EQ(drawn.xValues, (std::vector<double>{5, 7}));
  EXPECT_EQ(drawn.yValues, (std::vector<double>{16, 18, 20}));
  ASSERT_EQ(drawn.value.size(), 6U);
  for (std::size_t cell = 0; cell < 6; ++cell) {
    results.chtTrend.pick(cell);
    EXPECT_EQ(shownNetReturn(), netReturn(drawn.value[cell]));
    const auto shown = static_cast<std::size_t>(results.theResults.getOption()) - 1;
    EXPECT_THAT(results.theResults.FieldCollection.at(shown)->theValue,
                ElementsAre(drawn.xValues[cell % 2], drawn.yValues[cell / 2]));
  }
  EXPECT_EQ(chart().table.size(), 4U);
  EXPECT_THAT(chart().table[0],
              ElementsAre("Annual Rainfall (inches) / Crop Price - Corn ($/ bu.)", "$5.00", "$7.00"));
}

TEST_F(TrendChartsTest, ADuplicateLeadsToTheOptionThatStandsForIt) {
  openFixed();
  wheat();
  setup.cboCrops.pick(0);
  run(2, "100, 100, 120");
  for (const ChartLine::Point& point : lines().lines[0].points) {
    results.chtTrend.pick(*point.pick);
    EXPECT_EQ(shownNetReturn(), netReturn(point.y));
  }
}

TEST_F(TrendChartsTest, AnotherTrendReplacesTheChart) {
  openFixed();
  run(0, "5, 9, 7");
  openVariable();
  run(3, "50, 60, 70");
  EXPECT_EQ(chart().title, "Best net return per acre");
  EXPECT_EQ(lines().x.title, "Irrigation System Efficiency (%)");
  run(3, "50");
  EXPECT_FALSE(results.chtTrend.chart().has_value());
}

}  // namespace
}  // namespace verdalis
