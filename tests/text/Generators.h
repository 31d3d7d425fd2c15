#pragma once

#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace verdalis::testing {

/// Any finite number. Every bit pattern is equally likely, whatever the size of the test case.
inline rc::Gen<double> anyFinite() {
  auto bits = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
  return rc::gen::suchThat(rc::gen::map(bits, [](std::uint64_t b) { return std::bit_cast<double>(b); }),
                           [](double x) { return std::isfinite(x); });
}

/// Numbers as users type them: a few digits with up to five decimals, so that exact halves are common when
/// rounding.
inline rc::Gen<double> typedNumber() {
  return rc::gen::map(
      rc::gen::pair(rc::gen::inRange<std::int64_t>(-20'000'000, 20'000'000), rc::gen::inRange(0, 6)),
      [](const std::pair<std::int64_t, int>& parts) {
        return static_cast<double>(parts.first) / std::pow(10.0, parts.second);
      });
}

/// Many numbers of both kinds, for one round of a property test.
inline rc::Gen<std::vector<double>> manyNumbers() {
  return rc::gen::container<std::vector<double>>(40, rc::gen::oneOf(anyFinite(), typedNumber()));
}

/// Arbitrary bytes.
inline rc::Gen<std::string> anyBytes() {
  return rc::gen::arbitrary<std::string>();
}

}  // namespace verdalis::testing
