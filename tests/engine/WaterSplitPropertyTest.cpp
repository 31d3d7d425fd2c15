#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "engine/MakingSplits.h"
#include "tests/engine/waterShares.h"

namespace verdalis::testing {
namespace {

RC_GTEST_PROP(WaterSplits, AllRoundTo100AndAreUnique, ()) {
  const auto n = static_cast<std::int16_t>(*rc::gen::inRange(1, 5));
  const auto factor = static_cast<std::int16_t>(*rc::gen::inRange(1, n == 4 ? 41 : 100));
  ProgramState state;
  state.FineFactor = factor;
  const SplitCollection splits = makeWaterSplits(n, 100, 0, state);
  const auto levels = shares(factor);
  std::vector<double> previous;
  for (const Split& split : splits) {
    // Converts acre-inches back to shares.
    Split percentages;
    for (const double volume : split.getSplits()) {
      const auto level =
          std::find_if(levels.begin(), levels.end(), [&](double l) { return (l / 100) * 100 == volume; });
      RC_ASSERT(level != levels.end());
      percentages.addSplit(*level);
    }
    RC_ASSERT(percentages.total() == 100);
    RC_ASSERT(percentages.Count() == n);
    RC_ASSERT(previous.empty() || split.getSplits() < previous);
    previous = split.getSplits();
  }
}

}  // namespace
}  // namespace verdalis::testing
