#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <system_error>

#include "text/RunTimeError.h"
#include "text/quote.h"

namespace verdalis {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A number found in a text.
struct NumberText {
  bool negative = false;
  bool hasCommas = false;
  std::string_view magnitude;  ///< From the first digit or point on, without the sign.
  std::size_t end = 0;         ///< Position in the text after the number.
};

enum class Commas { endTheNumber, areSkipped };

/// Position after a complete exponent at `pos`, or `pos` if there is none.
std::size_t endOfExponent(std::string_view text, std::size_t pos) {
  std::size_t i = pos;
  if (i == text.size() || (text[i] != 'e' && text[i] != 'E')) return pos;
  ++i;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  if (i == text.size() || !isDigit(text[i])) return pos;
  while (i < text.size() && isDigit(text[i]))
    ++i;
  return i;
}

/// Reads the number at `pos`. std::from_chars does not fit the grammar: it accepts "inf" and "nan" and
/// rejects a plus sign.
std::optional<NumberText> numberAt(std::string_view text, std::size_t pos, Commas commas) {
  NumberText result;
  std::size_t i = pos;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    result.negative = text[i] == '-';
    ++i;
  }
  const std::size_t first = i;
  bool hasDigits = false;
  for (; i < text.size(); ++i) {
    if (isDigit(text[i])) {
      hasDigits = true;
    } else if (text[i] == ',' && hasDigits && commas == Commas::areSkipped) {
      result.hasCommas = true;
    } else {
      break;
    }
  }
  if (i < text.size() && text[i] == '.') {
    ++i;
    for (; i < text.size() && isDigit(text[i]); ++i)
      hasDigits = true;
  }
  if (!hasDigits) return std::nullopt;
  result.end = endOfExponent(text, i);
  result.magnitude = text.substr(first, result.end - first);
  return result;
}

/// Whether an out-of-range number, without commas, is 1 or more: too large rather than too small.
bool isLarge(std::string_view magnitude) {
  const std::size_t mantissaEnd = std::min(magnitude.find_first_of("eE"), magnitude.size());
  const std::size_t point = std::min(magnitude.find('.'), mantissaEnd);
  const std::size_t leading = magnitude.find_first_of("123456789");
  if (leading >= mantissaEnd) return false;
  // Limit for the decimal exponent of the leading digit; a text has far fewer digits.
  constexpr std::ptrdiff_t limit = std::numeric_limits<std::ptrdiff_t>::max() / 100;
  std::ptrdiff_t exponent = 0;
  bool negative = false;
  for (std::size_t i = mantissaEnd; i < magnitude.size(); ++i) {
    if (magnitude[i] == '-') negative = true;
    if (isDigit(magnitude[i])) exponent = std::min(limit, 10 * exponent + (magnitude[i] - '0'));
  }
  if (negative) exponent = -exponent;
  exponent += static_cast<std::ptrdiff_t>(point) - static_cast<std::ptrdiff_t>(leading);
  return exponent > 0;
}

/// The nearest float to a number without sign and commas; infinity if it is too large, 0 if it is too small.
double nearestFloat(std::string_view magnitude) {
  double value = 0;
  const auto [end, error] = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), value);
  if (error == std::errc::result_out_of_range) {
    return isLarge(magnitude) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return value;
}

double valueOf(const NumberText& number) {
  double value = 0;
  if (number.hasCommas) {
    std::string plain;
    plain.reserve(number.magnitude.size());
    std::copy_if(number.magnitude.begin(), number.magnitude.end(), std::back_inserter(plain),
                 [](char c) { return c != ','; });
    value = nearestFloat(plain);
  } else {
    value = nearestFloat(number.magnitude);
  }
  return number.negative ? -value : value;
}

/// The value of a text that is one number as a whole; infinity if it is too large.
std::optional<double> wholeNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return std::nullopt;
  const auto number = numberAt(text, start, Commas::areSkipped);
  if (!number || text.find_first_not_of(' ', number->end) != std::string_view::npos) return std::nullopt;
  return valueOf(*number);
}

[[noreturn]] void throwTooLarge(std::string_view text) {
  throw RunTimeError(ErrorNumber::overflow,
                     "The number " + quoteForMessage(text) +
                         " is too large to calculate with. Enter a smaller number; the "
                         "largest possible one is about 1.79E+308.");
}

}  // namespace

double Val(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return 0;
  const auto number = numberAt(text, start, Commas::endTheNumber);
  if (!number) return 0;
  const double value = valueOf(*number);
  if (std::isinf(value)) throwTooLarge(text.substr(start, number->end - start));
  return value;
}

bool isNumeric(std::string_view text) {
  const auto value = wholeNumber(text);
  return value && std::isfinite(*value);
}

double toDouble(std::string_view text) {
  const auto value = wholeNumber(text);
  if (!value) {
    const bool blank = text.find_first_not_of(' ') == std::string_view::npos;
    throw RunTimeError(ErrorNumber::typeMismatch,
                       (blank ? std::string("A number is missing: the text is empty.")
                              : "The text " + quoteForMessage(text) + " is not a number.") +
                           " Enter digits with a point for decimals, such as 12.5 or 1,200.");
  }
  if (std::isinf(*value)) throwTooLarge(text);
  return *value;
}

std::int16_t toInt16(double value, std::string_view what) {
  using Limits = std::numeric_limits<std::int16_t>;
  const double rounded = std::nearbyint(value);
  // Negated, so that NaN fails as well.
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
    throw RunTimeError(ErrorNumber::overflow,
                       std::string(what) + " " + generalText(value) +
                           " is outside the range -32768 to 32767. Enter a whole number within it.");
  }
  return static_cast<std::int16_t>(rounded);
}

std::string generalText(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
  if (value == 0) return "0";
  const double size = std::fabs(value);
  const bool positional = size >= 1e-5 && size < 1e15;
  std::array<char, 32> buffer{};
  auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                  positional ? std::chars_format::fixed : std::chars_format::scientific)
                        .ptr;
  std::replace(buffer.data(), end, 'e', 'E');
  return {buffer.data(), end};
}

std::string ordinal(int n) {
  std::string result = std::to_string(n);
  if (n < 1 || n == 21) return result;
  if (n >= 4 && n <= 20) return result + "th";
  static constexpr std::array<const char*, 10> suffixes = {"",   "st", "nd", "rd", "th",
                                                           "th", "th", "th", "th", "th"};
  return result + suffixes.at(static_cast<std::size_t>(n % 10));
}

}  // namespace verdalis
