#include <gtest/gtest.h>

#include <algorithm>

#include "model/stockCosts.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

TEST(StockCosts, AreNumbersOfTheFileWithoutDuplicates) {
  const auto fields = costFields();
  for (const DefaultCosts& row : stockCosts()) {
    EXPECT_TRUE(row.field.isNumber());
    EXPECT_EQ(std::count(fields.begin(), fields.end(), row.field), 1);
    EXPECT_EQ(std::count_if(stockCosts().begin(), stockCosts().end(),
                            [&](const DefaultCosts& other) { return other.field == row.field; }),
              1);
  }
}

TEST(StockCosts, CoverAllNumbersExceptRatesAndMiscellaneousCost) {
  for (const CostField& field : costFields()) {
    const auto rows = stockCosts();
    const bool has =
        std::any_of(rows.begin(), rows.end(), [&](const DefaultCosts& row) { return row.field == field; });
    const bool without = !field.isNumber() || field == &inputCosts::NitrogenApplied ||
                         field == &inputCosts::PApplied || field == &inputCosts::SeedRate ||
                         field == &inputCosts::MiscCost;
    EXPECT_NE(has, without);
  }
}

TEST(StockCosts, AreTextsOfNumbers) {
  for (const DefaultCosts& row : stockCosts()) {
    for (const DefaultCost& cell : row.cells) {
      if (cell.text == nullptr) {
        EXPECT_FALSE(cell.loaded) << "what the pane keeps has no number";
      } else if (*cell.text != '\0') {
        EXPECT_GT(Val(cell.text), 0);
      }
    }
  }
}

TEST(StockCosts, AreFoundByCropAndCost) {
  for (const DefaultCosts& row : stockCosts()) {
    for (std::size_t i = 0; i < stockCrops.size(); ++i)
      EXPECT_EQ(defaultCost(stockCrops.at(i).kind, row.field).text, row.cells.at(i).text);
    EXPECT_EQ(defaultCost(CropKind::fallow, row.field).text, row.cells.back().text);
    EXPECT_EQ(defaultCost(CropKind::other, row.field).text, nullptr);
    EXPECT_FALSE(defaultCost(CropKind::other, row.field).loaded);
  }
  EXPECT_EQ(defaultCost(CropKind::corn, &inputCosts::MiscCost).text, nullptr);
  EXPECT_EQ(defaultCost(CropKind::corn, &inputCosts::MiscCost).loaded, false);
}

TEST(StockCosts, DifferBetweenPaneAndCropOnlyWhereIntended) {
  const DefaultCost insecticide = defaultCost(CropKind::soybeans, &inputCosts::Insecticide);
  EXPECT_STREQ(insecticide.text, "");
  EXPECT_TRUE(insecticide.loaded) << "as a 0";
  const DefaultCost swathing = defaultCost(CropKind::alfalfa, &inputCosts::AlfalfaSwathing);
  EXPECT_STREQ(swathing.text, "12.50");
  EXPECT_FALSE(swathing.loaded);
  const DefaultCost fallow = defaultCost(CropKind::fallow, &inputCosts::NitrogenCost);
  EXPECT_STREQ(fallow.text, "");
  EXPECT_FALSE(fallow.loaded);
}

}  // namespace
}  // namespace verdalis
