#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace verdalis {

/// Yield by seasonal net irrigation (first index, whole inches from 0) and annual rainfall (second index,
/// whole inches). A cell is either absolute (yield units per acre) or relative (fraction of the maximum
/// yield, at most 1). Columns below the first rainfall of the crop file stay 0.
class YieldTable {
 public:
  /// Creates a table with all cells 0. `maxIrrigation` and `lastRain` are the largest indices, `firstRain` is
  /// the first column filled by a crop file.
  /// \throws RunTimeError (subscript) if a bound is negative.
  YieldTable(int maxIrrigation, int firstRain, int lastRain);

  [[nodiscard]] int maxIrrigation() const { return maxIrrigation_; }
  [[nodiscard]] int firstRain() const { return firstRain_; }
  [[nodiscard]] int lastRain() const { return lastRain_; }
  [[nodiscard]] bool contains(int irrigation, int rain) const {
    return irrigation >= 0 && irrigation <= maxIrrigation_ && rain >= 0 && rain <= lastRain_;
  }

  /// Requires contains(irrigation, rain).
  [[nodiscard]] double cell(int irrigation, int rain) const { return cells_[index(irrigation, rain)]; }

  /// \throws RunTimeError (subscript) outside the table.
  void setCell(int irrigation, int rain, double value);

  friend bool operator==(const YieldTable&, const YieldTable&) = default;

 private:
  [[nodiscard]] std::size_t index(int irrigation, int rain) const {
    return static_cast<std::size_t>(irrigation) * (static_cast<std::size_t>(lastRain_) + 1) +
           static_cast<std::size_t>(rain);
  }

  int maxIrrigation_;
  int firstRain_;
  int lastRain_;
  std::vector<double> cells_;
};

/// A table never changes once a crop holds it, so all copies of the crop share it.
using SharedYieldTable = std::shared_ptr<const YieldTable>;

}  // namespace verdalis
