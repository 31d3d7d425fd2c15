#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "model/CropScenario.h"

namespace verdalis {

/// All assignments of k crops to n fields, with repetition, in descending order of crop position: the last
/// crop on every field comes first. There are k to the power of n, so assignments are not stored but made on
/// demand.
class CropCombinations {
 public:
  /// Takes copies of the crops.
  /// \throws RunTimeError (overflow) for more combinations than a 64-bit number can count
  CropCombinations(const CropScenario& crops, std::int16_t n);

  [[nodiscard]] std::uint64_t Count() const { return count_; }
  [[nodiscard]] std::size_t fields() const { return fields_; }

  /// The copied crops, in the order of the rows.
  [[nodiscard]] const std::vector<std::shared_ptr<Crop>>& crops() const { return crops_; }

  /// The assignment at an index counted from 1. Assignments share the copied crops.
  /// \throws RunTimeError (subscript) outside 1..Count().
  [[nodiscard]] CropScenario Item(std::uint64_t index) const;

  /// The positions in crops() of the assignment at an index counted from 0, which must be below Count().
  void positions(std::uint64_t index, std::vector<std::size_t>& result) const;

 private:
  std::vector<std::shared_ptr<Crop>> crops_;
  std::size_t fields_;
  std::uint64_t count_;
};

/// The assignments of the selected crops to n fields.
[[nodiscard]] CropCombinations makeCropCombos(const CropScenario& crops, std::int16_t n);

}  // namespace verdalis
