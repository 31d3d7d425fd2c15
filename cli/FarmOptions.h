#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Messages.h"
#include "cli/TypedFarm.h"

namespace verdalis {

/// Which farm a run is for, as the command line tells it: texts as they were typed, in the order in which
/// they are applied.
struct FarmRequest {
  std::optional<std::string> home;    ///< Folder with `crops` and `inputs.txt`
  std::optional<std::string> inputs;  ///< Saved inputs file in place of the home's
  bool defaults = false;
  std::vector<std::string> sets;       ///< "CONTROL=TEXT"
  std::vector<std::string> prices;     ///< "CROP=TEXT"
  std::vector<std::string> maxYields;  ///< "CROP=TEXT"
  std::optional<std::string> split;    ///< Index of the land split
  std::vector<std::string> crops;      ///< Rows to tick
  bool noSplit = false;
  std::optional<std::string> keep;    ///< Options to keep
  std::optional<std::string> factor;  ///< Iteration factor
  std::vector<std::string> wishes;    ///< What every plan must meet
  bool mixes = false;                 ///< Keep the best option of each mix alone
};

void addFarmOptions(CLI::App& command, FarmRequest& request);

/// The option of the commands that rank options and can keep the best of each mix alone.
void addMixesOption(CLI::App& command, FarmRequest& request);

/// The farm of the request, with everything put into its controls.
/// \throws Refusal for a value that is not accepted, RunTimeError where the event of a control fails.
[[nodiscard]] std::unique_ptr<TypedFarm> makeFarm(const FarmRequest& request, Messages& messages);

/// What to tell of a name that no crop of the farm has, with the names that there are.
[[nodiscard]] std::string unknownCrop(TypedFarm& farm, std::string_view name);

/// \throws Refusal that names all that a run of the farm still needs.
void requireReady(const ScenarioInputs& inputs);

}  // namespace verdalis
