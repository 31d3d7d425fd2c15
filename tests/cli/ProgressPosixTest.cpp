#include <gtest/gtest.h>

#include <csignal>

#include "cli/Progress.h"
#include "platform/Interrupt.h"

namespace verdalis {
namespace {

TEST(Interrupt, CancelsOnlyTheCurrentRun) {
  ProgramState state;
  Progress progress(nullptr, state);
  {
    const Interrupt interrupt;
    progress.pumpEvents();
    EXPECT_FALSE(state.CancelRequested);
    EXPECT_FALSE(Interrupt::requested());
    ASSERT_EQ(std::raise(SIGINT), 0);
    EXPECT_TRUE(Interrupt::requested());
    progress.pumpEvents();
    EXPECT_TRUE(state.CancelRequested);
  }
  const Interrupt next;
  EXPECT_FALSE(Interrupt::requested()) << "one Ctrl+C cancels one run";
}

TEST(Interrupt, RestoresTheSignalHandler) {
  struct sigaction before {};
  sigaction(SIGINT, nullptr, &before);
  { const Interrupt interrupt; }
  struct sigaction after {};
  sigaction(SIGINT, nullptr, &after);
  EXPECT_EQ(after.sa_handler, before.sa_handler);
}

}  // namespace
}  // namespace verdalis
