#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// Shows the progress of a run on one line of a terminal, after a short delay, and erases the line at the
/// end. A Ctrl+C noted by an Interrupt cancels the run.
class Progress final : public RunHooks {
 public:
  using Clock = std::function<double()>;  ///< Seconds since a fixed time

  /// `terminal` receives the line; nullptr shows nothing.
  Progress(std::ostream* terminal, ProgramState& state, Clock clock = secondsNow);
  ~Progress() override { erase(); }

  void showProgress(const std::string& title) override;
  void setProgress(double steps, const std::string& description) override;
  void update() override;
  void pumpEvents() override;
  void closeProgress() override { erase(); }

  static double secondsNow();

 private:
  void drawIfDue();
  void erase();
  [[nodiscard]] std::string line(double elapsed) const;

  std::ostream* terminal_;
  ProgramState& state_;
  Clock clock_;
  std::string description_;
  double steps_ = 0;
  double done_ = 0;
  double started_ = 0;
  double nextDraw_ = 0;
  bool drawn_ = false;
};

/// The stream if it is standard error and a terminal; else nullptr.
[[nodiscard]] std::ostream* asTerminal(std::ostream& err);

}  // namespace verdalis
