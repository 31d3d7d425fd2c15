#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "tests/engine/cropLists.h"
#include "tests/support/Errors.h"

// All assignments of the selected crops to the fields.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(CropCombinations, StartWithTheLastCropOnEveryField) {
  EXPECT_THAT(combos({"A", "B"}, 2), ElementsAre("B, B", "B, A", "A, B", "A, A"));
}

TEST(CropCombinations, OfOneFieldAreTheCropsInReverseOrder) {
  EXPECT_THAT(combos({"A", "B", "C"}, 1), ElementsAre("C", "B", "A"));
}

TEST(CropCombinations, OfOneCropIsASingleCombination) {
  EXPECT_THAT(combos({"A"}, 4), ElementsAre("A, A, A, A"));
}

TEST(CropCombinations, OfTwoCropsOnThreeFieldsAreEight) {
  EXPECT_THAT(combos({"A", "B"}, 3), ElementsAre("B, B, B", "B, B, A", "B, A, B", "B, A, A", "A, B, B",
                                                 "A, B, A", "A, A, B", "A, A, A"));
}

TEST(CropCombinations, WithoutCropsAreEmpty) {
  for (std::int16_t n = 1; n <= 4; ++n)
    EXPECT_EQ(makeCropCombos(CropScenario(), n).Count(), 0U) << n;
}

TEST(CropCombinations, CountIsTheCropsToThePowerOfTheFields) {
  const std::vector<std::string> names(10, "Corn");
  EXPECT_EQ(makeCropCombos(cropsNamed(names), 4).Count(), 10'000U);
  EXPECT_EQ(makeCropCombos(cropsNamed({"A", "B", "C"}), 4).Count(), 81U);
}

TEST(CropCombinations, CopyTheCropsWhenCreated) {
  const CropScenario crops = cropsNamed({"A", "B"});
  crops.Item(1)->price = 5;
  const CropCombinations combinations = makeCropCombos(crops, 2);
  crops.Item(1)->price = 9;
  crops.Item(2)->cropType = "X";
  const CropScenario first = combinations.Item(1);
  EXPECT_EQ(first.toString(), "B, B");
  EXPECT_EQ(combinations.Item(4).Item(1)->price, 5);
  EXPECT_NE(combinations.Item(4).Item(1), crops.Item(1));
}

TEST(CropCombinations, TreatFallowLikeAnyOtherCrop) {
  EXPECT_THAT(combos({"Corn", "Fallow"}, 2),
              ElementsAre("Fallow, Fallow", "Fallow, Corn", "Corn, Fallow", "Corn, Corn"));
}

TEST(CropCombinations, RejectAnInvalidIndex) {
  const CropCombinations combinations = makeCropCombos(cropsNamed({"A", "B"}), 2);
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)combinations.Item(0); }), HasSubstr("0"));
  EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)combinations.Item(5); }), HasSubstr("5"));
}

TEST(CropCombinations, RejectACountThatOverflows) {
  std::vector<std::string> names(66'000, "A");
  EXPECT_THAT(errorText(ErrorNumber::overflow, [&] { (void)makeCropCombos(cropsNamed(names), 4); }),
              HasSubstr("too many crops"));
}

}  // namespace
}  // namespace verdalis::testing
