#pragma once

#include <cstdint>
#include <vector>

namespace verdalis::testing {

/// The possible shares of the water for a factor, in percent.
inline std::vector<double> shares(std::int16_t factor) {
  std::vector<double> levels;
  for (double level = 0; level <= 100; level += 100.0 / factor)
    levels.push_back(level);
  return levels;
}

}  // namespace verdalis::testing
