#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"
#include "cli/JsonWriter.h"

namespace verdalis {

/// A value that a trend has set in an option.
struct TrendedValue {
  std::string variable;  ///< With its crop, such as "Crop Price - Corn"
  double value = 0;
  std::string prefix;  ///< Text before the value, such as "$"
  std::string suffix;  ///< Text after it, such as "/ bu."
};

/// An option of a fixed trend.
struct TrendedOption {
  OptionResult option;
  std::vector<TrendedValue> trend;
};

/// A variable of a trend.
struct TrendedVariable {
  std::string variable;
  std::string crop;  ///< Empty if the variable belongs to no crop
};

/// One value of a variable trend and its evaluation.
struct TrendStep {
  double value = 0;
  EvaluationResult result;
};

/// One value, or pair of values, of a fixed trend.
struct TrendGridEntry {
  std::vector<double> values;
  TrendedOption option;
};

/// The results of a trend, as plain values for the writers. A variable trend has steps; a fixed trend has a
/// grid and a ranking.
struct TrendResult {
  bool fixed = false;
  std::vector<std::string> wishes;         ///< Wishes that every evaluated option meets
  std::vector<TrendedVariable> variables;  ///< One; a fixed trend may have two
  std::string prefix;                      ///< Of a variable trend: text before its values
  std::string suffix;                      ///< And after them
  std::vector<TrendStep> steps;
  EvaluationResult evaluation;         ///< Of a fixed trend: the evaluation of its option, without options
  std::vector<TrendGridEntry> grid;    ///< By the values of the first list, then of the second
  std::vector<TrendedOption> options;  ///< Best first
};

/// Writes a variable trend step by step, so that not all steps need to be kept.
class TrendStepWriter {
 public:
  /// Writes what stands before the steps. Of the trend, its steps are not used. `steps` is their number.
  TrendStepWriter(std::ostream& out, const TrendResult& trend, std::size_t steps, std::string_view format);

  /// \throws RunTimeError as writeTrend()
  void add(const TrendStep& step);
  void finish();

 private:
  void addJson(const TrendStep& step);
  void addCsv(const TrendStep& step);
  void addTable(const TrendStep& step);

  std::ostream& out_;
  const TrendResult& trend_;
  std::size_t steps_;
  std::string format_;
  JsonStream json_;
  std::size_t count_ = 0;  ///< Of the steps so far
};

/// Writes the trend as "table", "csv" or "json", its options as in an evaluation.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeTrend(std::ostream& out, const TrendResult& result, std::string_view format);

}  // namespace verdalis
