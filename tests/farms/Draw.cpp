#include "tests/farms/Draw.h"

namespace verdalis::testing {

std::string Draw::digits(std::size_t count) {
  std::string text;
  while (text.size() < count)
    text += static_cast<char>('0' + below(10));
  return text;
}

std::string Draw::number(std::size_t low, std::size_t high) {
  constexpr std::array<std::size_t, 8> decimals{0, 0, 1, 2, 2, 2, 13, 20};
  const std::string whole = std::to_string(low + below(high - low));
  const std::size_t count = decimals.at(below(decimals.size()));
  return count == 0 ? whole : whole + '.' + digits(count);
}

}  // namespace verdalis::testing
