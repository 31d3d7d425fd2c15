#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/TypedFarm.h"

namespace verdalis {

/// What a column of the table of farms sets, in the order in which the cells of a row are applied.
enum class BatchColumnKind {
  name,  ///< Repeated in the output; sets nothing
  // Controls of the main pane
  area,
  inches,
  rain,
  efficiency,
  soil,
  landSplitButton,  ///< `index` is the number of the button
  noSplitBox,
  optionsToKeep,
  switchWithoutEffect,
  textWithoutEffect,
  tick,  ///< `index` is the number of the row
  // Options of the command line
  price,     ///< `index` is the number of the row
  maxYield,  ///< `index` is the number of the row
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
  std::size_t index = 0;     ///< Number of the control, for controls of which there are several
  std::size_t position = 0;  ///< Position of its cells in their rows

  /// Whether both columns set the same value.
  [[nodiscard]] bool repeats(const BatchColumn& other) const {
    return kind == other.kind && index == other.index;
  }
};

/// The columns of a header row, in the order in which their cells are applied.
/// \throws Refusal for a column that is unknown or repeated, or whose cells would have no effect on a run
[[nodiscard]] std::vector<BatchColumn> batchColumns(const std::vector<std::string>& head, TypedFarm& farm);

}  // namespace verdalis
