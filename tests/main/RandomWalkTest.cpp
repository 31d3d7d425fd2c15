#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "tests/main/RandomWalk.h"

// A random walk of user actions over all controls, with odd texts: nothing crashes or hangs, exactly one pane
// is visible, every pane can be left, and every message has a title and a text. It takes 5,000 actions, and
// with VERDALIS_LONG_WALK=1 in the environment another 100,000 in longer walks.

namespace verdalis::testing {
namespace {

void failIfAny(const std::string& fault, const RandomWalk& person) {
  if (!fault.empty()) RC_FAIL(fault + "\n" + person.story());
}

/// A walk that ends by leaving the visible pane.
void walk(std::size_t actions) {
  const auto anyNumber = rc::gen::resize(
      rc::kNominalSize, rc::gen::inRange<std::uint32_t>(0, std::numeric_limits<std::uint32_t>::max()));
  // A shorter walk is a different walk, so there is nothing to shrink. The recorded actions describe it.
  const auto numbers = *rc::gen::noShrink(rc::gen::container<std::vector<std::uint32_t>>(actions, anyNumber));
  RandomWalk person;
  for (const std::uint32_t number : numbers) {
    person.act(number);
    failIfAny(person.fault(), person);
  }
  failIfAny(person.findsHome() ? "" : "no way home", person);
  failIfAny(person.fault(), person);
}

constexpr std::size_t walks = 100;  // of each check

TEST(RandomWalkTest, NothingBreaksAndEveryPaneCanBeLeft) {
  constexpr std::size_t actions = 5000 / walks;
  EXPECT_TRUE(rc::check([] { walk(actions); }));
}

/// A quarter of the long walk. The quarters can run in parallel.
class LongRandomWalk : public ::testing::TestWithParam<int> {};

TEST_P(LongRandomWalk, NothingBreaksAndEveryPaneCanBeLeft) {
  const char* const wish = std::getenv("VERDALIS_LONG_WALK");
  if (wish == nullptr || std::string(wish) != "1") GTEST_SKIP() << "VERDALIS_LONG_WALK=1 asks for it";
  constexpr std::size_t actions = 100000 / 4 / walks;
  EXPECT_TRUE(rc::check([] { walk(actions); }));
}

INSTANTIATE_TEST_SUITE_P(Quarters, LongRandomWalk, ::testing::Range(0, 4));

}  // namespace
}  // namespace verdalis::testing
