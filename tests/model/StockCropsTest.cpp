#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>

#include "model/StockCrops.h"

namespace verdalis {
namespace {

TEST(StockCrops, ContainEveryKindExceptFallowOnceAndInOrder) {
  std::set<std::string_view> names;
  for (std::size_t i = 0; i < stockCrops.size(); ++i) {
    const StockCrop& crop = stockCrops.at(i);
    EXPECT_EQ(cropKind(crop.name()), crop.kind) << crop.name();
    EXPECT_EQ(stockIndex(crop.kind), i) << crop.name();
    EXPECT_EQ(stockCrop(crop.kind), &crop) << crop.name();
    names.insert(crop.name());
  }
  EXPECT_EQ(names.size(), stockCrops.size());
  EXPECT_TRUE(std::is_sorted(stockCrops.begin(), stockCrops.end(),
                             [](const StockCrop& a, const StockCrop& b) { return a.name() < b.name(); }));
  EXPECT_EQ(cropNames.size(), stockCrops.size() + 2) << "the other two are Fallow and any other crop";
  for (const CropKind kind : {CropKind::fallow, CropKind::other}) {
    EXPECT_EQ(stockIndex(kind), std::nullopt);
    EXPECT_EQ(stockCrop(kind), nullptr);
    EXPECT_FALSE(isSeedPricedByPound(kind));
    EXPECT_EQ(optimalSeedRate(kind, 10), std::nullopt);
    EXPECT_EQ(nutrientRates(kind).nitrogen, 0);
    EXPECT_EQ(nutrientRates(kind).phosphorus, 0);
  }
}

TEST(StockCrops, HaveDefaultsWithinTheirLimits) {
  for (const StockCrop& crop : stockCrops) {
    EXPECT_GT(crop.defaults.price, 0) << crop.name();
    EXPECT_GT(crop.defaults.maxYield, 0) << crop.name();
    EXPECT_LE(crop.defaults.price, crop.limits.price) << crop.name();
    EXPECT_LE(crop.defaults.maxYield, crop.limits.maxYield) << crop.name();
  }
}

TEST(StockCrops, HaveSeedRatesThatDoNotFallWithMoreWater) {
  EXPECT_TRUE(std::is_sorted(seedBands.rbegin(), seedBands.rend()));
  for (const StockCrop& crop : stockCrops)
    EXPECT_TRUE(std::is_sorted(crop.seedRates.rbegin(), crop.seedRates.rend())) << crop.name();
}

TEST(StockCrops, PriceSeedPerPoundForThreeCrops) {
  for (const StockCrop& crop : stockCrops) {
    const bool byPound = crop.name() == "Alfalfa" || crop.name() == "Grain Sorghum" || crop.name() == "Wheat";
    EXPECT_EQ(isSeedPricedByPound(crop.kind), byPound) << crop.name();
  }
}

}  // namespace
}  // namespace verdalis
