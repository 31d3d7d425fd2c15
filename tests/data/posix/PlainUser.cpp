#include "tests/data/PlainUser.h"

#include "tests/data/OrdinaryUser.h"

namespace verdalis::testing {

std::optional<bool> asPlainUser(const std::function<bool()>& test) {
  return asOrdinaryUser(test);
}

}  // namespace verdalis::testing
