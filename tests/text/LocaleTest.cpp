#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// German number format for the streams of the standard library; needs no installed locale.
class GermanNumbers : public std::numpunct<char> {
 public:
  GermanNumbers() : std::numpunct<char>(1) {}  // reference count 1, so that no locale deletes it

 protected:
  [[nodiscard]] char do_decimal_point() const override { return ','; }
  [[nodiscard]] char do_thousands_sep() const override { return '.'; }
  [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

class Locale : public ::testing::Test {
 protected:
  void TearDown() override {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }

  static void expectPointsAndCommas() {
    expectReading();
    expectWriting();
  }

 private:
  static void expectReading() {
    EXPECT_EQ(Val("1234.5"), 1234.5);
    EXPECT_EQ(Val("1,5"), 1);
    EXPECT_TRUE(isNumeric("1,234.5"));
    EXPECT_EQ(toDouble("1,234.5"), 1234.5);
    EXPECT_FALSE(isNumeric("1.234,5"));
  }

  static void expectWriting() {
    EXPECT_EQ(generalText(1234.5), "1234.5");
    EXPECT_EQ(generalText(1.5e-7), "1.5E-07");
    EXPECT_EQ(formatNumber(1234567.5, "###,##0.00"), "1,234,567.50");
    EXPECT_EQ(ordinal(1022), "1022nd");
    EXPECT_EQ(lowerCase("\xC9I"), "\xC9i");
    try {
      static_cast<void>(toInt16(1234567.5));
      FAIL();
    } catch (const RunTimeError& error) {
      EXPECT_NE(std::string(error.what()).find("1234567.5"), std::string::npos) << error.what();
    }
  }
};

TEST_F(Locale, LocaleOfStreamsHasNoEffect) {
  static GermanNumbers numbers;
  std::locale::global(std::locale(std::locale::classic(), &numbers));
  expectPointsAndCommas();
}

TEST_F(Locale, GermanLocaleHasNoEffect) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed here";
  }
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  std::locale::global(std::locale("de_DE.UTF-8"));
  expectPointsAndCommas();
}

}  // namespace
}  // namespace verdalis
