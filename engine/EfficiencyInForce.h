#pragma once

#include <string>

#include "engine/RunHooks.h"
#include "model/EfficiencyFraction.h"

namespace verdalis {

/// Puts the efficiency of a run in force, and back in force whenever the user interface has had its turn: a
/// run that is started meanwhile puts its own in force. Everything else goes on to the hooks of the run.
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
