#pragma once

#include <string>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis::testing {

/// Counts the steps, and cancels at a given step.
class Steps : public RunHooks {
 public:
  explicit Steps(ProgramState& state, int cancelAt = -1) : state_(state), cancelAt_(cancelAt) {}
  void setProgress(double steps, const std::string& /*description*/) override { announced = steps; }
  void update() override {
    if (++done == cancelAt_) state_.CancelRequested = true;
  }

  double announced = 0;
  int done = 0;

 private:
  ProgramState& state_;
  int cancelAt_;
};

}  // namespace verdalis::testing
