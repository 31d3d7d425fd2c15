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

/// Evaluates a table of farms in parallel. Workers take the rows one by one; the results are written in row
/// order. The rows in progress and the finished texts that wait are limited, so memory use does not grow with
/// the table.
class BatchRun {
 public:
  /// The base, the columns, the format and the table must outlive the run.
  BatchRun(const BatchBase& base, const std::vector<BatchColumn>& columns, const BatchFormat& format,
           CsvReader& table);

  /// Evaluates the table with `jobs` threads, including this one. Ctrl+C ends it early.
  /// \throws RunTimeError if the table cannot be read or a result cannot be written
  void go(std::size_t jobs, ResultStream& result, Messages& messages);

  /// Whether every row was evaluated and has a plan.
  [[nodiscard]] bool allDone() const { return allDone_; }

 private:
  /// The output of one row.
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
  std::size_t namePosition_;  ///< Position of the cell with the name; after all cells if there is none
  std::size_t window_ = 0;    ///< Maximum number of rows in progress

  std::mutex reading_;            ///< Held by the worker that reads a row
  std::uint64_t taken_ = 0;       ///< Rows read
  std::mutex handing_;            ///< Guards the members below
  std::condition_variable turn_;  ///< A row has been written, or the run must stop
  std::uint64_t handed_ = 0;      ///< Rows written
  std::map<std::uint64_t, Outcome> waiting_;
  std::exception_ptr error_;
  std::atomic<bool> stopped_ = false;
  std::atomic<bool> allDone_ = true;
};

}  // namespace verdalis
