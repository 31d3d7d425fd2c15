#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/charts/drawings.h"

namespace verdalis {
namespace {

using testing::PlainMeasure;

TEST(Layout, SizesThatAreNoSizesGiveAnEmptyDrawing) {
  const PlainMeasure measure;
  const Chart chart{"Title", {}, LineChart{{}, {}, {{"", {{1, 2, {}}}, true, true}}, {}, {}, {}}, {}};
  for (const double size : {0.0, -5.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(layOut(chart, size, 100, measure).parts.empty());
    EXPECT_TRUE(layOut(chart, 100, size, measure).parts.empty());
  }
  EXPECT_TRUE(layOut(chart, 10, 10, measure).parts.empty());
  EXPECT_FALSE(layOut(chart, 100, 100, measure).parts.empty());
}

TEST(Layout, ChartsWithoutValuesSaySo) {
  const PlainMeasure measure;
  for (const Chart& chart : {Chart{"Title", {}, LineChart{}, {}}, Chart{"Title", {}, MapChart{}, {}},
                             Chart{"Title", {}, BarChart{}, {}}}) {
    const Drawing drawing = layOut(chart, 300, 200, measure);
    EXPECT_TRUE(testing::hasText(drawing, "Title"));
    EXPECT_TRUE(testing::hasText(drawing, "No values"));
    EXPECT_TRUE(drawing.targets.empty());
  }
}

}  // namespace
}  // namespace verdalis
