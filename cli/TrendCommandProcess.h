#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/TypedFarm.h"
#include "trend/BatchProcess.h"
#include "trend/TrendHost.h"

namespace verdalis {

/// A trend process as the command line tells it: texts as they were typed.
struct TrendProcessRequest {
  std::optional<std::string> variable;  ///< Index, 0 to 5
  std::optional<std::string> crop;      ///< Where the variable belongs to one
  std::optional<std::string> values;    ///< A list
  std::optional<std::string> from;      ///< Or a range ...
  std::optional<std::string> to;
  std::optional<std::string> steps;       ///< ... with its number of values
  std::optional<std::string> valuesFile;  ///< Or a file

  /// Whether any of it was given.
  [[nodiscard]] bool given() const { return variable || crop || values || from || to || steps || valuesFile; }
};

/// The options of the first process with the suffix "", of the second with "2".
void addTrendProcessOptions(CLI::App& command, const std::string& suffix, TrendProcessRequest& request);

/// A process that can be run.
struct TrendProcess {
  BatchProcess process;
  std::string crop;  ///< Empty where the variable belongs to none
};

/// The process of the request. `fallbackCrop` names the crop that a variable of no crop is kept with.
/// \throws Refusal for values, a variable or a crop that cannot be run
[[nodiscard]] TrendProcess makeTrendProcess(const TrendProcessRequest& request, const std::string& suffix,
                                            TypedFarm& typed, const TrendInputs& inputs,
                                            const std::string& fallbackCrop);

}  // namespace verdalis
