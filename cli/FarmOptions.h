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

/// The options that describe a farm: texts as typed, in the order in which they are applied.
struct FarmRequest {
  std::optional<std::string> home;      ///< Folder with `crops` and `inputs.txt`
  std::optional<std::string> inputs;    ///< Saved inputs file instead of the one in the home folder
  std::optional<std::string> farmFile;  ///< Farm file instead of any saved inputs
  bool defaults = false;
  std::vector<std::string> sets;       ///< "CONTROL=TEXT"
  std::vector<std::string> prices;     ///< "CROP=TEXT"
  std::vector<std::string> maxYields;  ///< "CROP=TEXT"
  std::optional<std::string> split;    ///< Index of the land split
  std::vector<std::string> crops;      ///< Rows to tick
  bool noSplit = false;
  std::optional<std::string> keep;    ///< Options to keep
  std::optional<std::string> factor;  ///< Iteration factor
  std::vector<std::string> wishes;    ///< Wishes that every plan must meet
  bool mixes = false;                 ///< Keep only the best option of each mix
};

void addFarmOptions(CLI::App& command, FarmRequest& request);

/// Adds the option of the commands that can keep only the best option of each mix.
void addMixesOption(CLI::App& command, FarmRequest& request);

/// Creates the farm of the request, with all options applied to its controls.
/// \throws Refusal for a value that is not accepted
/// \throws RunTimeError if the event of a control fails
[[nodiscard]] std::unique_ptr<TypedFarm> makeFarm(const FarmRequest& request, Messages& messages);

/// The message for an unknown crop name. It lists the crops.
[[nodiscard]] std::string unknownCrop(TypedFarm& farm, std::string_view name);

/// Checks that a farm is complete.
/// \throws Refusal that names everything that is missing
void requireReady(const ScenarioInputs& inputs);

/// Checks that the farm of a request is complete, and that the wishes of its farm file fit the chosen crops
/// and the land split.
/// \throws Refusal that names what is missing, or the wish
void requireReady(const FarmRequest& request, TypedFarm& farm);

/// Checks that the wishes of a farm file fit the crops and fields of a run.
/// \throws Refusal that names the wish
void requireFitting(const std::vector<Wish>& wishes, const WishContext& context);

}  // namespace verdalis
