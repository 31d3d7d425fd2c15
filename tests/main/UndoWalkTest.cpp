#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "document/farmText.h"
#include "tests/main/RandomWalk.h"

// After a random walk of user actions, undo leads back to the first document and redo to the last, step by
// step, and the controls hold each of them.

namespace verdalis::testing {
namespace {

/// Why the controls do not hold the document that a step leads to; empty if they do.
void expectOnScreen(frmMain& main, const FarmDocument& wanted, const RandomWalk& person) {
  const FarmDocument shown = main.farmControls.read(wanted);
  if (shown == wanted) return;
  RC_FAIL("on screen is\n" + writeFarm(shown) + "in place of\n" + writeFarm(wanted) + person.story());
}

void walkAndUndo(std::size_t actions) {
  const auto anyNumber = rc::gen::resize(
      rc::kNominalSize, rc::gen::inRange<std::uint32_t>(0, std::numeric_limits<std::uint32_t>::max()));
  const auto numbers = *rc::gen::noShrink(rc::gen::container<std::vector<std::uint32_t>>(actions, anyNumber));
  RandomWalk person;
  for (const std::uint32_t number : numbers)
    person.act(number);
  if (person.hasEnded() || !person.findsHome()) return;
  frmMain& main = person.main();
  main.keeper.finishTyping();
  const SharedDocument last = main.keeper.shared();
  std::size_t undone = 0;
  while (const UndoStep* step = main.keeper.toUndo()) {
    const SharedDocument wanted = step->before;
    main.farms.undo();
    ++undone;
    expectOnScreen(main, *wanted, person);
  }
  for (; undone > 0; --undone) {
    RC_ASSERT(main.keeper.toRedo() != nullptr);
    const SharedDocument wanted = main.keeper.toRedo()->after;
    main.farms.redo();
    expectOnScreen(main, *wanted, person);
  }
  RC_ASSERT(*main.keeper.shared() == *last);
}

TEST(UndoWalk, UndoLeadsToTheStartAndRedoToTheEnd) {
  EXPECT_TRUE(rc::check([] { walkAndUndo(40); }));
}

TEST(UndoWalk, AThousandActionsAreUndoneAndRepeated) {
  EXPECT_TRUE(rc::check([] {
    static int walks = 0;
    if (++walks > 3) return;  // each is long
    walkAndUndo(1000);
  }));
}

}  // namespace
}  // namespace verdalis::testing
