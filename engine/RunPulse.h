#pragma once

#include <chrono>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// The turns that a search gives to the user interface: progress, event pump, cancel. Work between two calls
/// of turn() should take about a millisecond at most.
class RunPulse {
 public:
  RunPulse(ProgramState& state, RunHooks& hooks) : state_(state), hooks_(hooks) {}

  /// Serves the events now. \returns false when the search is to be given up.
  [[nodiscard]] bool pump() {
    hooks_.setTopMost(true);
    hooks_.pumpEvents();
    lastPump_ = Clock::now();
    return goOn();
  }

  /// Serves the events when that is due. \returns false when the search is to be given up.
  [[nodiscard]] bool turn() { return Clock::now() - lastPump_ < interval || pump(); }

  /// Moves the progress on by one water split. \returns false when the search is to be given up.
  [[nodiscard]] bool step() {
    hooks_.update();
    if (!goOn()) return false;
    // The clock costs more than a step; the first step and then every 16th look at it.
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
