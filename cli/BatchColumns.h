#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/TypedFarm.h"

namespace verdalis {

/// What a column of a table of farms sets, in the order in which the cells of a row are typed.
enum class BatchColumnKind {
  name,  ///< Told again, sets nothing
  // Controls of the main pane
  area,
  inches,
  rain,
  efficiency,
  soil,
  landSplitButton,  ///< `index` is that of the button
  noSplitBox,
  optionsToKeep,
  switchWithoutEffect,
  textWithoutEffect,
  tick,  ///< `index` is that of the row
  // What has an option of the command line
  price,     ///< `index` is that of the row
  maxYield,  ///< `index` is that of the row
  split,
  crops,
  noSplit,
  keep,
  factor,
  fuel,
  wish,
};

/// A column of a table of farms.
struct BatchColumn {
  std::string title;
  BatchColumnKind kind = BatchColumnKind::name;
  std::size_t index = 0;     ///< Of a control of which there are several
  std::size_t position = 0;  ///< Of its cells in their rows

  /// Whether it sets the same as another.
  [[nodiscard]] bool repeats(const BatchColumn& other) const {
    return kind == other.kind && index == other.index;
  }
};

/// The columns of a head row, in the order in which their cells are typed.
/// \throws Refusal for one that is unknown or repeated, or whose cells would take no part in a run
[[nodiscard]] std::vector<BatchColumn> batchColumns(const std::vector<std::string>& head, TypedFarm& farm);

}  // namespace verdalis
