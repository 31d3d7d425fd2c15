#pragma once

#include <string>

namespace verdalis {

/// How a run calls out: the progress window, and the turn of the user interface. Cancel is asked for by
/// setting ProgramState::CancelRequested, inside any of these calls or between them. By default nothing
/// happens.
class RunHooks {
 public:
  RunHooks() = default;
  RunHooks(const RunHooks&) = delete;
  RunHooks& operator=(const RunHooks&) = delete;
  virtual ~RunHooks() = default;

  /// The progress window is loaded with a title and shown, without blocking the caller.
  virtual void showProgress(const std::string& /*title*/) {}

  /// The number of steps of the run, and the second line of the window. The bar starts at 0.
  virtual void setProgress(double /*steps*/, const std::string& /*description*/) {}

  /// One step is done. Called exactly once for each water split of a search that ends.
  virtual void update() {}

  /// Keeps the progress window above all others. Moves, sizes and activates nothing.
  virtual void setTopMost(bool /*flag*/) {}

  /// The user interface gets its turn: waiting events are served.
  virtual void pumpEvents() {}

  /// The progress window is unloaded.
  virtual void closeProgress() {}
};

}  // namespace verdalis
