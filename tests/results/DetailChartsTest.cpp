#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "charts/Drawing.h"
#include "results/Details.h"
#include "results/detailCharts.h"
#include "results/figures.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using namespace testing;

/// Corn that yields a bushel for each inch of water and rain.
Field cornField() {
  Field field;
  field.acres = 40;
  field.Depth = 8.5;
  field.annualRain = 16;
  *field.theCrop = namedCrop("Corn", "bu.,bushels");
  Crop& crop = *field.theCrop;
  crop.price = 6.5;
  crop.maxYield = 100;
  YieldTable table(20, 11, 21);
  for (int water = 0; water <= 20; ++water) {
    for (int rain = 11; rain <= 21; ++rain)
      table.setCell(water, rain, (water + rain) / 50.0);
  }
  crop.setYieldTable(table);
  crop.Yield = crop.yieldAt(field.Depth, field.annualRain);
  crop.inputCosts.Herbicide = 30;
  crop.inputCosts.Tillage = 20;
  *field.irrigCosts = defaultPlant();
  return field;
}

const std::vector<BarChart::Bar>& barsOf(const Chart& chart) {
  return std::get<BarChart>(chart.data).bars;
}

TEST(YieldChart, HasAPointForEachInchOfTheTableAndTheField) {
  const ScopedEfficiency efficiency{0.85};
  const Field field = cornField();
  const std::optional<Chart> chart = yieldChart(field);
  ASSERT_TRUE(chart.has_value());
  const auto& data = std::get<LineChart>(chart->data);
  ASSERT_EQ(data.lines.size(), 2U);
  ASSERT_EQ(data.lines[0].points.size(), 21U);
  EXPECT_DOUBLE_EQ(data.lines[0].points[20].x, 20 / 0.85);
  EXPECT_DOUBLE_EQ(data.lines[0].points[20].y, 72);
  ASSERT_EQ(data.lines[1].points.size(), 1U);
  EXPECT_DOUBLE_EQ(data.lines[1].points[0].x, 10);
  EXPECT_EQ(data.lines[1].points[0].y, field.theCrop->Yield);
  EXPECT_EQ(chart->summary, "This field yields 49.0 bu./ac with 10.0'' of gross irrigation.");
  EXPECT_EQ(chart->table.size(), 22U);
}

TEST(YieldChart, ACropWithoutATableHasNone) {
  const ScopedEfficiency efficiency{0.85};
  Field field = cornField();
  field.theCrop->yieldTable.reset();
  EXPECT_FALSE(yieldChart(field).has_value());
  field = cornField();
  field.theCrop->cropType = "Fallow";
  EXPECT_FALSE(yieldChart(field).has_value());
}

TEST(ReturnChart, EachBarBeginsWhereTheOneBeforeEnds) {
  const ScopedEfficiency efficiency{0.85};
  Field field = cornField();
  field.theCrop->inputCosts.Returns = 12;
  field.theCrop->inputCosts.MiscCost = 7;
  const Chart chart = returnChart(field);
  const std::vector<BarChart::Bar>& bars = barsOf(chart);
  std::vector<std::string> names;
  double reached = 0;
  for (std::size_t i = 0; i < bars.size(); ++i) {
    names.push_back(bars[i].name);
    if (i + 1 == bars.size()) break;
    EXPECT_EQ(bars[i].from, reached);
    reached = bars[i].to;
  }
  EXPECT_THAT(names, ::testing::ElementsAre("Sales", "Misc. returns", "General inputs", "Operations",
                                            "Misc. costs", "Irrigation", "Net return"));
  EXPECT_NEAR(reached, perAcre(field.getProfit(), field.acres), 1e-9);
  EXPECT_EQ(bars.back().to, perAcre(field.getProfit(), field.acres));
  EXPECT_EQ(bars.back().kind, BarChart::Bar::Kind::total);
}

TEST(ReturnChart, CostsThatATrendReplacedAreOneBar) {
  const ScopedEfficiency efficiency{0.85};
  Field field = cornField();
  field.theCrop->inputCosts.UseBatch = true;
  field.theCrop->inputCosts.BatchGeneralCosts = 250;
  field.irrigCosts->UseBatch = true;
  field.irrigCosts->BatchIrrigationCosts = 3;
  const Chart chart = returnChart(field);
  const std::vector<BarChart::Bar>& bars = barsOf(chart);
  ASSERT_EQ(bars.size(), 4U);
  EXPECT_EQ(bars[1].name, "Production");
  EXPECT_EQ(bars[1].toText, "-$250");
  EXPECT_NEAR(bars[2].to, bars[3].to, 1e-9);
}

TEST(DetailsCharts, FollowTheField) {
  const ScopedEfficiency efficiency{0.85};
  const ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Details details{window, "theDetails", state};
  window.open();
  details.loadCosts(cornField());
  ASSERT_TRUE(details.chtYield.chart().has_value());
  EXPECT_EQ(details.chtYield.chart()->title, "Yield of Corn at 16'' of rain");
  ASSERT_TRUE(details.chtReturn.chart().has_value());
  Field fallow = cornField();
  fallow.makeFallow();
  details.loadCosts(fallow);
  EXPECT_FALSE(details.chtYield.chart().has_value());
  EXPECT_TRUE(details.chtReturn.chart().has_value());
}

TEST(DetailsCharts, TheFiguresOfThePageStayAsTheyWere) {
  const ScopedEfficiency efficiency{0.85};
  const ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Details details{window, "theDetails", state};
  window.open();
  Field field = cornField();
  details.loadCosts(field);
  EXPECT_EQ(details.lblTotalProfit.caption(),
            "$" + formatNumber(perAcre(field.getProfit(), field.acres), "###,##0"));
  EXPECT_EQ(barsOf(*details.chtReturn.chart()).back().to, perAcre(field.getProfit(), field.acres));
}

}  // namespace
}  // namespace verdalis
