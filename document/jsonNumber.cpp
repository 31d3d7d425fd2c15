#include "document/jsonNumber.h"

#include <cmath>
#include <cstdint>

namespace verdalis {

Json jsonNumber(double value) {
  constexpr double exact = 1e15;
  const bool whole = std::fabs(value) < exact && value == std::trunc(value);
  if (whole && !(value == 0 && std::signbit(value))) return static_cast<std::int64_t>(value);
  return value;
}

}  // namespace verdalis
