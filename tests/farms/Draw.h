#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace verdalis::testing {

/// Draws numbers that are the same everywhere: the generator is defined by the standard, its distributions
/// are not.
class Draw {
 public:
  explicit Draw(std::uint64_t seed) : random_(seed) {}

  /// A whole number from 0, below `end`.
  std::size_t below(std::size_t end) { return static_cast<std::size_t>(random_() % end); }

  bool percent(std::size_t chance) { return below(100) < chance; }

  template <std::size_t Count>
  std::string_view oneOf(const std::array<std::string_view, Count>& texts) {
    return texts.at(below(Count));
  }

  std::string digits(std::size_t count);

  /// The text of a number from `low`, below `high`: whole, with one or two decimals, as in a field that was
  /// typed, or with so many that the nearest float is hard to find.
  std::string number(std::size_t low, std::size_t high);

 private:
  std::mt19937_64 random_;
};

}  // namespace verdalis::testing
