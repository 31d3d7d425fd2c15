#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "tests/text/Generators.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

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
