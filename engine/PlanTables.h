#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/PlanQuestion.h"

namespace verdalis {

/// Price of each crop on each field at each level of water, by season, and the crops and levels that the
/// wishes about single fields leave.
class PlanTables {
 public:
  explicit PlanTables(const PlanQuestion& question);

  /// Prices everything.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool price(RunPulse& pulse);

  [[nodiscard]] std::size_t fields() const { return levelCount_.size(); }
  [[nodiscard]] std::size_t crops() const { return cropCount_; }
  [[nodiscard]] std::size_t seasons() const { return tables_.size(); }
  [[nodiscard]] std::size_t levels(std::size_t field) const { return levelCount_[field]; }

  [[nodiscard]] const PricedRow::Price& price(std::size_t season, std::size_t field, std::size_t level,
                                              std::size_t crop) const {
    return tables_[season].row(field, level).prices[crop];
  }

  /// Profit of a candidate in a season, dollars: returns minus costs, each added in field order.
  /// \param levels, crops one per field.
  template <class Crops>
  [[nodiscard]] double profit(std::size_t season, const std::uint16_t* levels, const Crops& crops) const {
    double returns = 0;
    double costs = 0;
    for (std::size_t field = 0; field < crops.size(); ++field) {
      const PricedRow::Price& found = price(season, field, levels[field], crops[field]);
      returns += found.income;
      costs += found.cost;
    }
    return returns - costs;
  }

  /// Whether the wishes about this field allow this crop at this level, and it can be priced.
  [[nodiscard]] bool isOpen(std::size_t field, std::size_t crop, std::size_t level) const {
    return open_[field][crop * levelCount_[field] + level] != 0;
  }

  /// Excludes prices that are not finite.
  void closeUnpriced();

  /// Whether all candidates can be priced, with sums within the range of floats.
  [[nodiscard]] bool isSafe() const;

  /// Gains by field, as [crop * levels + level], dollars: sum over the seasons of factor * (return - cost);
  /// -infinity if the field is not open to the crop at this level.
  [[nodiscard]] std::vector<std::vector<double>> gains(const std::vector<double>& factors) const;

  /// Upper bound, except for rounding, of the sum of absolute returns and costs of a candidate in a season,
  /// dollars.
  [[nodiscard]] double magnitude(std::size_t season) const { return tables_[season].magnitude(); }

  /// Highest return and lowest cost of a crop on a field at any open level, dollars.
  struct Extremes {
    double income;
    double cost;
  };
  [[nodiscard]] const Extremes& extremes(std::size_t season, std::size_t field, std::size_t crop) const {
    return extremes_[season][field * cropCount_ + crop];
  }

  /// Equal for twins: crops that cost and return the same on every field, level and season, and that are
  /// allowed on the same fields and levels.
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
