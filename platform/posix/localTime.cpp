#include "platform/localTime.h"

namespace verdalis {

std::tm localTime(std::time_t time) {
  std::tm local{};
  return ::localtime_r(&time, &local) != nullptr ? local : std::tm{};
}

}  // namespace verdalis
