#include <gtest/gtest.h>

#include "trend/TrendValues.h"

namespace verdalis {
namespace {

TEST(TrendMessageKind, ValuesThatCannotBeReadGiveARefusal) {
  const TrendReading reading = readValuesList("none", true);
  ASSERT_TRUE(reading.refusal);
  EXPECT_EQ(reading.refusal->kind, MessageKind::refusal);
  ASSERT_TRUE(refuseFixedTrend(32768, 1));
  EXPECT_EQ(refuseFixedTrend(32768, 1)->kind, MessageKind::refusal);
}

TEST(TrendMessageKind, RainOutsideTheRangeIsANotice) {
  ASSERT_TRUE(refuseRain({10.0}));
  EXPECT_EQ(refuseRain({10.0})->kind, MessageKind::notice);
}

}  // namespace
}  // namespace verdalis
