#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "model/Crop.h"
#include "tests/support/Crops.h"
#include "tests/support/PlainFarm.h"

// Yields at any depth, compared exactly with a second version of the formula.

namespace verdalis::testing {
namespace {

/// A depth at or near a tenth that rounds up to the next inch.
rc::Gen<double> depthNearATenth() {
  return rc::gen::map(
      rc::gen::tuple(rc::gen::inRange(0, 1200), rc::gen::inRange(0, 100), rc::gen::inRange(-3, 4)),
      [](const std::tuple<int, int, int>& parts) {
        const auto [inches, hundredths, steps] = parts;
        double depth = (inches * 100 + hundredths) / 100.0;
        for (int i = 0; i < std::abs(steps); ++i)
          depth = std::nextafter(depth, steps < 0 ? 0 : 1e9);
        return depth;
      });
}

rc::Gen<double> anyDepth() {
  return rc::gen::oneOf(depthNearATenth(), rc::gen::map(rc::gen::inRange<int>(0, 1'000'000'000),
                                                        [](int n) { return n / 1'000'000.0; }));
}

RC_GTEST_PROP(SetYield, UsesTheWholeInchesOfTheDepthAsShown, ()) {
  // The differences between adjacent rows are all different, so a wrong row gives a wrong yield.
  static const Crop crop = [] {
    YieldTable table(1000, 0, 1);
    for (int water = 0; water <= 1000; ++water) {
      table.setCell(water, 0, 100 + water * 1.7 + 0.001 * water * water);
      table.setCell(water, 1, 0.9 * std::sin(water) * std::sin(water));
    }
    Crop made = namedCrop("Oats");
    made.maxYield = 50;
    made.normalFactor = 1.3;
    made.setYieldTable(table);
    return made;
  }();
  const auto depths = *rc::gen::container<std::vector<double>>(50, anyDepth());
  for (const double depth : depths) {
    for (const double rain : {0.0, 1.0}) {
      Crop copy = crop;
      RC_ASSERT(yieldAt(copy, depth, rain) == plainYield(crop, depth, rain));
    }
  }
}

}  // namespace
}  // namespace verdalis::testing
