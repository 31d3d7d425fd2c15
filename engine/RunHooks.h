#pragma once

#include <string>

namespace verdalis {

/// Callbacks of a run: the progress window and event processing. To cancel the run, set
/// ProgramState::CancelRequested during or between these calls. The defaults do nothing.
class RunHooks {
 public:
  RunHooks() = default;
  RunHooks(const RunHooks&) = delete;
  RunHooks& operator=(const RunHooks&) = delete;
  virtual ~RunHooks() = default;

  /// Opens the progress window with a title. Does not block the caller.
  virtual void showProgress(const std::string& /*title*/) {}

  /// Sets the number of steps of the run and the second line of the window. The bar starts at 0.
  virtual void setProgress(double /*steps*/, const std::string& /*description*/) {}

  /// One step is done. Called exactly once per water split of a completed search.
  virtual void update() {}

  /// Keeps the progress window above all others, without moving, resizing or activating it.
  virtual void setTopMost(bool /*flag*/) {}

  /// Processes waiting events of the user interface.
  virtual void pumpEvents() {}

  /// Closes the progress window.
  virtual void closeProgress() {}
};

}  // namespace verdalis
