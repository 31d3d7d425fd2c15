#include <rapidcheck.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "tests/results/SummaryPaneFixture.h"

namespace verdalis {
namespace {

using namespace testing;

TEST_F(SummaryPaneTest, TheRemovedOptionIsFoundByCountingItsColumns) {
  EXPECT_TRUE(rc::check("the counting of columns", [this] {
    const auto sizes = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 5)));
    saved.clear();
    for (const int size : sizes)
      saved.push_back(fieldsOf(size));
    const auto before = saved;
    pane.showSummary();
    const int clicked = *rc::gen::inRange(0, pane.fgsummary.columns());
    std::optional<std::size_t> expected;
    int n = 1;
    for (std::size_t i = 0; i < sizes.size() && !expected; ++i) {
      for (int j = 0; j <= sizes[i]; ++j) {
        if (n == clicked) {
          expected = i;
          break;
        }
        ++n;
      }
    }
    pane.fgsummary.clickCell(1, clicked);
    auto after = before;
    if (expected) after.erase(after.begin() + static_cast<std::ptrdiff_t>(*expected));
    RC_ASSERT(saved == after);
  }));
}

}  // namespace
}  // namespace verdalis
