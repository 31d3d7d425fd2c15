// The trend results as sections: all that the CSV of `trend` tells.

#include <gmock/gmock.h>

#include "results/OptionResult.h"
#include "tests/trend/TrendTest.h"
#include "trend/trendSection.h"

namespace verdalis {
namespace {

using namespace testing;

class TrendSectionTest : public TrendTest {
 protected:
  void run(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
    setup.cmdBatchIt.click();
  }

  static double number(const HandoutTable& table, std::size_t row, std::size_t column) {
    return std::get<double>(table.rows.at(row).cells.at(column));
  }
};

TEST_F(TrendSectionTest, AVariableTrendHasARowForEachStep) {
  openVariable();
  run(0, "7, 5, 6");
  const HandoutSection section = results.section();
  ASSERT_EQ(section.tables.at(0).rows.size(), 3U);
  EXPECT_EQ(section.charts.size(), 1U);
  const HandoutTable& table = section.tables[0];
  EXPECT_EQ(table.columns[1].heading, "Corn Crop Price");
  EXPECT_EQ(table.columns[1].unit, "$/ bu.");
  const std::vector<double> values{7, 5, 6};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(number(table, i, 0), static_cast<double>(i + 1));
    EXPECT_EQ(number(table, i, 1), values[i]);
    const auto best = trend.BatchCollection.at(i).best();
    FieldCollection copy = best->Copy();
    EXPECT_EQ(number(table, i, 3), copy.getProfit());
    EXPECT_EQ(number(table, i, 2), copy.getProfit() / acres(*best));
  }
  EXPECT_EQ(results.section(2).tables[0].rows.size(), 2U);
}

TEST_F(TrendSectionTest, TheFieldsAreThoseOfEveryOption) {
  openVariable();
  run(0, "5, 6");
  const HandoutTable table = results.fieldsSection().tables.at(0);
  std::size_t row = 0;
  for (std::size_t step = 0; step < 2; ++step) {
    std::size_t place = 0;
    for (const auto& option : trend.BatchCollection.at(step).Copy().returnCollection(true)) {
      if (option->Count() == 0) continue;
      ++place;
      const OptionResult known = describeOption(*option, 0.8);
      for (std::size_t field = 0; field < known.fields.size(); ++field, ++row) {
        EXPECT_EQ(number(table, row, 0), static_cast<double>(step + 1));
        EXPECT_EQ(number(table, row, 1), step == 0 ? 5 : 6);
        EXPECT_EQ(number(table, row, 2), static_cast<double>(place));
        EXPECT_EQ(number(table, row, 3), static_cast<double>(field + 1));
        EXPECT_EQ(number(table, row, 15), known.fields[field].profit());
        EXPECT_EQ(number(table, row, 18), known.profit);
      }
    }
  }
  EXPECT_GT(row, 2U);
  EXPECT_EQ(row, table.rows.size());
}

TEST_F(TrendSectionTest, AFixedTrendHasARowForEachValue) {
  openFixed();
  run(0, "5, 6");
  const HandoutTable table = results.section().tables.at(0);
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(table.columns[1].unit, "$/ bu.");
  for (std::size_t i = 0; i < 2; ++i) {
    FieldCollection copy = trend.TrendOptionArray.at(i, 0)->Copy();
    EXPECT_EQ(number(table, i, 1), i == 0 ? 5 : 6);
    EXPECT_EQ(number(table, i, 3), copy.getProfit());
  }
  const HandoutTable fields = results.fieldsSection().tables.at(0);
  EXPECT_EQ(fields.rows.size(), 4U);
  EXPECT_EQ(number(fields, 2, 0), 2);
  EXPECT_EQ(number(fields, 2, 1), 6);
}

TEST_F(TrendSectionTest, WhatIsExportedStaysThatOfTheTrendOnShow) {
  openVariable();
  run(0, "5, 6");
  const HandoutSection before = results.section();
  trend.BatchCollection.clear();
  trend.TrendValues.clear();
  EXPECT_EQ(results.section().tables[0].rows.size(), before.tables[0].rows.size());
  EXPECT_EQ(number(results.section().tables[0], 1, 3), number(before.tables[0], 1, 3));
}

}  // namespace
}  // namespace verdalis
