#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "engine/RunPulse.h"
#include "engine/SearchInputs.h"
#include "engine/priceBlock.h"

namespace verdalis {

/// Costs and returns of each crop of the run on a field of given acres and depth.
///
/// Crops with exactly equal costs and returns form a group, because candidates that differ only in them have
/// exactly equal profits. Groups are sorted by descending gain (return minus cost). Gains that differ by
/// little more than rounding count as equal; then the group of the later candidates comes first. `gains`,
/// `returns` and `costs` are padded to a multiple of priceBlockSize with groups that never win (return
/// -infinity).
struct PricedRow {
  std::size_t groups = 0;
  std::vector<double> gains;         ///< Largest gain of this group and those behind it, rounded, dollars
  std::vector<double> returns;       ///< Dollars
  std::vector<double> costs;         ///< Dollars
  std::vector<std::uint32_t> crops;  ///< Positions of the crops, group by group, ascending in each group
  std::vector<std::uint32_t> firstOfGroup;  ///< Index in `crops` where each group begins, and the end

  double bestGain = 0;  ///< The largest
  double maxReturn = 0;
  double minReturn = 0;
  double maxCost = 0;
  double minCost = 0;
  double magnitude = 0;  ///< Largest |return| + |cost|; infinite if the row is incomplete
  bool isComplete =
      true;  ///< Every crop can be priced on this field. If not, the row has prices but no groups

  std::size_t classNumber = 0;  ///< Equal for rows in which every crop has equal prices

  struct Price {
    double income;
    double cost;
    friend bool operator==(const Price&, const Price&) = default;
    friend bool operator<(const Price& a, const Price& b) {
      return a.income != b.income ? a.income < b.income : a.cost < b.cost;
    }
  };
  std::vector<Price> prices;  ///< By position of the crop; NaN if the crop cannot be priced
};

/// The prices of all fields of a search. Each (acres, depth, crop) is priced once and shared by all fields of
/// the same acres and depth.
class FieldTables {
 public:
  explicit FieldTables(const SearchInputs& inputs) : inputs_(inputs) {}

  /// Prices everything.
  /// \returns false if the search is cancelled.
  [[nodiscard]] bool price(RunPulse& pulse);

  [[nodiscard]] std::size_t fields() const { return rowNumbers_.size(); }
  [[nodiscard]] std::size_t cropCount() const { return inputs_.combinations.crops().size(); }

  /// For each level of a field, the index of its row in rows().
  [[nodiscard]] const std::vector<std::size_t>& rowNumbers(std::size_t field) const {
    return rowNumbers_[field];
  }
  [[nodiscard]] const std::vector<PricedRow>& rows() const { return rows_; }
  [[nodiscard]] const PricedRow& row(std::size_t field, std::size_t level) const {
    return rows_[rowNumbers_[field][level]];
  }

  /// Upper bound, except for rounding, of the sum of absolute returns and costs of a candidate, dollars.
  [[nodiscard]] double magnitude() const { return magnitude_; }

  /// Number of different rows by price; equal to the size of rows() if no two rows have equal prices.
  [[nodiscard]] std::size_t classCount() const { return classes_.size(); }

 private:
  void priceRow(double acres, double depth);
  void classify(PricedRow& row);

  const SearchInputs& inputs_;
  std::vector<std::vector<std::size_t>> rowNumbers_;
  std::vector<PricedRow> rows_;
  std::map<std::vector<PricedRow::Price>, std::size_t> classes_;
  double magnitude_ = 0;
};

}  // namespace verdalis
