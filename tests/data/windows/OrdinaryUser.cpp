#include "tests/data/OrdinaryUser.h"

namespace verdalis::testing {

std::optional<bool> asOrdinaryUser(const std::function<bool()>& test) {
  return test();
}

}  // namespace verdalis::testing
