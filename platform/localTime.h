#pragma once

#include <ctime>

namespace verdalis {

/// The time on the clock of this place; all zero if the system cannot tell it.
[[nodiscard]] std::tm localTime(std::time_t time);

}  // namespace verdalis
