#include "platform/localTime.h"

namespace verdalis {

std::tm localTime(std::time_t time) {
  std::tm local{};
  return localtime_s(&local, &time) == 0 ? local : std::tm{};
}

}  // namespace verdalis
