#pragma once

#include <string>

#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// The progress window. It is shown above the other windows and does not block them.
class frmUpdating : public Window {
 public:
  frmUpdating(Desk& desk, ProgramState& state);

  Label lblTitle0{*this, "lblTitle(0)"};
  Label lblTitle1{*this, "lblTitle(1)"};
  verdalis::ProgressBar ProgressBar{*this, "ProgressBar"};
  Button Command1{*this, "Command1", "Cancel"};
  bool topMost = false;  ///< Kept above all other windows

  /// Sets the first line and shows the window.
  void setTitle(const std::string& text);

  /// Sets the number of steps and resets the bar to 0.
  void setMax(double steps);

  /// Whether a cancel is requested that no run has handled yet.
  [[nodiscard]] bool isCancelled() const { return state_.CancelRequested; }

  /// Advances the bar by one step.
  void Update();

 private:
  const ProgramState& state_;
};

/// Keeps the progress window above all other windows, or no longer does. Does not move, resize or activate
/// it.
void setTopMost(frmUpdating& window, bool flag);

/// The hooks of a run that update the progress window and process events of the user interface.
class ProgressHooks : public RunHooks {
 public:
  /// `listener` receives the progress calls and event pumps after the window; nullptr for none.
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
