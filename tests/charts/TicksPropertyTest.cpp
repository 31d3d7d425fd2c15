#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "charts/ticks.h"
#include "tests/charts/AnyChart.h"

namespace verdalis {
namespace {

RC_GTEST_PROP(Ticks, AreInsideAscendingAndNotMany, ()) {
  const double a = *testing::anyNumber();
  const double b = *testing::anyNumber();
  RC_PRE(canShow(a) && canShow(b));
  const Span span = spanOf(a, b);
  RC_ASSERT(span.length() > 0);
  const auto most = *rc::gen::inRange<std::size_t>(0, 40);
  const std::vector<Tick> ticks = roundTicks(span, most, {"$", "", 0, true});
  RC_ASSERT(ticks.size() <= std::max<std::size_t>(most, 2) + 1);
  const Span wide = roundSpan(span, most);
  RC_ASSERT(wide.low <= span.low + span.length() * 1e-5);
  RC_ASSERT(wide.high >= span.high - span.length() * 1e-5);
  std::set<std::string> texts;
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    RC_ASSERT(ticks[i].value >= span.low - span.length() * 1e-5);
    RC_ASSERT(ticks[i].value <= span.high + span.length() * 1e-5);
    if (i > 0) RC_ASSERT(ticks[i].value > ticks[i - 1].value);
    RC_ASSERT(texts.insert(ticks[i].text).second);
  }
}

}  // namespace
}  // namespace verdalis
