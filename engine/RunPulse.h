#pragma once

#include <chrono>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// Progress, event processing and cancelling during a search. Work between two calls of turn() should take at
/// most about a millisecond.
class RunPulse {
 public:
  RunPulse(ProgramState& state, RunHooks& hooks) : state_(state), hooks_(hooks) {}

  /// Processes events now.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool pump() {
    hooks_.setTopMost(true);
    hooks_.pumpEvents();
    lastPump_ = Clock::now();
    return goOn();
  }

  /// Processes events if that is due.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool turn() { return Clock::now() - lastPump_ < interval || pump(); }

  /// Advances the progress by one water split.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool step() {
    hooks_.update();
    if (!goOn()) return false;
    // Reading the clock costs more than a step, so only the first step and then every 16th read it.
    if (steps_++ % stepsPerTurn != 0) return true;
    return steps_ == 1 ? pump() : turn();
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds interval{5};
  static constexpr unsigned stepsPerTurn = 16;

  [[nodiscard]] bool goOn() const { return !state_.CancelRequested; }

  ProgramState& state_;
  RunHooks& hooks_;
  Clock::time_point lastPump_ = Clock::now();
  unsigned steps_ = 0;
};

}  // namespace verdalis
