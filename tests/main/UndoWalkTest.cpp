#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "document/farmText.h"
#include "tests/main/RandomWalk.h"

// After a random walk of user actions, undo leads back to the first document and redo to the last, step by
// step, and the controls hold each of them.

namespace verdalis::testing {
namespace {

/// Which custom crops a document has to bring depends on the crop library, which is not undone.
FarmDocument withoutCustomCrops(FarmDocument document) {
  document.customCrops = {};
  return document;
}

/// Why the controls do not hold a document; empty if they do.
std::string screenFault(const frmMain& main, const FarmDocument& wanted) {
  const FarmDocument shown = withoutCustomCrops(main.farmControls.read(wanted));
  if (shown == withoutCustomCrops(wanted)) return "";
  return "on screen is\n" + writeFarm(shown) + "in place of\n" + writeFarm(wanted);
}

/// Takes the actions, undoes all steps and repeats them.
/// \returns what is wrong; empty if nothing is.
std::string walkAndUndo(const std::vector<std::uint32_t>& actions) {
  RandomWalk person;
  for (const std::uint32_t action : actions)
    person.act(action);
  if (person.hasEnded() || !person.findsHome()) return "";
  frmMain& main = person.main();
  main.keeper.finishTyping();
  const SharedDocument last = main.keeper.shared();
  std::string fault;
  std::size_t undone = 0;
  while (fault.empty() && main.keeper.toUndo() != nullptr) {
    const SharedDocument wanted = main.keeper.toUndo()->before;
    main.farms.undo();
    ++undone;
    fault = screenFault(main, *wanted);
  }
  for (; fault.empty() && undone > 0; --undone) {
    if (main.keeper.toRedo() == nullptr) return "a step cannot be repeated\n" + person.story();
    const SharedDocument wanted = main.keeper.toRedo()->after;
    main.farms.redo();
    fault = screenFault(main, *wanted);
  }
  if (fault.empty()) fault = screenFault(main, *last);
  return fault.empty() ? "" : fault + person.story();
}

TEST(UndoWalk, UndoLeadsToTheStartAndRedoToTheEnd) {
  constexpr std::size_t actions = 40;
  EXPECT_TRUE(rc::check([] {
    const auto anyNumber = rc::gen::resize(
        rc::kNominalSize, rc::gen::inRange<std::uint32_t>(0, std::numeric_limits<std::uint32_t>::max()));
    const std::string fault =
        walkAndUndo(*rc::gen::noShrink(rc::gen::container<std::vector<std::uint32_t>>(actions, anyNumber)));
    if (!fault.empty()) RC_FAIL(fault);
  }));
}

TEST(UndoWalk, AThousandActionsAreUndoneAndRepeated) {
  for (int walk = 0; walk < 3; ++walk) {
    const std::uint32_t seed = std::random_device()();
    std::mt19937 random(seed);
    std::vector<std::uint32_t> actions(1000);
    for (std::uint32_t& action : actions)
      action = static_cast<std::uint32_t>(random());
    EXPECT_EQ(walkAndUndo(actions), "") << "seed " << seed;
  }
}

}  // namespace
}  // namespace verdalis::testing
