#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/PlanQuestion.h"

namespace verdalis {

/// The crops of a run in classes, and which class may stand on which field, as far as the wishes about acres
/// and about the number of crops tell.
///
/// Each crop that such a wish names is a class of its own; all others are the last class. With a wish for a
/// number of crops, the fields of the last class fall into blocks: those of one block grow the same crop,
/// those of different blocks different ones.
struct CropPatterns {
  /// Positions of the crops of each class; the last is that of the others.
  std::vector<std::vector<std::uint32_t>> classes;

  /// For each position, a number that equal names share.
  std::vector<std::uint32_t> nameOf;

  /// Positions of the crops of each name.
  std::vector<std::vector<std::uint32_t>> ofName;

  /// The blocks count. Without this, fields of the last class are free.
  bool hasBlocks = false;

  /// What a pattern says of a field.
  struct Slot {
    std::uint32_t cropClass = 0;
    std::uint32_t block = 0;  ///< Of the last class; 0 for the others
  };

  /// Slots of the fields, one pattern after the other. Every candidate that meets the wishes about acres and
  /// crops has exactly one of them, and every candidate of a pattern meets them.
  std::vector<std::vector<Slot>> patterns;
};

[[nodiscard]] CropPatterns makeCropPatterns(const PlanQuestion& question);

}  // namespace verdalis
