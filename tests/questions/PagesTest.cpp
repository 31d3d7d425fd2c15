// Each page: what it offers, what it refuses, and that its numbers are those of the exploring functions.

#include <algorithm>
#include <variant>

#include "explore/mixes.h"
#include "questions/InputsPane.h"
#include "questions/MapPane.h"
#include "questions/MixesPane.h"
#include "questions/SeasonsPane.h"
#include "questions/SwitchPane.h"
#include "questions/WaterPane.h"
#include "questions/planText.h"
#include "questions/values.h"
#include "tests/questions/QuestionsTest.h"

namespace verdalis::testing {
namespace {

using Kind = FarmInput::Kind;

const LineChart& lines(const Chart& chart) {
  return std::get<LineChart>(chart.data);
}
const BarChart& bars(const Chart& chart) {
  return std::get<BarChart>(chart.data);
}

// Value of Water

using WaterPage = QuestionTest<WaterPane>;

TEST_F(WaterPage, OffersTheUsualAmounts) {
  farm.takeWater(7.3);
  open();
  EXPECT_EQ(pane().txtFrom.text(), "0.73");
  EXPECT_EQ(pane().txtTo.text(), "14.6");
  EXPECT_EQ(pane().txtPoints.text(), "20");
  const auto expected = exploreWater(farm, usualAmounts(farm), state, hooks);
  const ChartLine& line = lines(drawn()).lines.at(0);
  ASSERT_EQ(line.points.size(), expected->points.size());
  for (std::size_t i = 0; i < line.points.size(); ++i) {
    EXPECT_EQ(line.points[i].x, expected->points[i].gross);
    EXPECT_EQ(line.points[i].y, expected->points[i].best.profit);
    EXPECT_EQ(cell(i, 1), dollarsText(expected->points[i].best.profit));
  }
  EXPECT_EQ(amount("Net return now"), dollarsText(expected->now.best.profit));
}

TEST_F(WaterPage, TellsTheValueOfAnInch) {
  open();
  const auto expected = exploreWater(farm, {6, 12, 18}, state, hooks);
  pane().txtFrom.type("6");
  pane().txtTo.type("18");
  pane().txtPoints.type("3");
  EXPECT_EQ(pane().lblFigures.caption(), "At 12 in");
  EXPECT_NE(amount("One more inch is worth").find(" /ac-in"), std::string::npos);
  EXPECT_EQ(lines(drawn()).lines.at(0).points.at(2).y, expected->points[2].best.profit);
  EXPECT_EQ(lines(drawn()).strip->boxes.at(1).from, 9);
  EXPECT_EQ(lines(drawn()).strip->boxes.at(1).to, 15);
  EXPECT_TRUE(pane().table.cell(1, 0).strong);
}

TEST_F(WaterPage, RefusesInWords) {
  open();
  pane().txtFrom.type("x");
  EXPECT_EQ(fault(), "From: Please enter a valid number.");
  pane().txtFrom.type("30");
  EXPECT_EQ(fault(), "To: The last value must be above the first.");
  pane().txtFrom.type("0");
  EXPECT_EQ(fault(), "From: Acres times inches must be at least 1 ac-in.");
  pane().txtFrom.type("2");
  pane().txtTo.type("");
  EXPECT_EQ(fault(), "To: Please enter a valid number.");
  pane().txtTo.type("20");
  pane().txtPoints.type("1.5");
  EXPECT_EQ(fault(), "Points: The number of values must be a whole number from 2 to 100,000.");
  pane().txtPoints.type("2");
  EXPECT_EQ(fault(), "");
}

// Switch Prices

using SwitchPage = QuestionTest<SwitchPane>;

TEST_F(SwitchPage, OffersHalfToOneAndAHalfOfThePrice) {
  open();
  const double now = valueOf(farm, {Kind::price, "Corn"});
  EXPECT_EQ(pane().cboInput.items(),
            (std::vector<std::string>{"Price of Corn", "Price of Wheat", "Maximum yield of Corn",
                                      "Maximum yield of Wheat", "Price of fuel"}));
  EXPECT_EQ(pane().cboInput.text(), "Price of Corn");
  EXPECT_EQ(pane().txtFrom.text(), fieldText(now / 2));
  EXPECT_EQ(pane().txtTo.text(), fieldText(now * 3 / 2));
}

TEST_F(SwitchPage, ShowsTheSegments) {
  open();
  pane().txtFrom.type("1");
  pane().txtTo.type("9");
  const auto expected = switchPrices(farm, {Kind::price, "Corn"}, 1, 9, state, hooks);
  ASSERT_EQ(pane().table.records(), expected->size());
  ASSERT_GT(expected->size(), 1U);
  const ChartLine& line = lines(drawn()).lines.at(0);
  for (std::size_t i = 0; i < expected->size(); ++i) {
    EXPECT_EQ(line.points.at(i).x, (*expected)[i].from);
    EXPECT_EQ(line.points.at(i).y, (*expected)[i].profitFrom);
    EXPECT_EQ(lines(drawn()).strip->boxes.at(i).to, (*expected)[i].to);
  }
  EXPECT_EQ(line.points.back().y, expected->back().profitTo);
  EXPECT_EQ(cell(0, 0), "$1.00");
  EXPECT_EQ(cell(0, 1), cell(1, 0));
  EXPECT_EQ(cell(expected->size() - 1, 1), "$9.00");
}

TEST_F(SwitchPage, AnotherInputBringsItsOwnRange) {
  open();
  pane().txtFrom.type("1");
  pane().cboInput.pick(4);
  EXPECT_EQ(fault(), "");
  const double fuel = valueOf(farm, {Kind::fuel, {}});
  EXPECT_EQ(pane().txtFrom.text(), fieldText(fuel / 2));
  EXPECT_EQ(pane().lblUnit.caption(), "$ per unit of fuel");
}

TEST_F(SwitchPage, RefusesInWords) {
  open();
  pane().txtFrom.type("-1");
  EXPECT_EQ(fault(), "From: The price Corn must be at least 0.");
  pane().txtFrom.type("");
  EXPECT_EQ(fault(), "From: Please enter a valid number.");
  pane().txtFrom.type("2");
  pane().txtTo.type("2");
  EXPECT_EQ(fault(), "To: The last value must be above the first.");
  pane().txtTo.type("1e6");
  EXPECT_TRUE(fault().starts_with("To: The price Corn must be at most ")) << fault();
}

// Seasons

class SeasonsPage : public QuestionTest<SeasonsPane> {
 protected:
  std::vector<Season> ofFarm;
  SeasonsPane& openSeasons() {
    return open([this] { return ofFarm; });
  }
};

TEST_F(SeasonsPage, OffersDryNormalAndWet) {
  openSeasons();
  EXPECT_EQ(pane().lines[0]->txtSeason.text(), "dry");
  EXPECT_EQ(pane().lines[2]->txtRain.text(), "19");
  EXPECT_EQ(pane().lines[1]->txtWeight.text(), "2");
  EXPECT_TRUE(pane().lines[2]->txtSeason.visible());
  EXPECT_FALSE(pane().lines[3]->txtSeason.visible());
  const auto expected = exploreSeasons(farm, usualSeasons(farm.rain), state, hooks);
  EXPECT_EQ(amount("Best average"), dollarsText(expected->options[0].average));
  EXPECT_EQ(amount("The safest plan, average"), dollarsText(expected->safest.average));
  ASSERT_EQ(pane().table.records(), expected->options.size() + 1);
  EXPECT_EQ(cell(0, 3), dollarsText(expected->safest.regret));
  EXPECT_EQ(cell(1, 4), dollarsText(expected->options[0].profits[0]));
  EXPECT_EQ(lines(drawn()).lines.at(0).points.at(2).y, expected->seasons[2].best.profit);
}

TEST_F(SeasonsPage, OffersTheSeasonsOfTheFarm) {
  ofFarm = {{"El Nino", 18, 1}, {"La Nina", 12, 3}};
  openSeasons();
  EXPECT_EQ(pane().lines[1]->txtSeason.text(), "La Nina");
  EXPECT_FALSE(pane().lines[2]->txtSeason.visible());
  EXPECT_FALSE(pane().cmdRemoveSeason.enabled());
}

TEST_F(SeasonsPage, AddsNoSeasonWithoutAFarm) {
  incomplete = "Enter the acres.";
  openSeasons();
  EXPECT_FALSE(pane().cmdAddSeason.enabled());
  EXPECT_FALSE(pane().cmdRemoveSeason.enabled());
}

TEST_F(SeasonsPage, AddsAndRemovesSeasons) {
  openSeasons();
  pane().cmdAddSeason.click();
  EXPECT_TRUE(pane().lines[3]->txtSeason.visible());
  EXPECT_EQ(fault(), "");
  EXPECT_EQ(lines(drawn()).lines.at(0).points.size(), 4U);
  for (int i = 0; i < 9; ++i)
    pane().cmdAddSeason.click();
  EXPECT_FALSE(pane().cmdAddSeason.enabled());
  EXPECT_EQ(lines(drawn()).lines.at(0).points.size(), mostSeasons);
  for (int i = 0; i < 9; ++i)
    pane().cmdRemoveSeason.click();
  EXPECT_EQ(lines(drawn()).lines.at(0).points.size(), leastSeasons);
  EXPECT_FALSE(pane().cmdRemoveSeason.enabled());
}

TEST_F(SeasonsPage, RefusesInWords) {
  openSeasons();
  pane().lines[0]->txtRain.type("much");
  EXPECT_EQ(fault(), "Season 1, rain: Please enter a valid number.");
  pane().lines[0]->txtRain.type("12");
  pane().lines[1]->txtWeight.type("0");
  EXPECT_EQ(fault(), "Season 2, weight: The weight must be above 0.");
  pane().lines[1]->txtWeight.type("1");
  pane().lines[2]->txtSeason.type("dry");
  EXPECT_EQ(fault(), "Season 3: There is already a season with this name.");
  pane().lines[2]->txtSeason.type("");
  EXPECT_EQ(fault(), "Season 3: Please enter a name.");
}

// What Matters

using InputsPage = QuestionTest<InputsPane>;

TEST_F(InputsPage, ShowsTheEffects) {
  open();
  EXPECT_EQ(pane().txtPercent.text(), "10");
  const auto boundsOf = [&](const FarmInput& input) { return inputBounds(input, farm); };
  const auto expected = exploreInputs(farm, 10, boundsOf, state, hooks);
  ASSERT_EQ(pane().table.records(), expected->inputs.size());
  for (std::size_t i = 0; i < expected->inputs.size(); ++i) {
    const BarChart::Bar& bar = bars(drawn()).bars.at(i);
    EXPECT_EQ(bar.from, std::min(expected->inputs[i].profitLow, expected->inputs[i].profitHigh));
    EXPECT_EQ(bar.to, std::max(expected->inputs[i].profitLow, expected->inputs[i].profitHigh));
  }
  EXPECT_EQ(bars(drawn()).base, expected->now.profit);
}

TEST_F(InputsPage, RefusesInWords) {
  open();
  pane().txtPercent.type("100");
  EXPECT_EQ(fault(), "Percent: The percentage must be above 0 and below 100.");
  pane().txtPercent.type("ten");
  EXPECT_EQ(fault(), "Percent: Please enter a valid number.");
  pane().txtPercent.type("99.99");
  EXPECT_EQ(fault(), "Percent: Acres times inches must be at least 1 ac-in.");
}

// Map

class MapPage : public QuestionTest<MapPane> {
 protected:
  MapPage() {
    slow.holds = true;  // the first map is large
    open();
    pane().x.txtPoints.type("3");
    pane().y.txtPoints.type("4");
  }
  void finish() { slow.finish(slow.held.size() - 1); }
};

TEST_F(MapPage, OffersThePriceOfTheFirstCropAndWater) {
  EXPECT_EQ(pane().x.cboInput.text(), "Price of Corn");
  EXPECT_EQ(pane().y.cboInput.text(), "Water");
  EXPECT_EQ(pane().y.txtFrom.text(), "1.2");
  EXPECT_EQ(pane().y.txtTo.text(), "24");
}

TEST_F(MapPage, ShowsTheMap) {
  pane().x.txtFrom.type("2");
  pane().x.txtTo.type("8");
  finish();
  ASSERT_EQ(fault(), "");
  const auto expected = exploreMap(farm, {{Kind::price, "Corn"}, {2, 5, 8}},
                                   {{Kind::water, {}}, evenValues(1.2, 24, 4)}, state, hooks);
  const auto& map = std::get<MapChart>(drawn().data);
  EXPECT_EQ(map.value, expected->profit);
  EXPECT_EQ(map.category, expected->mix);
  EXPECT_EQ(pane().table.records(), expected->mixes.size());
  EXPECT_EQ(drawn().table.size(), 13U);
  pane().chart.pick(11);
  EXPECT_EQ(pane().table.current(), map.category[11]);
  pane().cmdCopy.click();
  EXPECT_TRUE(fakes.clipboard.contents.starts_with("Price of Corn\tWater\tNet return\tBest mix\n2\t1.2\t-$"))
      << fakes.clipboard.contents;
}

TEST_F(MapPage, RefusesInWords) {
  pane().x.cboInput.pick(0);
  EXPECT_EQ(fault(), "A map needs two different inputs.");
  pane().x.cboInput.pick(1);
  EXPECT_EQ(fault(), "");
  EXPECT_EQ(pane().x.txtFrom.text(), "11");
  pane().x.txtFrom.type("?");
  EXPECT_EQ(fault(), "Across, from: Please enter a valid number.");
  pane().x.txtFrom.type("30");
  EXPECT_EQ(fault(), "Across, to: The last value must be above the first.");
  pane().x.txtFrom.type("12");
  pane().y.txtPoints.type("0");
  EXPECT_EQ(fault(), "Upwards, points: The number of values must be a whole number from 2 to 100,000.");
  pane().y.txtPoints.type("50000");
  EXPECT_EQ(fault(), "A map has at most 100,000 points.");
}

// Mixes

using MixesPage = QuestionTest<MixesPane>;

TEST_F(MixesPage, ShowsTheBestPlanOfEachMix) {
  open();
  const auto expected = exploreMixes(farm, 12, state, hooks);
  ASSERT_EQ(pane().table.records(), expected->size());
  EXPECT_EQ(expected->front().profit, bestPlan(farm, state, hooks)->profit);
  std::vector<Mix> mixes;
  for (std::size_t i = 0; i < expected->size(); ++i) {
    const Plan& plan = (*expected)[i];
    EXPECT_EQ(bars(drawn()).bars.at(i).to, plan.profit);
    EXPECT_EQ(cell(i, 1), mixText(mixOf(plan)));
    EXPECT_EQ(std::count(mixes.begin(), mixes.end(), mixOf(plan)), 0);
    mixes.push_back(mixOf(plan));
  }
  pane().txtMixes.type("1");
  EXPECT_EQ(pane().table.records(), 1U);
}

TEST_F(MixesPage, RefusesInWords) {
  open();
  for (const char* bad : {"0", "2.5", "1001", "-4", "1e300"}) {
    pane().txtMixes.type(bad);
    EXPECT_EQ(fault(), "Mixes: The number of mixes must be a whole number from 1 to 1,000.") << bad;
  }
  pane().txtMixes.type("many");
  EXPECT_EQ(fault(), "Mixes: Please enter a valid number.");
}

}  // namespace
}  // namespace verdalis::testing
