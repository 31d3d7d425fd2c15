#include "text/powersOfTen.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace verdalis {

double powerOfTen(int exponent) {
  constexpr int largest = std::numeric_limits<double>::max_exponent10;
  if (exponent > largest) return std::numeric_limits<double>::infinity();
  const std::string text = "1e" + std::to_string(exponent);
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);  // leaves 0 if it is too small
  return value;
}

int decimalExponent(double value) {
  if (!std::isfinite(value)) return 0;
  std::array<char, 32> text{};
  const char* const end =
      std::to_chars(text.data(), text.data() + text.size(), std::fabs(value), std::chars_format::scientific)
          .ptr;
  const char* at = text.data();
  while (*at != 'e')
    ++at;
  ++at;
  if (*at == '+') ++at;  // std::from_chars rejects a plus sign
  int exponent = 0;
  std::from_chars(at, end, exponent);
  return exponent;
}

}  // namespace verdalis
