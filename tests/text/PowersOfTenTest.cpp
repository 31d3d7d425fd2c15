#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "text/powersOfTen.h"

namespace verdalis {
namespace {

TEST(PowersOfTen, AreTheNearestFloats) {
  EXPECT_EQ(powerOfTen(0), 1);
  EXPECT_EQ(powerOfTen(3), 1000);
  EXPECT_EQ(powerOfTen(-1), 0.1);
  EXPECT_EQ(powerOfTen(23), 1e23);
  EXPECT_EQ(powerOfTen(-23), 1e-23);
  EXPECT_EQ(powerOfTen(308), 1e308);
  EXPECT_EQ(powerOfTen(-323), 1e-323);
  for (int exponent = 1; exponent <= 22; ++exponent)
    EXPECT_EQ(powerOfTen(exponent), 10 * powerOfTen(exponent - 1)) << exponent << ": all of these are exact";
}

TEST(PowersOfTen, BeyondTheFloats) {
  EXPECT_EQ(powerOfTen(309), std::numeric_limits<double>::infinity());
  EXPECT_EQ(powerOfTen(std::numeric_limits<int>::max()), std::numeric_limits<double>::infinity());
  EXPECT_EQ(powerOfTen(-324), 0);
  EXPECT_EQ(powerOfTen(std::numeric_limits<int>::min()), 0);
}

TEST(DecimalExponent, ChangesExactlyAtThePowers) {
  for (int exponent = -307; exponent <= 308; ++exponent) {
    const double power = powerOfTen(exponent);
    EXPECT_EQ(decimalExponent(power), exponent);
    EXPECT_EQ(decimalExponent(-power), exponent);
    EXPECT_EQ(decimalExponent(std::nextafter(power, 0.0)), exponent - 1);
  }
}

TEST(DecimalExponent, OfWhatHasNone) {
  EXPECT_EQ(decimalExponent(0), 0);
  EXPECT_EQ(decimalExponent(-0.0), 0);
  EXPECT_EQ(decimalExponent(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(decimalExponent(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(decimalExponent(std::numeric_limits<double>::denorm_min()), -324);
}

}  // namespace
}  // namespace verdalis
