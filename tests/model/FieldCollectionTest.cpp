#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/FieldCollection.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"

// The farm as an ordered list of fields with totals.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::shared_ptr<Field> fieldOf(Crop crop, double acres, double depth) {
  auto field = std::make_shared<Field>();
  field->acres = acres;
  field->Depth = depth;
  field->annualRain = 16;
  crop.setNormal(crop.maxYield, 16);
  (void)yieldAt(crop, depth, 16);
  field->theCrop = std::make_shared<Crop>(std::move(crop));
  field->irrigCosts = std::make_shared<IrrigationCosts>(defaultPlant());
  return field;
}

FieldCollection cornAndWheat() {
  FieldCollection farm;
  farm.Add(fieldOf(cornCrop(), 50, 12));
  farm.Add(fieldOf(wheatCrop(), 50, 8.4));
  return farm;
}

class Farm : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0.85};
};

TEST_F(Farm, WithoutFieldsHasTotalsOfZero) {
  FieldCollection farm;
  EXPECT_TRUE(farm.isNothing);
  EXPECT_FALSE(farm.isNew);
  EXPECT_EQ(farm.Count(), 0);
  EXPECT_EQ(farm.getProfit(), 0);
  EXPECT_EQ(farm.getReturn(), 0);
  EXPECT_EQ(farm.getCosts(), 0);
  EXPECT_EQ(farm.getVolume(), 0);
  EXPECT_EQ(farm.toString(), "");
}

TEST_F(Farm, AddsTheFieldItselfAndCountsFrom1) {
  FieldCollection farm;
  const auto first = fieldOf(cornCrop(), 50, 12);
  const auto second = fieldOf(wheatCrop(), 50, 12);
  farm.Add(first);
  farm.Add(second);
  EXPECT_FALSE(farm.isNothing);
  EXPECT_EQ(farm.Count(), 2);
  EXPECT_EQ(farm.Item(1), first);
  EXPECT_EQ(farm.Item(2), second);
  EXPECT_EQ(farm.mCol.size(), 2U);
}

TEST_F(Farm, IteratesOverItsFieldsInOrder) {
  const FieldCollection farm = cornAndWheat();
  std::vector<std::string> names;
  for (const auto& field : farm)
    names.push_back(field->theCrop->cropType);
  for (const auto& field : farm.NewEnum())
    names.push_back(field->theCrop->cropType);
  EXPECT_THAT(names, ElementsAre("Corn", "Wheat", "Corn", "Wheat"));
}

TEST_F(Farm, RejectsAnIndexOutsideItsFields) {
  FieldCollection farm = cornAndWheat();
  for (const long index : {0L, 3L, -1L}) {
    EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)farm.Item(index); }),
                HasSubstr(std::to_string(index)));
    errorText(ErrorNumber::subscript, [&] { farm.Remove(index); });
  }
  farm.Remove(1);
  EXPECT_EQ(farm.Count(), 1);
  EXPECT_EQ(farm.Item(1)->theCrop->cropType, "Wheat");
}

TEST_F(Farm, TotalsAreSumsOverTheFields) {
  FieldCollection farm = cornAndWheat();
  const double costs = farm.Item(1)->getCosts() + farm.Item(2)->getCosts();
  const double returns = farm.Item(1)->getReturn() + farm.Item(2)->getReturn();
  EXPECT_EQ(farm.getCosts(), costs);
  EXPECT_EQ(farm.getReturn(), returns);
  EXPECT_EQ(farm.getProfit(), returns - costs);
  EXPECT_EQ(farm.getVolume(), 50 * 12.0 + 8.4 * 50);
}

TEST_F(Farm, CachesItsCostButNotItsReturn) {
  FieldCollection farm = cornAndWheat();
  const double costs = farm.getCosts();
  const double returns = farm.getReturn();
  for (const auto& field : farm) {
    field->TotalCost = 1;
    field->TotalReturn = 2;
  }
  EXPECT_EQ(farm.getCosts(), costs);
  EXPECT_EQ(farm.getReturn(), 4);
  EXPECT_NE(returns, 4);
  farm.Add(fieldOf(cornCrop(), 10, 5));  // adding a field does not change the cached sum
  EXPECT_EQ(farm.getCosts(), costs);
  farm.TotalCost = 0;
  EXPECT_GT(farm.getCosts(), 2);
}

TEST_F(Farm, ReportListsEachFieldAndItsCosts) {
  FieldCollection farm = cornAndWheat();
  farm.Item(2)->theCrop->inputCosts.theString = "notes";
  EXPECT_EQ(farm.toString(),
            farm.Item(1)->toString() + "\r\n" + "\r\n" + farm.Item(2)->toString() + "\r\n" + "notes\r\n");
}

TEST_F(Farm, ListsEachCropOnceInOrderOfAppearance) {
  FieldCollection farm;
  for (const char* name : {"Wheat", "Corn", "Wheat", "corn"}) {
    auto field = std::make_shared<Field>();
    field->theCrop->cropType = name;
    farm.Add(field);
  }
  EXPECT_THAT(farm.getCrops(), ElementsAre("Wheat", "Corn", "corn"));
}

TEST_F(Farm, WithoutFieldsGetCropsFails) {
  const FieldCollection farm;
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)farm.getCrops(); }), HasSubstr("1"));
}

TEST_F(Farm, HashIsAlwaysEmpty) {
  const FieldCollection farm = cornAndWheat();
  EXPECT_EQ(FieldCollection::hashFields(), "");
  EXPECT_EQ(farm.Item(1)->theCrop->cropType, "Corn");
}

TEST_F(Farm, StoresTheTrendDescription) {
  FieldCollection farm;
  farm.AddBatchDescription("Crop Price", 6.5, {"$", "/ bu."});
  farm.AddBatchDescription("Annual Rainfall", 17, {"", "inches"});
  EXPECT_THAT(farm.theVariable, ElementsAre("Crop Price", "Annual Rainfall"));
  EXPECT_THAT(farm.theValue, ElementsAre(6.5, 17));
  EXPECT_THAT(farm.theUnits, ElementsAre(UnitsPair{"$", "/ bu."}, UnitsPair{"", "inches"}));
}

TEST_F(Farm, CopyIsDeep) {
  FieldCollection farm = cornAndWheat();
  farm.isNew = true;
  farm.AddBatchDescription("Crop Price", 6.5, {"$", "/ bu."});
  FieldCollection copy = farm.Copy();
  EXPECT_TRUE(copy.isNew);
  ASSERT_EQ(copy.Count(), 2);
  EXPECT_THAT(copy.theVariable, ElementsAre("Crop Price"));
  EXPECT_THAT(copy.theValue, ElementsAre(6.5));
  EXPECT_THAT(copy.theUnits, ElementsAre(UnitsPair{"$", "/ bu."}));

  for (const auto& field : copy) {
    field->acres = 1;
    field->Depth = 0;
    field->theCrop->price = 1;
    field->theCrop->cropType = "Fallow";
    field->theCrop->inputCosts.Herbicide = 99;
    field->irrigCosts->GPM = 1;
  }
  copy.theVariable[0] = "x";
  copy.theUnits[0][1] = "y";
  copy.AddBatchDescription("z", 0, {});
  EXPECT_EQ(farm.Item(1)->acres, 50);
  EXPECT_EQ(farm.Item(2)->Depth, 8.4);
  EXPECT_EQ(farm.Item(1)->theCrop->price, 6.52);
  EXPECT_EQ(farm.Item(1)->theCrop->cropType, "Corn");
  EXPECT_EQ(farm.Item(1)->theCrop->inputCosts.Herbicide, 30);
  EXPECT_EQ(farm.Item(1)->irrigCosts->GPM, 750);
  EXPECT_THAT(farm.theVariable, ElementsAre("Crop Price"));
  EXPECT_THAT(farm.theUnits, ElementsAre(UnitsPair{"$", "/ bu."}));
}

TEST_F(Farm, CopyResetsIsNothing) {
  FieldCollection farm = cornAndWheat();
  EXPECT_FALSE(farm.isNothing);
  EXPECT_TRUE(farm.Copy().isNothing);
}

TEST_F(Farm, CopyUsesTheCachedCost) {
  FieldCollection farm = cornAndWheat();
  const double costs = farm.getCosts();
  FieldCollection copy = farm.Copy();
  EXPECT_EQ(copy.TotalCost, costs);
  EXPECT_EQ(copy.Item(1)->TotalCost, farm.Item(1)->TotalCost);
  copy.Item(1)->TotalCost = 1;
  EXPECT_EQ(copy.getCosts(), costs);
}

TEST_F(Farm, ResetBatchClearsTrendValuesAndCachedFieldTotals) {
  FieldCollection farm = cornAndWheat();
  for (const auto& field : farm) {
    field->theCrop->inputCosts.UseBatch = true;
    field->theCrop->inputCosts.BatchGeneralCosts = 3;
    field->irrigCosts->UseBatch = true;
    field->irrigCosts->BatchIrrigationCosts = 4;
  }
  farm.AddBatchDescription("Crop Price", 6.5, {"$", "/ bu."});
  farm.isNew = true;
  (void)farm.getProfit();
  farm.ResetBatch();
  for (const auto& field : farm) {
    EXPECT_FALSE(field->theCrop->inputCosts.UseBatch);
    EXPECT_EQ(field->theCrop->inputCosts.BatchGeneralCosts, 0);
    EXPECT_FALSE(field->irrigCosts->UseBatch);
    EXPECT_EQ(field->irrigCosts->BatchIrrigationCosts, 0);
    EXPECT_EQ(field->TotalCost, 0);
    EXPECT_EQ(field->TotalReturn, 0);
  }
  EXPECT_THAT(farm.theVariable, IsEmpty());
  EXPECT_THAT(farm.theValue, IsEmpty());
  EXPECT_THAT(farm.theUnits, IsEmpty());
  EXPECT_TRUE(farm.isNew);
}

TEST_F(Farm, ResetBatchKeepsTheCachedTotalCost) {
  FieldCollection farm = cornAndWheat();
  const double before = farm.getCosts();
  const double fieldBefore = farm.Item(1)->getCosts();
  farm.ResetBatch();
  farm.Item(1)->theCrop->inputCosts.MiscCost = 10;
  EXPECT_EQ(farm.getCosts(), before);
  EXPECT_NEAR(farm.Item(1)->getCosts(), fieldBefore + 500, 1e-6);
  farm.TotalCost = 0;
  EXPECT_NEAR(farm.getCosts(), before + 500, 1e-6);
}

TEST_F(Farm, RejectsTotalsThatAreTooLarge) {
  FieldCollection farm = cornAndWheat();
  for (const auto& field : farm) {
    field->TotalReturn = 1e308;
    field->TotalCost = 1e308;
  }
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)farm.getReturn(); }),
              HasSubstr("return of the farm"));
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)farm.getCosts(); }),
              HasSubstr("cost of the farm"));
  for (const auto& field : farm)
    field->TotalCost = -0.8e308;
  for (const auto& field : farm)
    field->TotalReturn = 0.8e308;
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)farm.getProfit(); }),
              HasSubstr("profit of the farm"));
}

}  // namespace
}  // namespace verdalis::testing
