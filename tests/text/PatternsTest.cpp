#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "tests/text/Generators.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

struct Case {
  const char* pattern;
  double value;
  const char* text;
};

void expectAll(const std::vector<Case>& cases) {
  for (const auto& c : cases) {
    EXPECT_EQ(formatNumber(c.value, c.pattern), c.text) << generalText(c.value) << " by " << c.pattern;
  }
}

// Every pattern used by the program, with numbers that show its rules.
TEST(FormatNumber, FormatsThePatternsOfTheProgram) {
  expectAll({
      {"0", 0, "0"},
      {"0", 99.5, "100"},
      {"0", 1234567, "1234567"},
      {"#0", 0.4, "0"},
      {"#0", 795, "795"},
      {"#0.0", 0, "0.0"},
      {"#0.0", 9.95, "10.0"},
      {"#0.0", 3.96, "4.0"},
      {"#0.0", 0.05, "0.1"},
      {"#0.0", -0.04, "0.0"},
      {"#0.0", 12.34, "12.3"},
      {"#0.00", 6.5, "6.50"},
      {"#0.00", 1234.5, "1234.50"},
      {"##0.0", 85, "85.0"},
      {"##0.00", 0.005, "0.01"},
      {"##0.00", 1234.567, "1234.57"},
      {"#,##0.00", 12, "12.00"},
      {"#,##0.00", 1234.5, "1,234.50"},
      {"#,##0.00", 1234567.891, "1,234,567.89"},
      {"###.00", 0, ".00"},
      {"###.00", 0.5, ".50"},
      {"###.00", 10.2, "10.20"},
      {"###.00", 1234.005, "1234.01"},
      {"###.00", -0.5, "-.50"},
      {"###,###", 0, ""},
      {"###,###", 0.49, ""},
      {"###,###", -0.49, ""},
      {"###,###", 0.5, "1"},
      {"###,###", -0.5, "-1"},
      {"###,###", 1200, "1,200"},
      {"###,###", 1234567, "1,234,567"},
      {"###,###.0", 0, ".0"},
      {"###,###.0", 11.93, "11.9"},
      {"###,###.0", 1234.05, "1,234.1"},
      {"###,###.00", 0, ".00"},
      {"###,###.00", 1234.5, "1,234.50"},
      {"###,###.00", -1234.5, "-1,234.50"},
      {"###,##0", 0, "0"},
      {"###,##0", 999.5, "1,000"},
      {"###,##0", -1234567, "-1,234,567"},
      {"###,##0.0", 0, "0.0"},
      {"###,##0.0", 184.4, "184.4"},
      {"###,##0.0", 2345.65, "2,345.7"},
      {"###,##0.00", 0, "0.00"},
      {"###,##0.00", 0.125, "0.13"},
      {"###,##0.00", 31234.5, "31,234.50"},
      {"###,###,###", 0, ""},
      {"###,###,###", 500000, "500,000"},
      {"###,###,###", 0.99, "1"},
      {"###,###,###", 1.5, "2"},
      {"###,###,###", 0.4, ""},
      {"###,###,###", 25, "25"},
      {"###,###,##0", 0, "0"},
      {"###,###,##0", 1234567890, "1,234,567,890"},
      {"###,###,##0.0", 25, "25.0"},
      {"###,###,##0.0", 1025.25, "1,025.3"},
      {"###,###,##0.00", 1234567.005, "1,234,567.01"},
      {"###,###,##0.##", 0, "0."},
      {"###,###,##0.##", 5, "5."},
      {"###,###,##0.##", 5.1, "5.1"},
      {"###,###,##0.##", 1234.567, "1,234.57"},
      {"###,###,##0.##", -1234.5, "-1,234.5"},
      {"###,###,#00.##", 0, "00."},
      {"###,###,#00.##", 5, "05."},
      {"###,###,#00.##", 12345.678, "12,345.68"},
      {"###,###,000", 0, "000"},
      {"###,###,000", 5, "005"},
      {"###,###,000", 12345, "12,345"},
      {"###,###,###,000", -5, "-005"},
      {"###,###,###,000", 1234567890, "1,234,567,890"},
      {"###,###,###,000.00", 0, "000.00"},
      {"###,###,###,000.00", 45.678, "045.68"},
      {"###,###,###,000.00", 1045.678, "1,045.68"},
      {"$###,###,##0", 0, "$0"},
      {"$###,###,##0", 12, "$12"},
      {"$###,###,##0", -12, "-$12"},
      {"$###,###,##0", -0.4, "$0"},
      {"$###,###,##0", 1234567, "$1,234,567"},
      {"$###,###,###0", 0, "$0"},
      {"$###,###,###0", -1234.5, "-$1,235"},
  });
}

TEST(FormatNumber, RoundsHalvesAwayFromZeroOnTheShortestText) {
  expectAll({
      {"0.00", 1.005, "1.01"},
      {"0.00", -1.005, "-1.01"},
      {"0.0", 0.25, "0.3"},
      {"0.0", 0.35, "0.4"},
      {"0", 0.5, "1"},
      {"0", 1.5, "2"},
      {"0", 2.5, "3"},
      {"0", -2.5, "-3"},
      {"0", 0.49999999999999994, "0"},
      {"0", 0.05, "0"},
      {"0.0", 0.049, "0.0"},
      {"0.00", 2.675, "2.68"},
      {"0.000", 1.0005, "1.001"},
      {"0.00", 0.995, "1.00"},
      {"0.00", 9.999, "10.00"},
      {"0.00", 99.995, "100.00"},
      {"0.0", 0.95, "1.0"},
      {"0.0", 0.0999, "0.1"},
      {"#.#", 0.04, "."},
      {"#.#", 0.05, ".1"},
      {"0.00", 4.35, "4.35"},
      {"0.0", 4.35, "4.4"},
      {"0", 1e-300, "0"},
  });
}

TEST(FormatNumber, NeverWritesNegativeZero) {
  expectAll({{"0", -0.0, "0"},
             {"0.00", -0.004, "0.00"},
             {"0.00", -0.005, "-0.01"},
             {"###", -0.0, ""},
             {"$0.0", -0.04, "$0.0"},
             {"0", -5e-324, "0"}});
}

TEST(FormatNumber, HandlesRequiredAndOptionalDigits) {
  expectAll({{"#0.##", 5, "5."},
             {"#0.##", 5.25, "5.25"},
             {"0.0#", 5, "5.0"},
             {"0.#0", 5, "5.00"},
             {"0.0##", 5.1239, "5.124"},
             {"00000", 42, "00042"},
             {"0#", 5, "05"},
             {"#", 0, ""},
             {"#", 42, "42"},
             {"#.", 42, "42."},
             {"000,000", 5, "000,005"},
             {"0,000.0", 5, "0,005.0"},
             {"0,0", 1234567, "1,234,567"},
             {"0,", 1234, "1,234"},
             {".00", 0.5, ".50"},
             {".00", 12.5, "12.50"}});
}

TEST(FormatNumber, KeepsLiterals) {
  expectAll({{"$#0.00", -1.5, "-$1.50"},
             {"US $ 0", 3, "US $ 3"},
             {"\xE2\x82\xAC"
              "0",
              3,
              "\xE2\x82\xAC"
              "3"},
             {"0 /ac", 3, "3 /ac"},
             {"0.0%", 3, "3.0%"},
             {"0.0.0", 3, "3.0.0"},
             {"$", 0, "$"},
             {"", 0, ""}});
}

TEST(FormatNumber, FormatsTheLargestAndTheSmallestNumbers) {
  EXPECT_EQ(formatNumber(1e300, "0"), "1" + std::string(300, '0'));
  EXPECT_EQ(formatNumber(1e23, "0"), "1" + std::string(23, '0'));
  EXPECT_EQ(formatNumber(-1e21, "$###,##0.0"), "-$1,000,000,000,000,000,000,000.0");
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::max(), "0.#"),
            "17976931348623157" + std::string(292, '0') + ".");
  EXPECT_EQ(formatNumber(5e-324, "0.00"), "0.00");
  EXPECT_EQ(formatNumber(5e-324, "0." + std::string(324, '#')), "0." + std::string(323, '0') + "5");
  EXPECT_EQ(formatNumber(5e-324, "0." + std::string(323, '0')), "0." + std::string(322, '0') + "1");
  EXPECT_EQ(formatNumber(1.5, "0." + std::string(400, '0')), "1.5" + std::string(399, '0'));
}

TEST(FormatNumber, RejectsInfinityAndNaN) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {infinity, -infinity, std::nan("")}) {
    try {
      FAIL() << formatNumber(value, "###,##0.00");
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::overflow);
    }
  }
}

// Rounding as on paper: writes the number in full, adds five at the first digit to drop, carries, and cuts
// off the rest.

/// The digits of a number without sign, in full: at least one before the point, and `decimals` + 1 after it.
struct Written {
  std::string integers;
  std::string decimals;
};

Written writeOut(double value, std::size_t decimals) {
  const std::string text = generalText(std::fabs(value));
  const std::size_t mark = std::min(text.find('E'), text.size());
  int shift = mark < text.size() ? std::stoi(text.substr(mark + 1)) : 0;
  std::string mantissa = text.substr(0, mark);
  const std::size_t point = mantissa.find('.');
  Written result{mantissa.substr(0, point), point < mantissa.size() ? mantissa.substr(point + 1) : ""};
  for (; shift > 0; --shift) {
    result.integers += result.decimals.empty() ? '0' : result.decimals.front();
    if (!result.decimals.empty()) result.decimals.erase(0, 1);
  }
  for (; shift < 0; ++shift) {
    result.decimals.insert(0, 1, result.integers.empty() ? '0' : result.integers.back());
    if (!result.integers.empty()) result.integers.pop_back();
  }
  if (result.decimals.size() <= decimals) result.decimals.resize(decimals + 1, '0');
  return result;
}

std::string roundedOnPaper(double value, std::size_t decimals) {
  const Written written = writeOut(value, decimals);
  std::string digits = "0" + written.integers + written.decimals.substr(0, decimals + 1);
  int carry = 5;
  for (std::size_t i = digits.size(); i-- > 0;) {
    const int sum = digits[i] - '0' + carry;
    digits[i] = static_cast<char>('0' + sum % 10);
    carry = sum / 10;
  }
  digits.pop_back();
  const bool zero = digits.find_first_not_of('0') == std::string::npos;
  std::string integers = digits.substr(0, digits.size() - decimals);
  integers.erase(0, std::min(integers.find_first_not_of('0'), integers.size()));
  if (integers.empty()) integers = "0";
  std::string result = value < 0 && !zero ? "-" + integers : integers;
  if (decimals > 0) result += "." + digits.substr(digits.size() - decimals);
  return result;
}

RC_GTEST_PROP(FormatNumberProperty, RoundsLikeOnPaper, ()) {
  for (const double value : *testing::manyNumbers()) {
    RC_ASSERT(formatNumber(value, "0") == roundedOnPaper(value, 0));
    RC_ASSERT(formatNumber(value, "#0.0") == roundedOnPaper(value, 1));
    RC_ASSERT(formatNumber(value, "0.00") == roundedOnPaper(value, 2));
    RC_ASSERT(formatNumber(value, "0.0000") == roundedOnPaper(value, 4));
  }
}

RC_GTEST_PROP(FormatNumberProperty, GroupsDigitsByThree, ()) {
  for (const double value : *testing::manyNumbers()) {
    std::string grouped = formatNumber(value, "###,##0.00");
    const std::string integers = grouped.substr(0, grouped.find('.'));
    for (std::size_t behind = 0; behind < integers.size(); ++behind) {
      const char c = integers[integers.size() - 1 - behind];
      RC_ASSERT((c == ',') == (behind % 4 == 3 && c != '-'));
    }
    RC_ASSERT(integers.front() != ',');
    grouped.erase(std::remove(grouped.begin(), grouped.end(), ','), grouped.end());
    RC_ASSERT(grouped == formatNumber(value, "0.00"));
  }
}

RC_GTEST_PROP(FormatNumberProperty, AcceptsAnyPattern, ()) {
  const auto pattern = *rc::gen::oneOf(
      rc::gen::container<std::string>(rc::gen::elementOf(std::string("#0,.$ -"))), testing::anyBytes());
  const double value = *rc::gen::oneOf(testing::anyFinite(), testing::typedNumber());
  const std::string text = formatNumber(value, pattern);
  RC_ASSERT(text.size() <= 2 * pattern.size() + 420);
}

}  // namespace
}  // namespace verdalis
