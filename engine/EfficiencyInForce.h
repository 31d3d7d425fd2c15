#pragma once

#include <string>

#include "engine/RunHooks.h"
#include "model/EfficiencyFraction.h"

namespace verdalis {

/// Sets EfficiencyFraction, which the screens use, to the efficiency of a run. Sets it again after each event
/// processing, because a run started meanwhile sets its own. Forwards all calls to the hooks of the run.
class EfficiencyInForce final : public RunHooks {
 public:
  EfficiencyInForce(double efficiency, RunHooks& hooks) : efficiency_(efficiency), hooks_(hooks) {
    EfficiencyFraction = efficiency_;
  }

  void showProgress(const std::string& title) override { hooks_.showProgress(title); }
  void setProgress(double steps, const std::string& text) override { hooks_.setProgress(steps, text); }
  void update() override {
    hooks_.update();
    EfficiencyFraction = efficiency_;
  }
  void setTopMost(bool flag) override { hooks_.setTopMost(flag); }
  void pumpEvents() override {
    hooks_.pumpEvents();
    EfficiencyFraction = efficiency_;
  }
  void closeProgress() override { hooks_.closeProgress(); }

 private:
  double efficiency_;
  RunHooks& hooks_;
};

}  // namespace verdalis
