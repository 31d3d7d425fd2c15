#pragma once

#include <string>

#include "document/FarmDocument.h"

namespace verdalis {

/// Where a change of a document shows.
enum class ChangePlace {
  main,     ///< The main pane
  costs,    ///< The production costs of a crop
  plant,    ///< The irrigation costs
  summary,  ///< The saved options
  trend,    ///< The setup of a trend
  notes,    ///< The name and the notes of the farm
};

/// The difference of two documents.
struct Change {
  std::string name;  ///< Such as "Price of Corn"; empty if several things differ
  ChangePlace place = ChangePlace::main;
  std::string crop;  ///< For ChangePlace::costs
};

[[nodiscard]] Change describeChange(const FarmDocument& before, const FarmDocument& after);

}  // namespace verdalis
