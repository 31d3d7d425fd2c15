#pragma once

#include <atomic>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// The work on a question. run() may be called on another thread; what may be called meanwhile is said so.
class QuestionJob : public RunHooks {
 public:
  using Show = std::function<void()>;
  using Work = std::function<Show(ProgramState& state, RunHooks& hooks)>;

  explicit QuestionJob(Work work) : work_(std::move(work)) {}

  void run() noexcept {
    try {
      show_ = work_(state_, *this);
    } catch (...) {
      failure_ = std::current_exception();
    }
    work_ = nullptr;  // the farm goes on the thread that used it
  }

  /// Asks the search to stop. May be called at any time; an answer that comes all the same must be dropped.
  void cancel() { cancelled_ = true; }
  [[nodiscard]] bool isCancelled() const { return cancelled_; }

  /// How far the work is. May be called at any time. Without a number of steps, `steps` is 0.
  struct Stand {
    double done;
    double steps;
  };
  [[nodiscard]] Stand stand() const { return {done_, steps_}; }

  /// What run() has found: a function that shows the answer, or what was thrown, or neither after a cancel.
  [[nodiscard]] const Show& show() const { return show_; }
  [[nodiscard]] const std::exception_ptr& failure() const { return failure_; }

 private:
  void setProgress(double steps, const std::string& /*description*/) override {
    done_ = 0;
    steps_ = steps;
  }
  void update() override { done_ = done_ + 1; }

  /// The search calls this on its own thread, so only that thread uses `state_`.
  void pumpEvents() override {
    if (cancelled_) state_.CancelRequested = true;
  }

  Work work_;
  ProgramState state_;
  std::atomic<bool> cancelled_ = false;
  std::atomic<double> steps_ = 0;
  std::atomic<double> done_ = 0;  ///< Only the thread of run() changes it
  Show show_;
  std::exception_ptr failure_;
};

}  // namespace verdalis
