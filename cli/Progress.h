#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// Shows on one line of a terminal how far a run is, once it has lasted a moment, and takes the line away at
/// its end. A Ctrl+C noted by an Interrupt becomes a cancel of the run.
class Progress final : public RunHooks {
 public:
  using Clock = std::function<double()>;  ///< Seconds since some fixed moment

  /// `terminal` is where the line goes; nullptr shows nothing.
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

/// The stream, if it is standard error and that is a terminal; else nullptr.
[[nodiscard]] std::ostream* asTerminal(std::ostream& err);

}  // namespace verdalis
