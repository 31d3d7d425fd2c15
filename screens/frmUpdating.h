#pragma once

#include <string>

#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// The progress window. It stands on top of the others and blocks none of them.
class frmUpdating : public Window {
 public:
  frmUpdating(Desk& desk, ProgramState& state);

  Label lblTitle0{*this, "lblTitle(0)"};
  Label lblTitle1{*this, "lblTitle(1)"};
  verdalis::ProgressBar ProgressBar{*this, "ProgressBar"};
  Button Command1{*this, "Command1", "Cancel"};
  bool topMost = false;  ///< It is kept above all other windows

  /// Sets the first line and shows the window.
  void setTitle(const std::string& text);

  /// The number of steps; the bar starts at 0.
  void setMax(double steps);

  /// Whether a cancel has been asked for that no run has taken yet.
  [[nodiscard]] bool isCancelled() const { return state_.CancelRequested; }

  /// One step is done.
  void Update();

 private:
  const ProgramState& state_;
};

/// Keeps the progress window above all others, or takes it out of that layer. Moves, sizes and activates
/// nothing.
void setTopMost(frmUpdating& window, bool flag);

/// How a run reaches the progress window and gives the user interface its turn.
class ProgressHooks : public RunHooks {
 public:
  /// `listener` is told everything too, after the window; nullptr without one.
  ProgressHooks(frmUpdating& window, EventPumpService& eventPump, RunHooks* listener = nullptr)
      : window_(window), eventPump_(eventPump), listener_(listener) {}

  void showProgress(const std::string& title) override;
  void setProgress(double steps, const std::string& description) override;
  void update() override;
  void setTopMost(bool flag) override { verdalis::setTopMost(window_, flag); }
  void pumpEvents() override;
  void closeProgress() override;

 private:
  frmUpdating& window_;
  EventPumpService& eventPump_;
  RunHooks* listener_;
};

}  // namespace verdalis
