#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Crop.h"

namespace verdalis {

/// An ordered list of crops, with indices from 1: the library, the selected crops of a run, or one assignment
/// of crops to fields. Crops are shared with other lists.
class CropScenario {
 public:
  void Add(std::shared_ptr<Crop> crop) { crops_.push_back(std::move(crop)); }

  /// \throws RunTimeError (subscript) outside 1..Count().
  [[nodiscard]] const std::shared_ptr<Crop>& Item(long index) const;
  [[nodiscard]] long Count() const { return static_cast<long>(crops_.size()); }

  /// \throws RunTimeError (subscript) outside 1..Count().
  void Remove(long index);

  [[nodiscard]] const std::vector<std::shared_ptr<Crop>>& NewEnum() const { return crops_; }
  [[nodiscard]] auto begin() const { return crops_.begin(); }
  [[nodiscard]] auto end() const { return crops_.end(); }

  /// The crop names, joined with ", ".
  [[nodiscard]] std::string toString() const;

  /// A new list that shares the same crops.
  [[nodiscard]] CropScenario Copy() const { return *this; }

 private:
  std::vector<std::shared_ptr<Crop>> crops_;
};

}  // namespace verdalis
