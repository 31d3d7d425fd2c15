#include <gtest/gtest.h>

#include <limits>

#include "results/OptionRows.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"

namespace verdalis {
namespace {

using namespace testing;

std::shared_ptr<Field> cropField(const std::string& crop, double acres, double depth = 0,
                                 double profit = 10) {
  return plainField(acres, profit + 50, 50, depth, crop);
}

TEST(NetReturnOf, UsesTheReturnsThatAFieldHas) {
  auto option = optionOf({plainField(10, 100, 40)});
  static_cast<void>(option->getProfit(0.85));
  option->Item(1)->TotalReturn = 700;
  EXPECT_EQ(netReturnOf(*option, 0.85), option->getProfit(0.85));
  EXPECT_EQ(netReturnOf(*option, 0.85), 300);
}

TEST(OptionRows, ACropIsNamedOnceWithAllItsAcresMostAcresFirst) {
  const OptionRows rows({optionOf({cropField("Wheat", 20), cropField("Corn", 30.6), cropField("Wheat", 25),
                                   cropField("Oats", 30.6)})},
                        0.85);
  EXPECT_EQ(rows.mixText(rows[0].mix), "Wheat 45, Corn 31, Oats 31");
  EXPECT_EQ(rows.crops(), (std::vector<std::string>{"Wheat", "Corn", "Oats"}));
  EXPECT_TRUE(rows.mixHas(rows[0].mix, "Oats"));
  EXPECT_FALSE(rows.mixHas(rows[0].mix, "Millet"));
}

TEST(OptionRows, AMixIsAcresAndCropsInAnyOrder) {
  const OptionRows rows({optionOf({cropField("Corn", 50, 3), cropField("Wheat", 50)}),
                         optionOf({cropField("Wheat", 50), cropField("Corn", 50, 7)}),
                         optionOf({cropField("Wheat", 40), cropField("Corn", 60)})},
                        0.85);
  EXPECT_EQ(rows[0].mix, rows[1].mix);
  EXPECT_NE(rows[0].mix, rows[2].mix);
  EXPECT_EQ(rows.mixes(), 2U);
  EXPECT_LT(rows.mixPlace(rows[0].mix), rows.mixPlace(rows[2].mix));
}

TEST(OptionRows, MirrorImagesHaveTheSameFieldsInAnotherOrder) {
  const OptionRows rows({optionOf({cropField("Corn", 50, 3), cropField("Corn", 50, 7)}),
                         optionOf({cropField("Corn", 50, 7), cropField("Corn", 50, 3)}),
                         optionOf({cropField("Corn", 50, 7), cropField("Corn", 50, 4)}),
                         optionOf({cropField("Corn", 50, 3), cropField("Corn", 50, 7)})},
                        0.85);
  EXPECT_TRUE(rows.hasMirrors());
  EXPECT_EQ(rows[0].first, 0U);
  EXPECT_EQ(rows[1].first, 0U);
  EXPECT_EQ(rows[2].first, 2U);
  EXPECT_EQ(rows[3].first, 0U);
  EXPECT_FALSE(OptionRows({optionEarning(1), optionEarning(2)}, 0.85).hasMirrors()) << "different prices";
}

TEST(OptionRows, WaterIsGrossAndOfTheFirstFourFields) {
  const auto field = [](double depth) { return cropField("Corn", 10, depth); };
  const OptionRows rows({optionOf({field(8.5), field(17), field(0), field(4.25), field(850)})}, 0.85);
  EXPECT_EQ(rows[0].fields, 5U);
  EXPECT_EQ(rows.fields(), 4U);
  EXPECT_DOUBLE_EQ(rows[0].gross[1], 20);
  EXPECT_DOUBLE_EQ(rows.mostGross(), 20);
  EXPECT_DOUBLE_EQ(rows[0].acres, 50);
}

TEST(OptionRows, WithoutAnEfficiencyTheWaterIsUnknown) {
  auto option = optionOf({cropField("Corn", 10, 8.5)});
  static_cast<void>(option->getCosts(0.85));
  const OptionRows rows({option}, 0);
  EXPECT_LT(rows[0].gross[0], 0);
  EXPECT_EQ(rows[0].profit, 100);
}

TEST(OptionRows, TellsHowFarARowIsBehindTheBest) {
  const OptionRows rows({optionEarning(100), optionEarning(99), optionEarning(98.99), optionEarning(50)},
                        0.85);
  EXPECT_EQ(rows.best(), 1000);
  EXPECT_EQ(rows.worst(), 500);
  EXPECT_EQ(rows.behind(0), 0);
  EXPECT_DOUBLE_EQ(*rows.behind(3), 500);
  EXPECT_DOUBLE_EQ(rows.within(1), 10);
  EXPECT_TRUE(rows.isWithin(1, 1));
  EXPECT_FALSE(rows.isWithin(2, 1));
  EXPECT_TRUE(rows.isWithin(0, 0));
}

TEST(OptionRows, LossesAreMeasuredByTheirSize) {
  const OptionRows rows({optionEarning(-100), optionEarning(-101)}, 0.85);
  EXPECT_TRUE(rows.isWithin(1, 1));
  EXPECT_FALSE(rows.isWithin(1, 0.9));
}

TEST(OptionRows, AnOptionThatCannotBePricedHasNoNetReturn) {
  auto broken = optionOf({plainField(10, std::numeric_limits<double>::max(), 0)});
  const OptionRows rows({optionEarning(5), broken}, 0.85);
  EXPECT_EQ(rows[1].profit, std::nullopt);
  EXPECT_EQ(rows.behind(1), std::nullopt);
  EXPECT_FALSE(rows.isWithin(1, 100));
  EXPECT_EQ(rows.best(), 50);
}

}  // namespace
}  // namespace verdalis
