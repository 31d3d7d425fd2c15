#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace verdalis {

/// An ordered list of numbers, one per field of a candidate: percentages, acres, acre-inches or inches,
/// depending on the stage.
class Split {
 public:
  std::vector<double> splits;

  Split() = default;
  Split(std::initializer_list<double> values) : splits(values) {}

  void addSplit(double value) { splits.push_back(value); }
  [[nodiscard]] std::int16_t Count() const { return static_cast<std::int16_t>(splits.size()); }

  /// Sum of the values, each rounded to a whole number first (halves to even). A water split is complete if
  /// this sum is 100, whatever the unrounded sum is.
  [[nodiscard]] double total() const;

  /// All values with their unit on one line.
  [[nodiscard]] std::string toString() const;

  [[nodiscard]] Split Copy() const { return *this; }
  [[nodiscard]] const std::vector<double>& getSplits() const { return splits; }

  friend bool operator==(const Split&, const Split&) = default;
};

}  // namespace verdalis
