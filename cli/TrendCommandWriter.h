#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"

namespace verdalis {

/// A value that a trend has put into an option.
struct TrendedValue {
  std::string variable;  ///< With its crop, such as "Crop Price - Corn"
  double value = 0;
  std::string prefix;  ///< What stands before the value, such as "$"
  std::string suffix;  ///< And behind it, such as "/ bu."
};

/// An option of a fixed trend.
struct TrendedOption {
  OptionResult option;
  std::vector<TrendedValue> trend;
};

/// A variable that a trend goes through.
struct TrendedVariable {
  std::string variable;
  std::string crop;  ///< Empty where the variable belongs to no crop
};

/// One value of a variable trend, with the evaluation that it led to.
struct TrendStep {
  double value = 0;
  EvaluationResult result;
};

/// One value, or pair of values, of a fixed trend.
struct TrendGridEntry {
  std::vector<double> values;
  TrendedOption option;
};

/// What a trend has found: plain values that writers show. A variable trend has steps, a fixed trend the grid
/// and the ranking.
struct TrendResult {
  bool fixed = false;
  std::vector<std::string> wishes;         ///< What every option that was evaluated meets
  std::vector<TrendedVariable> variables;  ///< One, or two of a fixed trend
  std::string prefix;                      ///< Of a variable trend, before its values
  std::string suffix;                      ///< And behind them
  std::vector<TrendStep> steps;
  EvaluationResult evaluation;         ///< Of a fixed trend: the evaluation of its option, without options
  std::vector<TrendGridEntry> grid;    ///< By the values of the first list, then of the second
  std::vector<TrendedOption> options;  ///< Best first
};

/// The trend as "table", "csv" or "json". Options are as an evaluation writes them.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeTrend(std::ostream& out, const TrendResult& result, std::string_view format);

}  // namespace verdalis
