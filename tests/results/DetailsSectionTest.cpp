#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/detailsSection.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"

namespace verdalis {
namespace {

using namespace testing;

/// A field of a crop that yields a bushel for each inch of water and rain.
std::shared_ptr<Field> fieldOf(const std::string& crop, double acres, double depth) {
  auto field = std::make_shared<Field>();
  field->acres = acres;
  field->Depth = depth;
  field->annualRain = 16;
  *field->theCrop = namedCrop(crop, "bu.,bushels");
  Crop& own = *field->theCrop;
  own.price = 6.5;
  own.maxYield = 100;
  YieldTable table(20, 11, 21);
  for (int water = 0; water <= 20; ++water) {
    for (int rain = 11; rain <= 21; ++rain)
      table.setCell(water, rain, (water + rain) / 50.0);
  }
  own.setYieldTable(table);
  own.Yield = own.yieldAt(field->Depth, field->annualRain);
  own.inputCosts.Herbicide = 30;
  own.inputCosts.Tillage = 20;
  *field->irrigCosts = defaultPlant();
  return field;
}

double number(const HandoutTable& table, const std::string& line, std::size_t column) {
  for (const HandoutRow& row : table.rows) {
    if (row.cells[0] == HandoutCell(line)) return std::get<double>(row.cells.at(column));
  }
  ADD_FAILURE() << line;
  return 0;
}

TEST(DetailsSection, TheLinesAddUpToTheNetReturnOfTheOption) {
  const ScopedEfficiency efficiency{0.85};
  FieldCollection option;
  option.Add(fieldOf("Corn", 60, 8.5));
  option.Add(fieldOf("Wheat", 40, 4.25));
  const HandoutSection section = detailsSection("The best option in detail", option, 0.85);
  ASSERT_EQ(section.tables.size(), 2U);
  const HandoutTable& money = section.tables[1];
  const std::size_t farm = money.columns.size() - 1;
  double costs = 0;
  bool after = false;
  for (const HandoutRow& row : money.rows) {
    const std::string& name = std::get<std::string>(row.cells[0]);
    if (after && !row.strong) costs += std::get<double>(row.cells[farm]);
    if (name == "Returns") after = true;
  }
  EXPECT_NEAR(costs, number(money, "Costs", farm), 1e-6);
  FieldCollection priced = option.Copy();
  EXPECT_NEAR(number(money, "Net return", farm), priced.getProfit(0.85), 1e-6);
  EXPECT_NEAR(number(money, "Net return", 1), priced.Item(1)->getProfit(0.85) / 60, 1e-9);
  EXPECT_EQ(number(money, "Herbicide", 2), 30);
}

TEST(DetailsSection, FieldsThatAreAlikeHaveTheirChartsOnce) {
  const ScopedEfficiency efficiency{0.85};
  FieldCollection option;
  option.Add(fieldOf("Corn", 40, 8.5));
  option.Add(fieldOf("Corn", 40, 8.5));
  option.Add(fieldOf("Corn", 40, 4.25));
  const HandoutSection section = detailsSection("", option, 0.85);
  ASSERT_EQ(section.charts.size(), 4U);
  EXPECT_EQ(section.charts[2].title, "Field 3: from returns to net return, per acre");
}

TEST(DetailsSection, AnOptionThatCannotBePricedHasNoFigures) {
  const ScopedEfficiency efficiency{0};
  FieldCollection option;
  option.Add(fieldOf("Corn", 40, 8.5));
  EXPECT_TRUE(detailsSection("", option, 0).tables.empty());
}

}  // namespace
}  // namespace verdalis
