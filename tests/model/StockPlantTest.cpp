#include <gtest/gtest.h>

#include <algorithm>

#include "model/stockPlant.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

TEST(StockPlant, ContainsEachFieldOfTheFileThatHasADefaultOnce) {
  const auto rows = stockPlant();
  for (const SavedField<IrrigationCosts>& field : plantFields()) {
    const bool without = field == &IrrigationCosts::FixedPerAcre || field == &IrrigationCosts::NPC ||
                         field == &IrrigationCosts::active;
    const auto count =
        std::count_if(rows.begin(), rows.end(), [&](const PlantDefault& row) { return row.field == field; });
    EXPECT_EQ(count, without ? 0 : 1);
    EXPECT_EQ(defaultPlantText(field).empty(), without);
  }
  EXPECT_EQ(rows.size(), 8U);
}

TEST(StockPlant, ContainsNumbersAndAKnownFuel) {
  for (const PlantDefault& row : stockPlant()) {
    EXPECT_EQ(defaultPlantText(row.field), row.text);
    if (row.field.isNumber()) {
      EXPECT_GT(Val(row.text), 0);
    } else {
      EXPECT_TRUE(fuelPerformance(row.text).has_value());
    }
  }
}

}  // namespace
}  // namespace verdalis
