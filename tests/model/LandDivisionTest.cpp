#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/LandDivision.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;

TEST(LandDivisions, MatchTheSixOptionButtons) {
  const auto& divisions = landDivisions();
  EXPECT_EQ(divisions[0].caption, "50 - 50");
  EXPECT_THAT(divisions[0].percentages, ElementsAre(50, 50));
  EXPECT_EQ(divisions[1].caption, "75 - 25");
  EXPECT_THAT(divisions[1].percentages, ElementsAre(75, 25));
  EXPECT_EQ(divisions[2].caption, "33 - 33 - 33");
  EXPECT_THAT(divisions[2].percentages, ElementsAre(33, 33, 33));
  EXPECT_EQ(divisions[3].caption, "50 - 25 - 25");
  EXPECT_THAT(divisions[3].percentages, ElementsAre(50, 25, 25));
  EXPECT_EQ(divisions[4].caption, "25 - 25 - 25 - 25");
  EXPECT_THAT(divisions[4].percentages, ElementsAre(25, 25, 25, 25));
  EXPECT_EQ(divisions[5].caption, "100 ");
  EXPECT_THAT(divisions[5].percentages, ElementsAre(100));
}

}  // namespace
}  // namespace verdalis::testing
