#include <gtest/gtest.h>

#include "results/OptionResult.h"
#include "results/OptionRows.h"
#include "results/optionsSection.h"
#include "results/summarySection.h"
#include "tests/results/HandoutCells.h"
#include "tests/results/Options.h"
#include "tests/support/Plant.h"

namespace verdalis {
namespace {

using namespace testing;

constexpr double efficiency = 0.85;

bool isEmpty(const HandoutTable& table, std::size_t row, std::size_t column) {
  const auto& cells = table.rows.at(row).cells;
  return column >= cells.size() || std::holds_alternative<std::monostate>(cells[column]);
}

TEST(OptionsSection, TellsAllThatIsKnownOfAField) {
  const std::vector<Option> options{
      optionOf({plainField(40, 90, 30, 8.5, "Corn"), plainField(60, 70, 30, 4)}), optionEarning(3)};
  const HandoutSection section = optionFieldsSection(ListedOptions::inOrder(options, efficiency));
  const HandoutTable& table = section.tables.at(0);
  ASSERT_EQ(table.rows.size(), 3U);
  FieldCollection copy = options[0]->Copy();
  const OptionResult known = describeOption(copy, efficiency);
  for (std::size_t field = 0; field < 2; ++field) {
    const FieldResult& of = known.fields[field];
    EXPECT_EQ(number(table, field, 0), 1);
    EXPECT_EQ(number(table, field, 1), static_cast<double>(field + 1));
    EXPECT_EQ(text(table, field, 2), of.crop);
    EXPECT_EQ(number(table, field, 3), of.acres);
    EXPECT_EQ(number(table, field, 4), of.netDepth);
    EXPECT_EQ(number(table, field, 5), of.grossDepth);
    EXPECT_EQ(number(table, field, 6), of.yield);
    EXPECT_EQ(text(table, field, 7), of.yieldUnit);
    EXPECT_EQ(number(table, field, 8), of.price);
    EXPECT_EQ(number(table, field, 9), of.maxYield);
    EXPECT_EQ(text(table, field, 10), of.soil);
    EXPECT_EQ(number(table, field, 11), of.costs);
    EXPECT_EQ(number(table, field, 12), of.returns);
    EXPECT_EQ(number(table, field, 13), of.profit());
    EXPECT_EQ(number(table, field, 14), known.costs);
    EXPECT_EQ(number(table, field, 15), known.returns);
    EXPECT_EQ(number(table, field, 16), known.profit);
  }
  EXPECT_EQ(number(table, 2, 0), 2);
}

TEST(OptionsSection, LeavesEmptyWhatCannotBeWorkedOut) {
  const std::vector<Option> options{optionEarning(3), optionOf({plainField(10, 1e308, 0)})};
  const HandoutTable overview = optionsSection(ListedOptions::inOrder(options, efficiency)).tables.at(0);
  const std::size_t back = overview.columns.size() - 3;
  for (std::size_t column = back; column < overview.columns.size(); ++column) {
    EXPECT_FALSE(isEmpty(overview, 0, column));
    EXPECT_TRUE(isEmpty(overview, 1, column));
  }
  const HandoutTable fields = optionFieldsSection(ListedOptions::inOrder(options, efficiency)).tables.at(0);
  EXPECT_EQ(number(fields, 1, 3), 10);
  EXPECT_TRUE(isEmpty(fields, 1, 11));
}

TEST(OptionsSection, LeavesOutPlaceholdersAndTellsHowManyThereAre) {
  const ListedOptions list = ListedOptions::inOrder(
      {optionEarning(5), optionEarning(4), optionEarning(3), placeholder()}, efficiency);
  EXPECT_EQ(list.numbers, (std::vector<std::size_t>{1, 2, 3}));
  const HandoutSection all = optionsSection(list);
  const HandoutSection first = optionsSection(list, 2);
  EXPECT_EQ(all.tables[0].rows.size(), 3U);
  EXPECT_TRUE(all.tables[0].rows[0].strong);
  EXPECT_FALSE(all.tables[0].rows[1].strong);
  EXPECT_EQ(first.tables[0].rows.size(), 2U);
  EXPECT_EQ(first.paragraphs.back(), "The first 2 of 3 options.");
}

TEST(OptionsSection, AnOptionWithoutARankHasNone) {
  const HandoutSection section =
      optionsSection({{optionEarning(5), optionEarning(4)}, {1, 0}, efficiency, false});
  EXPECT_TRUE(isEmpty(section.tables[0], 1, 0));
  EXPECT_NE(section.paragraphs[0].find("without a rank"), std::string::npos);
}

TEST(OptionsSection, OfATrendHasItsValues) {
  const Option option = optionEarning(5);
  option->AddBatchDescription("Crop Price - Corn", 4.5, {"$", "/ bu."});
  const HandoutTable table = optionsSection(ListedOptions::inOrder({option}, efficiency, true)).tables.at(0);
  EXPECT_EQ(table.columns[2].heading, "Crop Price - Corn");
  EXPECT_EQ(table.columns[2].unit, "$/ bu.");
  EXPECT_EQ(number(table, 0, 2), 4.5);
  EXPECT_FALSE(table.rows[0].strong);
}

TEST(SummarySection, HasARowForEachSavedField) {
  const ScopedEfficiency present(efficiency);
  const std::vector<Option> saved{optionOf({plainField(40, 90, 30, 8.5), plainField(60, 70, 30, 4)}),
                                  optionEarning(3)};
  const HandoutTable table = summarySection(saved, 16).tables.at(0);
  ASSERT_EQ(table.rows.size(), 3U);
  EXPECT_EQ(number(table, 2, 0), 2);
  EXPECT_EQ(number(table, 1, 3), 60);
  EXPECT_EQ(number(table, 0, 8), 16);
  EXPECT_EQ(number(table, 2, 13), 3);
  EXPECT_EQ(number(table, 2, 16), 30);
  EXPECT_EQ(summarySection(saved, 16, 1).tables[0].rows.size(), 1U);
  EXPECT_TRUE(summarySection({}, 16).tables[0].rows.empty());
}

}  // namespace
}  // namespace verdalis
