#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "cli/BatchColumns.h"
#include "cli/BatchFormat.h"
#include "cli/BatchRow.h"
#include "cli/Messages.h"
#include "cli/output.h"
#include "data/CsvReader.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// The evaluations of a table of farms. Workers take its rows one by one, and what they have made of them is
/// handed over in the order of the rows. So many rows are under way at most, and so much finished text waits
/// for its turn, that the memory does not grow with the table.
class BatchRun {
 public:
  /// The base, the columns, the format and the table must outlive the run.
  BatchRun(const BatchBase& base, const std::vector<BatchColumn>& columns, const BatchFormat& format,
           CsvReader& table);

  /// Works through the table with a number of threads, this one among them. A Ctrl+C ends it early.
  /// \throws RunTimeError when the table cannot be read any further, or a result not be written
  void go(std::size_t jobs, ResultStream& result, Messages& messages);

  /// Whether every row could be evaluated and has a plan.
  [[nodiscard]] bool allDone() const { return allDone_; }

 private:
  /// What is to be handed over of a row.
  struct Outcome {
    std::string text;
    std::vector<std::string> messages;
  };

  void work(ResultStream& result, Messages& messages);
  [[nodiscard]] bool take(CsvRow& row, std::uint64_t& number);
  [[nodiscard]] Outcome evaluate(const CsvRow& row, std::uint64_t number);
  void evaluateFarm(const CsvRow& row, std::uint64_t number, Outcome& outcome);
  void hand(std::uint64_t number, Outcome outcome, ResultStream& result, Messages& messages);
  void stop(std::exception_ptr error);
  [[nodiscard]] bool stopped() const;

  class Hooks;

  const BatchBase& base_;
  const std::vector<BatchColumn>& columns_;
  const BatchFormat& format_;
  CsvReader& table_;
  std::size_t columnCount_ = 0;
  std::size_t namePosition_;  ///< Of the cell with the name; behind all cells without one
  std::size_t window_ = 0;    ///< Rows under way at most

  std::mutex reading_;            ///< Held by the worker that reads a row
  std::uint64_t taken_ = 0;       ///< Rows read
  std::mutex handing_;            ///< Guards what follows
  std::condition_variable turn_;  ///< A row has been handed over, or the run is to stop
  std::uint64_t handed_ = 0;      ///< Rows handed over
  std::map<std::uint64_t, Outcome> waiting_;
  std::exception_ptr error_;
  std::atomic<bool> stopped_ = false;
  std::atomic<bool> allDone_ = true;
};

}  // namespace verdalis
