#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/TypedFarm.h"
#include "trend/BatchProcess.h"
#include "trend/TrendHost.h"

namespace verdalis {

/// The options of a trend process: texts as typed.
struct TrendProcessRequest {
  std::optional<std::string> variable;  ///< Index, 0 to 5
  std::optional<std::string> crop;      ///< For variables that belong to a crop
  std::optional<std::string> values;    ///< A list
  std::optional<std::string> from;      ///< Or a range ...
  std::optional<std::string> to;
  std::optional<std::string> steps;       ///< ... with its number of values
  std::optional<std::string> valuesFile;  ///< Or a file

  /// Whether any of the options was given.
  [[nodiscard]] bool given() const { return variable || crop || values || from || to || steps || valuesFile; }
};

/// Adds the options of a process. `suffix` is "" for the first process and "2" for the second.
void addTrendProcessOptions(CLI::App& command, const std::string& suffix, TrendProcessRequest& request);

/// A process that is ready to run.
struct TrendProcess {
  BatchProcess process;
  std::string crop;  ///< Empty if the variable belongs to no crop
};

/// Creates the process of the request. `fallbackCrop` is the crop stored with a variable that belongs to no
/// crop.
/// \throws Refusal for values, a variable or a crop that cannot be used
[[nodiscard]] TrendProcess makeTrendProcess(const TrendProcessRequest& request, const std::string& suffix,
                                            TypedFarm& typed, const TrendInputs& inputs,
                                            const std::string& fallbackCrop);

}  // namespace verdalis
