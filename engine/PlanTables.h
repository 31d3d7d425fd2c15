#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/PlanQuestion.h"

namespace verdalis {

/// What each crop earns on each field at each level of water, season by season, and which of them the wishes
/// about single fields leave.
class PlanTables {
 public:
  explicit PlanTables(const PlanQuestion& question);

  /// Prices everything. \returns false when the search is to be given up.
  [[nodiscard]] bool price(RunPulse& pulse);

  [[nodiscard]] std::size_t fields() const { return levelCount_.size(); }
  [[nodiscard]] std::size_t crops() const { return cropCount_; }
  [[nodiscard]] std::size_t seasons() const { return tables_.size(); }
  [[nodiscard]] std::size_t levels(std::size_t field) const { return levelCount_[field]; }

  [[nodiscard]] const PricedRow::Price& price(std::size_t season, std::size_t field, std::size_t level,
                                              std::size_t crop) const {
    return tables_[season].row(field, level).prices[crop];
  }

  /// Whether the wishes about this field let it have this crop at this level, and it can be priced.
  [[nodiscard]] bool isOpen(std::size_t field, std::size_t crop, std::size_t level) const {
    return open_[field][crop * levelCount_[field] + level] != 0;
  }

  /// Leaves out what cannot be priced. After this every open price is a finite number.
  void closeUnpriced();

  /// Whether a candidate may have no price, or a sum that leaves the range of floats.
  [[nodiscard]] bool isSafe() const;

  /// Gains by field, as [crop * levels + level], dollars: the sum over the seasons of factor times return
  /// minus cost; -infinity where the field is not open to the crop.
  [[nodiscard]] std::vector<std::vector<double>> gains(const std::vector<double>& factors) const;

  /// No sum of absolute returns and costs of a candidate in a season is above this, but for rounding.
  [[nodiscard]] double magnitude(std::size_t season) const { return tables_[season].magnitude(); }

  /// The highest return and the lowest cost of a crop on a field at any open level, dollars.
  struct Extremes {
    double income;
    double cost;
  };
  [[nodiscard]] const Extremes& extremes(std::size_t season, std::size_t field, std::size_t crop) const {
    return extremes_[season][field * cropCount_ + crop];
  }

  /// The number of a crop's twins class: twins cost and return the same on every field, level and season, and
  /// the same fields are open to them.
  [[nodiscard]] std::uint32_t twinClass(std::size_t crop) const { return twinClass_[crop]; }

 private:
  void openFields();
  void findExtremes();
  void findTwins();

  const PlanQuestion& question_;
  std::size_t cropCount_;
  std::vector<std::size_t> levelCount_;
  std::vector<FieldTables> tables_;
  std::vector<std::vector<std::uint8_t>> open_;
  std::vector<std::vector<Extremes>> extremes_;
  std::vector<std::uint32_t> twinClass_;
};

}  // namespace verdalis
