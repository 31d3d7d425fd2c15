#include "tests/data/PlainUser.h"

namespace verdalis::testing {

std::optional<bool> asPlainUser(const std::function<bool()>& test) {
  return test();
}

}  // namespace verdalis::testing
