#pragma once

#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "handout/Handout.h"

namespace verdalis::testing {

inline const NumberStyle dollars{"$", "", 2, true};
inline const NumberStyle plain{"", "", 1, false};

/// A number with its bits, so that 0 and -0 differ.
inline std::uint64_t bitsOf(double number) {
  return std::bit_cast<std::uint64_t>(number);
}

inline HandoutRow rowOf(std::vector<HandoutCell> cells, bool strong = false) {
  return {std::move(cells), strong};
}

/// A handout with one table.
inline Handout tableOf(std::vector<HandoutColumn> columns, std::vector<HandoutRow> rows) {
  HandoutSection section{"Options", {}, {}, {{"", std::move(columns), std::move(rows)}}};
  return {"Irrigation plan", "North farm", "", "", {std::move(section)}};
}

/// A handout with one chart below a small table.
inline Handout chartOf(Chart chart) {
  Handout handout = tableOf({{"Water", "in", true, plain}}, {rowOf({1.0}), rowOf({2.0})});
  handout.sections[0].charts.push_back(std::move(chart));
  return handout;
}

}  // namespace verdalis::testing
