#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/PlanQuestion.h"

namespace verdalis {

/// The crops of a run in classes, and the classes that the wishes about acres and about the number of crops
/// allow on the fields. Each crop named in a wish about acres is a class of its own; all others form the last
/// class. With a wish for a number of crops, fields of the last class are grouped in blocks: fields of one
/// block grow the same crop, fields of different blocks grow different crops.
struct CropPatterns {
  /// Positions of the crops by class; the others come last.
  std::vector<std::vector<std::uint32_t>> classes;

  /// By position: equal for equal names.
  std::vector<std::uint32_t> nameOf;

  /// Positions of the crops by name.
  std::vector<std::vector<std::uint32_t>> ofName;

  /// Whether blocks are used.
  bool hasBlocks = false;

  /// Class and block of a field.
  struct Slot {
    std::uint32_t cropClass = 0;
    std::uint32_t block = 0;  ///< Of the last class; 0 for the others
  };

  /// Slots of the fields by pattern. Every candidate that meets the wishes about acres and crops has exactly
  /// one pattern, and every candidate of a pattern meets these wishes.
  std::vector<std::vector<Slot>> patterns;
};

[[nodiscard]] CropPatterns makeCropPatterns(const PlanQuestion& question);

}  // namespace verdalis
