#include "explore/bestPlans.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace verdalis {
namespace {

constexpr std::chrono::milliseconds betweenTurns{10};

/// State shared by the threads.
class Points {
 public:
  Points(std::size_t count, const FarmOfPoint& farmOf, const NameOfPoint& nameOf)
      : plans(count), farmOf_(farmOf), nameOf_(nameOf), firstFailed_(count) {}

  std::vector<Plan> plans;
  std::atomic<bool> stopped = false;

  /// Solves points until none is left. Only this thread uses `base`.
  void work(const Farm& base);

  void beginThread() {
    const std::lock_guard lock(mutex_);
    ++working_;
  }
  void endThread() {
    const std::lock_guard lock(mutex_);
    --working_;
    changed_.notify_one();
  }

  struct Stand {
    std::size_t done;
    bool ended;  ///< All threads have finished
  };

  /// Waits for a short time, or until more than `told` points are done or all threads have finished.
  [[nodiscard]] Stand wait(std::size_t told) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, betweenTurns, [&] { return done_ > told || working_ == 0; });
    return {done_, working_ == 0};
  }

  [[nodiscard]] std::exception_ptr failure() const { return failure_; }

 private:
  void solve(const Farm& base, std::size_t point);
  void fail(std::size_t point, std::exception_ptr error);

  const FarmOfPoint& farmOf_;
  const NameOfPoint& nameOf_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
  std::condition_variable changed_;
  unsigned working_ = 0;
  std::size_t done_ = 0;
  std::size_t firstFailed_;     ///< This point and later ones need not be solved
  std::exception_ptr failure_;  ///< Of the first failed point
};

/// Hooks of a thread. They pass a cancel on.
class ThreadHooks : public RunHooks {
 public:
  ThreadHooks(const std::atomic<bool>& stopped, ProgramState& state) : stopped_(stopped), state_(state) {}
  void pumpEvents() override { state_.CancelRequested = stopped_; }

 private:
  const std::atomic<bool>& stopped_;
  ProgramState& state_;
};

void Points::work(const Farm& base) {
  while (!stopped) {
    const std::size_t point = next_++;
    {
      const std::lock_guard lock(mutex_);
      if (point >= firstFailed_) return;
    }
    // Points are taken in order, so all points before the first failed one are solved.
    try {
      solve(base, point);
    } catch (const NoPlan& noPlan) {
      fail(point, std::make_exception_ptr(NoPlan(noPlan.relaxations(), nameOf_(point), noPlan.hasWishes())));
    } catch (...) {
      fail(point, std::current_exception());
    }
  }
}

void Points::fail(std::size_t point, std::exception_ptr error) {
  const std::lock_guard lock(mutex_);
  if (point >= firstFailed_) return;
  firstFailed_ = point;
  failure_ = std::move(error);
}

void Points::solve(const Farm& base, std::size_t point) {
  ProgramState state;
  ThreadHooks hooks(stopped, state);
  std::optional<Plan> plan = bestPlan(farmOf_(base, point), state, hooks);
  if (!plan) return;  // cancelled
  plans[point] = std::move(*plan);
  const std::lock_guard lock(mutex_);
  ++done_;
  changed_.notify_one();
}

/// Stops the threads at the end of the scope, also after an exception.
class StopAtEnd {
 public:
  explicit StopAtEnd(Points& points) : points_(points) {}
  StopAtEnd(const StopAtEnd&) = delete;
  StopAtEnd& operator=(const StopAtEnd&) = delete;
  ~StopAtEnd() { points_.stopped = true; }

 private:
  Points& points_;
};

/// Starts a thread for each farm, or as many as the system allows.
std::vector<std::jthread> startThreads(Points& points, const std::vector<Farm>& bases) {
  std::vector<std::jthread> threads;
  for (const Farm& own : bases) {
    points.beginThread();
    try {
      threads.emplace_back([&points, &own] {
        points.work(own);
        points.endThread();
      });
    } catch (const std::system_error&) {
      points.endThread();
      if (threads.empty()) throw;
      break;
    }
  }
  return threads;
}

}  // namespace

unsigned allCores() {
  return std::max(std::thread::hardware_concurrency(), 1U);
}

std::optional<std::vector<Plan>> bestPlans(const Farm& base, std::size_t count, const FarmOfPoint& farmOf,
                                           const NameOfPoint& nameOf, ProgramState& state, RunHooks& hooks,
                                           unsigned jobs) {
  const auto threads = static_cast<unsigned>(std::min<std::size_t>(std::max(jobs, 1U), count));
  // Each thread has its own farm: a crop creates some of its data at first use, which must not happen in two
  // threads.
  std::vector<Farm> bases;
  for (unsigned i = 0; i < threads; ++i)
    bases.push_back(base.Copy());
  Points points(count, farmOf, nameOf);
  {
    const std::vector<std::jthread> workers = startThreads(points, bases);
    const StopAtEnd stop(points);
    std::size_t told = 0;
    for (bool ended = false; !ended;) {
      const Points::Stand stand = points.wait(told);
      for (; told < stand.done; ++told)
        hooks.update();
      hooks.pumpEvents();
      if (state.CancelRequested) points.stopped = true;
      ended = stand.ended;
    }
  }
  if (state.CancelRequested) return std::nullopt;
  if (points.failure()) std::rethrow_exception(points.failure());
  return std::move(points.plans);
}

}  // namespace verdalis
