#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>

#include "tests/charts/AnyChart.h"
#include "tests/charts/drawings.h"

namespace verdalis {
namespace {

using testing::anyChart;
using testing::faultOf;
using testing::PlainMeasure;

RC_GTEST_PROP(Layout, AnyChartStaysInsideAndNoTextIsOnAnother, ()) {
  const Chart chart = anyChart();
  const double width = *rc::gen::element(0.0, 1.0, 30.0, 60.0, 150.0, 333.3, 700.0, 1900.0);
  const double height = *rc::gen::element(0.0, 5.0, 30.0, 50.0, 110.0, 222.2, 500.0, 1100.0);
  const PlainMeasure measure;
  const Drawing drawing = layOut(chart, width, height, measure);
  const std::string fault = faultOf(drawing, measure);
  RC_ASSERT(fault == std::string());
}

RC_GTEST_PROP(Layout, EachTargetIsFoundAndHasATip, ()) {
  const Chart chart = anyChart();
  const PlainMeasure measure;
  const Drawing drawing = layOut(chart, 600, 400, measure);
  for (const Target& target : drawing.targets) {
    RC_ASSERT(target.reach.has(target.at));
    const Target* found = targetAt(drawing, target.at);
    RC_ASSERT(found != nullptr);
    RC_ASSERT(std::hypot(found->at.x - target.at.x, found->at.y - target.at.y) < 1e-6);
    RC_ASSERT(!tipOf(chart, target).empty());
    for (const Direction way : {Direction::left, Direction::right, Direction::up, Direction::down}) {
      const Target& beside = targetBeside(drawing, target, way);
      RC_ASSERT(&beside >= drawing.targets.data());
      RC_ASSERT(&beside < drawing.targets.data() + drawing.targets.size());
    }
  }
}

}  // namespace
}  // namespace verdalis
