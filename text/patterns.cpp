#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// A parsed number pattern. Counts are numbers of digits.
struct Pattern {
  std::string_view prefix;
  std::string_view suffix;
  std::ptrdiff_t requiredIntegers = 0;
  std::ptrdiff_t requiredDecimals = 0;
  std::ptrdiff_t mostDecimals = 0;
  bool grouped = false;
  bool hasPoint = false;

  explicit Pattern(std::string_view text) {
    std::size_t i = std::min(text.find_first_of("#0,."), text.size());
    prefix = text.substr(0, i);
    for (; i < text.size(); ++i) {
      const char c = text[i];
      if (c == ',') {
        grouped = true;
      } else if (c == '0' || (c == '#' && requiredIntegers > 0)) {
        ++requiredIntegers;
      } else if (c != '#') {
        break;
      }
    }
    if (i < text.size() && text[i] == '.') {
      hasPoint = true;
      for (++i; i < text.size() && (text[i] == '#' || text[i] == '0'); ++i) {
        ++mostDecimals;
        if (text[i] == '0') requiredDecimals = mostDecimals;
      }
    }
    suffix = text.substr(i);
  }
};

/// The absolute value of a number as its shortest decimal digits: 0.d1d2d3... x 10^point. No digits means 0.
class Decimal {
 public:
  explicit Decimal(double value) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), std::fabs(value), std::chars_format::scientific)
            .ptr;
    const char* i = text.data();
    for (; *i != 'e'; ++i) {
      if (*i != '.') digits_.at(static_cast<std::size_t>(count_++)) = *i;
    }
    ++i;
    if (*i == '+') ++i;  // std::from_chars rejects a plus sign
    int exponent = 0;
    std::from_chars(i, end, exponent);
    point_ = exponent + 1;
    dropTrailingZeros();
  }

  /// Rounds to a number of decimals, half away from zero.
  void round(std::ptrdiff_t decimals) {
    const std::ptrdiff_t keep = point_ + decimals;
    if (keep >= count_) return;
    const bool up = keep >= 0 && digits_.at(static_cast<std::size_t>(keep)) >= '5';
    count_ = std::max<std::ptrdiff_t>(keep, 0);
    if (up) {
      while (count_ > 0 && last() == '9')
        --count_;
      if (count_ > 0) {
        ++last();
      } else {
        count_ = 1;
        last() = '1';
        ++point_;
      }
    }
    dropTrailingZeros();
  }

  [[nodiscard]] bool isZero() const { return count_ == 0; }
  [[nodiscard]] std::ptrdiff_t integers() const { return std::max<std::ptrdiff_t>(point_, 0); }
  [[nodiscard]] std::ptrdiff_t decimals() const { return std::max<std::ptrdiff_t>(count_ - point_, 0); }

  /// The digit at 10^power, 0 if the number has none there.
  [[nodiscard]] char digit(std::ptrdiff_t power) const {
    const std::ptrdiff_t i = point_ - 1 - power;
    return i < 0 || i >= count_ ? '0' : digits_.at(static_cast<std::size_t>(i));
  }

 private:
  char& last() { return digits_.at(static_cast<std::size_t>(count_ - 1)); }

  void dropTrailingZeros() {
    while (count_ > 0 && last() == '0')
      --count_;
    if (count_ == 0) point_ = 0;
  }

  std::array<char, 20> digits_{};  // a 64-bit float never needs more than 17
  std::ptrdiff_t count_ = 0;
  std::ptrdiff_t point_ = 0;
};

}  // namespace

std::string formatNumber(double value, std::string_view pattern) {
  if (!std::isfinite(value)) {
    throw RunTimeError(ErrorNumber::overflow,
                       "A result cannot be shown as a number (" + generalText(value) +
                           "). Check the values entered for numbers that are far too large, or zero.");
  }
  const Pattern parts(pattern);
  Decimal number(value);
  number.round(parts.mostDecimals);
  const std::ptrdiff_t integers = std::max(number.integers(), parts.requiredIntegers);
  const std::ptrdiff_t decimals = std::max(number.decimals(), parts.requiredDecimals);

  std::string result;
  result.reserve(static_cast<std::size_t>(integers + integers / 3 + decimals + 2) + parts.prefix.size() +
                 parts.suffix.size());
  if (value < 0 && !number.isZero()) result += '-';
  result += parts.prefix;
  for (std::ptrdiff_t power = integers - 1; power >= 0; --power) {
    result += number.digit(power);
    if (parts.grouped && power > 0 && power % 3 == 0) result += ',';
  }
  if (parts.hasPoint) result += '.';
  for (std::ptrdiff_t i = 1; i <= decimals; ++i)
    result += number.digit(-i);
  result += parts.suffix;
  return result;
}

}  // namespace verdalis
