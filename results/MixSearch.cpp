#include "results/MixSearch.h"

#include <atomic>
#include <exception>
#include <optional>
#include <utility>

#include "engine/evaluateScenario.h"

namespace verdalis {

struct MixSearch::Job {
  Farm farm;
  Done done;
  std::atomic<bool> cancelled = false;
  std::vector<Option> plans;

  void search();
};

namespace {

/// Passes a cancel on to the search, at its own pace.
class CancelHooks : public RunHooks {
 public:
  CancelHooks(const std::atomic<bool>& cancelled, ProgramState& state)
      : cancelled_(cancelled), state_(state) {}
  void pumpEvents() override { state_.CancelRequested = cancelled_; }

 private:
  const std::atomic<bool>& cancelled_;
  ProgramState& state_;
};

}  // namespace

void MixSearch::Job::search() {
  try {
    Scenario scenario = scenarioOf(farm);
    scenario.mixes = true;
    ProgramState state;
    CancelHooks hooks(cancelled, state);
    std::optional<BestMix> best = evaluateScenario(scenario, state, hooks);
    if (!best) return;
    for (Option& plan : best->returnCollection(false, scenario.efficiency)) {
      if (plan->Count() > 0) plans.push_back(std::move(plan));
    }
  } catch (const std::exception&) {
    plans.clear();  // the run itself has told what is wrong with the farm
  }
}

void MixSearch::start(const Farm& farm, Done done) {
  cancel();
  const auto job = std::make_shared<Job>();
  job->farm = farm.Copy();
  job->done = std::move(done);
  job_ = job;
  background_.run([job] { job->search(); },
                  [this, job] {
                    if (job->cancelled) return;  // this may have been destroyed
                    job_.reset();
                    job->done(job->plans);
                  });
}

void MixSearch::cancel() {
  if (job_) job_->cancelled = true;
  job_.reset();
}

}  // namespace verdalis
