// The answers as sections: all that the CSV of `explore` tells, with every digit.

#include <cmath>

#include "explore/mixes.h"
#include "questions/MapPane.h"
#include "questions/WaterPane.h"
#include "questions/inputsAnswer.h"
#include "questions/mapAnswer.h"
#include "questions/mixesAnswer.h"
#include "questions/seasonsAnswer.h"
#include "questions/switchAnswer.h"
#include "questions/values.h"
#include "questions/waterAnswer.h"
#include "tests/questions/QuestionsTest.h"

namespace verdalis::testing {
namespace {

using Kind = FarmInput::Kind;

double number(const HandoutTable& table, std::size_t row, std::size_t column) {
  return std::get<double>(table.rows.at(row).cells.at(column));
}

std::string text(const HandoutTable& table, std::size_t row, std::size_t column) {
  return std::get<std::string>(table.rows.at(row).cells.at(column));
}

/// The cells of a plan from a column on: acres, crop, net and gross inches, and the yield if it is told.
void expectPlan(const HandoutTable& table, std::size_t row, std::size_t column,
                const std::vector<PlannedField>& plan, bool withYield) {
  for (const PlannedField& field : plan) {
    EXPECT_EQ(number(table, row, column), field.acres);
    EXPECT_EQ(text(table, row, column + 1), field.crop);
    EXPECT_EQ(number(table, row, column + 2), field.netDepth);
    EXPECT_EQ(number(table, row, column + 3), field.grossDepth);
    if (withYield) {
      EXPECT_EQ(number(table, row, column + 4), field.yield);
    }
    column += withYield ? 5 : 4;
  }
}

/// Every row has at most as many cells as there are columns, and every section a chart and words.
void expectSound(const HandoutSection& section) {
  EXPECT_FALSE(section.title.empty());
  EXPECT_FALSE(section.paragraphs.empty());
  EXPECT_EQ(section.charts.size(), 1U);
  ASSERT_FALSE(section.tables.empty());
  for (const HandoutTable& table : section.tables) {
    for (const HandoutRow& row : table.rows)
      EXPECT_LE(row.cells.size(), table.columns.size());
  }
}

struct Sections : ::testing::Test {
  Sections() { farm.factor = 4; }  // for speed

  Farm farm = twoCropFarm();
  ProgramState state;
  RunHooks hooks;
};

TEST_F(Sections, OfWaterHaveEveryPoint) {
  const auto result = exploreWater(farm, usualAmounts(farm), state, hooks);
  const HandoutSection section = waterSection(farm, *result);
  expectSound(section);
  const HandoutTable& table = section.tables[0];
  ASSERT_EQ(table.rows.size(), result->points.size());
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    EXPECT_EQ(number(table, i, 0), result->points[i].gross);
    EXPECT_EQ(number(table, i, 1), result->points[i].best.profit);
    expectPlan(table, i, 3, result->points[i].best.fields, true);
    EXPECT_EQ(table.rows[i].strong, result->points[i].gross == result->now.gross);
  }
}

TEST_F(Sections, OnPaperHaveTheFirstRowsAndTheColumnsOfThePage) {
  const auto result = exploreWater(farm, usualAmounts(farm), state, hooks);
  const HandoutSection section = waterSection(farm, *result, 3);
  EXPECT_EQ(section.tables[0].rows.size(), 3U);
  EXPECT_EQ(section.tables[0].columns.size(), 3U);
  EXPECT_EQ(section.tables[0].rows[0].cells.size(), 3U);
  EXPECT_EQ(section.paragraphs.back(),
            "The first 3 of " + std::to_string(result->points.size()) + " amounts.");
  EXPECT_EQ(waterSection(farm, *result, 1000).tables[0].rows.size(), result->points.size());
}

TEST_F(Sections, OfSwitchPricesHaveEverySegment) {
  const FarmInput input{Kind::price, farm.crops.Item(1)->cropType};
  const auto segments = switchPrices(farm, input, 2, 12, state, hooks);
  const SwitchAnswer found{input, "bu.", valueOf(farm, input), *segments};
  const HandoutSection section = switchSection(farm, found);
  expectSound(section);
  const HandoutTable& table = section.tables[0];
  ASSERT_EQ(table.rows.size(), segments->size());
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    EXPECT_EQ(number(table, i, 0), (*segments)[i].from);
    EXPECT_EQ(number(table, i, 1), (*segments)[i].to);
    EXPECT_EQ(number(table, i, 2), (*segments)[i].profitFrom);
    EXPECT_EQ(number(table, i, 3), (*segments)[i].profitTo);
    expectPlan(table, i, 5, (*segments)[i].fields, true);
  }
}

TEST_F(Sections, OfSeasonsHaveEveryPlanAndSeason) {
  const auto result = exploreSeasons(farm, usualSeasons(farm.rain), state, hooks);
  const HandoutSection section = seasonsSection(farm, *result);
  expectSound(section);
  const HandoutTable& plans = section.tables.at(0);
  ASSERT_EQ(plans.rows.size(), result->options.size() + 1);
  EXPECT_EQ(text(plans, 0, 0), "Safest");
  EXPECT_EQ(number(plans, 0, 3), result->safest.regret);
  for (std::size_t i = 0; i < result->options.size(); ++i) {
    const SeasonPlan& plan = result->options[i];
    EXPECT_EQ(number(plans, i + 1, 1), plan.average);
    EXPECT_EQ(number(plans, i + 1, 2), plan.worst);
    for (std::size_t season = 0; season < plan.profits.size(); ++season)
      EXPECT_EQ(number(plans, i + 1, 4 + season), plan.profits[season]);
    expectPlan(plans, i + 1, 5 + plan.profits.size(), plan.fields, false);
  }
  const HandoutTable& seasons = section.tables.at(1);
  ASSERT_EQ(seasons.rows.size(), result->seasons.size());
  EXPECT_EQ(number(seasons, 0, 3), result->seasons[0].best.profit);
}

TEST_F(Sections, OfInputsHaveEveryEffect) {
  const auto boundsOf = [&](const FarmInput& input) { return inputBounds(input, farm); };
  const auto result = exploreInputs(farm, 10, boundsOf, state, hooks);
  const HandoutSection section = inputsSection(farm, *result, 10);
  expectSound(section);
  const HandoutTable& table = section.tables[0];
  ASSERT_EQ(table.rows.size(), result->inputs.size());
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const InputEffect& effect = result->inputs[i];
    EXPECT_EQ(number(table, i, 2), effect.now);
    EXPECT_EQ(number(table, i, 3), effect.low);
    EXPECT_EQ(number(table, i, 4), effect.profitLow - result->now.profit);
    EXPECT_EQ(number(table, i, 8), effect.profitLow);
    EXPECT_EQ(number(table, i, 9), effect.profitHigh);
    EXPECT_EQ(text(table, i, 7), effect.changesPlan ? "yes" : "no");
  }
}

TEST_F(Sections, OfMixesHaveEveryPlan) {
  const auto plans = exploreMixes(farm, 5, state, hooks);
  const HandoutSection section = mixesSection(farm, *plans);
  expectSound(section);
  const HandoutTable& table = section.tables[0];
  ASSERT_EQ(table.rows.size(), plans->size());
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    EXPECT_EQ(number(table, i, 2), (*plans)[i].profit);
    EXPECT_EQ(number(table, i, 3), (*plans)[i].profit - plans->front().profit);
    expectPlan(table, i, 5, (*plans)[i].fields, true);
  }
}

TEST_F(Sections, OfMapsHaveEveryPoint) {
  const MapAxis x{{Kind::price, farm.crops.Item(1)->cropType}, evenValues(3, 9, 4)};
  const MapAxis y{{Kind::water, {}}, evenValues(4, 12, 3)};
  const auto map = exploreMap(farm, x, y, state, hooks);
  const HandoutSection section = mapSection(farm, *map);
  expectSound(section);
  EXPECT_EQ(section.tables.at(0).rows.size(), map->mixes.size());
  const HandoutTable& points = section.tables.at(1);
  ASSERT_EQ(points.rows.size(), map->profit.size());
  for (std::size_t i = 0; i < points.rows.size(); ++i) {
    EXPECT_EQ(number(points, i, 0), map->x.values[i % 4]);
    EXPECT_EQ(number(points, i, 1), map->y.values[i / 4]);
    EXPECT_EQ(number(points, i, 2), map->profit[i]);
    EXPECT_EQ(number(points, i, 4), map->mixes[map->mix[i]][0].acres);
    EXPECT_EQ(text(points, i, 5), map->mixes[map->mix[i]][0].crop);
  }
  EXPECT_EQ(mapSection(farm, *map, 2).tables.size(), 1U);
}

struct WaterSections : QuestionTest<WaterPane> {};

TEST_F(WaterSections, OfThePageAreThoseOfItsAnswer) {
  open();
  const auto expected = exploreWater(farm, usualAmounts(farm), state, hooks);
  ASSERT_TRUE(pane().hasAnswer());
  const HandoutSection section = pane().section();
  ASSERT_EQ(section.tables.at(0).rows.size(), expected->points.size());
  EXPECT_EQ(number(section.tables[0], 0, 1), expected->points[0].best.profit);
  pane().txtPoints.type("x");
  EXPECT_FALSE(pane().hasAnswer());
  EXPECT_TRUE(pane().section().tables.empty());
  EXPECT_FALSE(pane().cmdExport.enabled());
}

}  // namespace
}  // namespace verdalis::testing
