#include "cli/BatchRun.h"

#include <algorithm>
#include <optional>
#include <thread>
#include <utility>

#include "cli/EvaluationResult.h"
#include "cli/relaxation.h"
#include "engine/evaluateScenario.h"
#include "engine/relaxWishes.h"
#include "platform/Interrupt.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// Rows in progress per worker. One row may take much longer than the next ones.
constexpr std::size_t rowsPerWorker = 32;

/// Maximum size in bytes of a finished text that is queued. With a longer text, its worker waits.
constexpr std::size_t mostWaiting = 1U << 16U;

}  // namespace

/// Tells a run that it must stop.
class BatchRun::Hooks final : public RunHooks {
 public:
  Hooks(const BatchRun& run, ProgramState& state) : run_(run), state_(state) {}
  void pumpEvents() override {
    if (run_.stopped()) state_.CancelRequested = true;
  }

 private:
  const BatchRun& run_;
  ProgramState& state_;
};

BatchRun::BatchRun(const BatchBase& base, const std::vector<BatchColumn>& columns, const BatchFormat& format,
                   CsvReader& table)
    : base_(base),
      columns_(columns),
      format_(format),
      table_(table),
      columnCount_(columns.size()),
      namePosition_(columns.size()) {
  for (const BatchColumn& column : columns) {
    if (column.kind == BatchColumnKind::name) namePosition_ = column.position;
  }
}

void BatchRun::go(std::size_t jobs, ResultStream& result, Messages& messages) {
  window_ = jobs * rowsPerWorker;
  {
    std::vector<std::jthread> workers;
    try {
      while (workers.size() + 1 < jobs)
        workers.emplace_back([&] { work(result, messages); });
    } catch (...) {
      stop(std::current_exception());
    }
    work(result, messages);
  }
  if (error_) std::rethrow_exception(error_);
}

void BatchRun::work(ResultStream& result, Messages& messages) {
  try {
    CsvRow row;
    std::uint64_t number = 0;
    while (take(row, number)) {
      Outcome outcome = evaluate(row, number);
      if (stopped()) break;
      hand(number, std::move(outcome), result, messages);
    }
  } catch (...) {
    stop(std::current_exception());
  }
  const std::lock_guard lock(handing_);
  turn_.notify_all();  // after a Ctrl+C, no worker may go on waiting
}

bool BatchRun::take(CsvRow& row, std::uint64_t& number) {
  const std::lock_guard reading(reading_);
  {
    std::unique_lock lock(handing_);
    turn_.wait(lock, [&] { return stopped() || taken_ < handed_ + window_; });
  }
  if (stopped() || !table_.next(row) || stopped()) return false;
  number = ++taken_;
  return true;
}

BatchRun::Outcome BatchRun::evaluate(const CsvRow& row, std::uint64_t number) {
  Outcome outcome;
  try {
    evaluateFarm(row, number, outcome);
  } catch (const std::exception& fault) {  // also if one farm needs more memory than there is
    outcome.text.clear();
    outcome.messages.push_back(fault.what());
    allDone_ = false;
  }
  if (outcome.messages.empty()) return outcome;
  std::string place = "Row " + std::to_string(number);
  if (namePosition_ < row.cells.size() && !row.cells[namePosition_].empty())
    place += ", " + quoteForMessage(row.cells[namePosition_]);
  for (std::string& message : outcome.messages)
    message.insert(0, place + ": ");
  return outcome;
}

void BatchRun::evaluateFarm(const CsvRow& row, std::uint64_t number, Outcome& outcome) {
  if (!row.fault.empty()) throw Refusal(row.fault);
  if (row.count != columnCount_) {
    throw Refusal("The row has " + std::to_string(row.count) + (row.count == 1 ? " cell" : " cells") +
                  ", and the table has " + std::to_string(columnCount_) +
                  (columnCount_ == 1 ? " column." : " columns."));
  }
  BatchFarm made = makeBatchFarm(base_, columns_, row.cells);
  outcome.messages = std::move(made.warnings);
  const Scenario scenario = scenarioOf(made.farm);
  ProgramState state;
  Hooks hooks(*this, state);
  std::optional<BestMix> best = evaluateScenario(scenario, state, hooks);
  if (!best) return;
  BatchResult found;
  found.farm = number;
  if (namePosition_ < columnCount_) found.name = row.cells[namePosition_];
  found.result = describeScenario(scenario, best->returnCollection(true, scenario.efficiency));
  if (found.result.options.empty() && !scenario.wishes.empty()) {
    found.result.relax = relaxWishes(scenario, state, hooks);
    if (!found.result.relax) return;
    outcome.messages.push_back(noPlanText(NoPlan(*found.result.relax)));
    allDone_ = false;
  }
  format_.add(outcome.text, found);
}

/// Writes the text of a row, and those of the following rows that are finished. A row that is not next is
/// queued; if its text is long, the worker waits instead.
void BatchRun::hand(std::uint64_t number, Outcome outcome, ResultStream& result, Messages& messages) {
  std::unique_lock lock(handing_);
  if (outcome.text.size() > mostWaiting) {
    turn_.wait(lock, [&] { return stopped() || handed_ + 1 == number; });
    if (stopped()) return;
  }
  waiting_.emplace(number, std::move(outcome));
  for (auto next = waiting_.begin(); next != waiting_.end() && next->first == handed_ + 1;
       next = waiting_.erase(next), ++handed_) {
    if (!next->second.text.empty()) result.write(next->second.text);
    for (const std::string& message : next->second.messages)
      messages.tell(message);
  }
  lock.unlock();
  turn_.notify_all();
}

void BatchRun::stop(std::exception_ptr error) {
  const std::lock_guard lock(handing_);
  if (!error_) error_ = std::move(error);
  stopped_ = true;
}

bool BatchRun::stopped() const {
  return stopped_ || Interrupt::requested();
}

}  // namespace verdalis
