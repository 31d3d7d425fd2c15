#pragma once

#include <cstddef>
#include <cstring>

namespace verdalis {

/// Number of prices that anyReaches() tests at once.
inline constexpr std::size_t priceBlockSize = 8;

/// Whether any of priceBlockSize crops on the last field makes a profit of `limit` or more. The partial sums
/// hold the returns and costs of the fields before. Computes two profits at once, each rounded as if computed
/// alone.
[[nodiscard]] inline bool anyReaches(double limit, double partialReturns, double partialCosts,
                                     const double* returns, const double* costs) {
  using Lanes = double __attribute__((vector_size(16)));
  const auto hits = [&](std::size_t from) {
    Lanes r;
    Lanes c;
    std::memcpy(&r, returns + from, sizeof(r));
    std::memcpy(&c, costs + from, sizeof(c));
    return (partialReturns + r) - (partialCosts + c) >= limit;
  };
  static_assert(priceBlockSize == 8);
  const auto any = (hits(0) | hits(2)) | (hits(4) | hits(6));
  return (any[0] | any[1]) != 0;
}

}  // namespace verdalis
