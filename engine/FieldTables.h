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

/// What a field of given acres and depth costs and returns under each crop of the run.
///
/// Crops that cost and return exactly the same on this field make a group, for they make candidates of
/// exactly the same profit. The groups stand in falling order of their gain, return minus cost. Gains that
/// differ by little more than rounding count as equal there, and then the group that makes the later
/// candidates stands first. `gains`, `returns` and `costs` are filled up with groups that no candidate can
/// reach (return -infinity) to a multiple of priceBlockSize.
struct PricedRow {
  std::size_t groups = 0;
  std::vector<double> gains;         ///< The largest gain of this group and those behind it, rounded, dollars
  std::vector<double> returns;       ///< Dollars
  std::vector<double> costs;         ///< Dollars
  std::vector<std::uint32_t> crops;  ///< The positions of the crops, group by group, rising in each group
  std::vector<std::uint32_t> firstOfGroup;  ///< Where each group begins in `crops`; and their end

  double bestGain = 0;  ///< The largest
  double maxReturn = 0;
  double minReturn = 0;
  double maxCost = 0;
  double minCost = 0;
  double magnitude = 0;    ///< The largest |return| + |cost|; infinite in a row that is not complete
  bool isComplete = true;  ///< Every crop can be priced on this field. Else there are prices alone, no groups

  std::size_t classNumber = 0;  ///< Equal for rows with equal prices of every crop

  struct Price {
    double income;
    double cost;
    friend bool operator==(const Price&, const Price&) = default;
    friend bool operator<(const Price& a, const Price& b) {
      return a.income != b.income ? a.income < b.income : a.cost < b.cost;
    }
  };
  std::vector<Price> prices;  ///< By the position of the crop; not a number where the crop cannot be priced
};

/// The prices of all fields that occur in a search: each (acres, depth, crop) priced once, by the operations
/// of Field, and shared by all fields of the same acres and depth.
class FieldTables {
 public:
  explicit FieldTables(const SearchInputs& inputs) : inputs_(inputs) {}

  /// Prices everything. \returns false when the search is to be given up.
  [[nodiscard]] bool price(RunPulse& pulse);

  [[nodiscard]] std::size_t fields() const { return rowNumbers_.size(); }
  [[nodiscard]] std::size_t cropCount() const { return inputs_.combinations.crops().size(); }

  /// For each level of a field, the number of its row in rows().
  [[nodiscard]] const std::vector<std::size_t>& rowNumbers(std::size_t field) const {
    return rowNumbers_[field];
  }
  [[nodiscard]] const std::vector<PricedRow>& rows() const { return rows_; }
  [[nodiscard]] const PricedRow& row(std::size_t field, std::size_t level) const {
    return rows_[rowNumbers_[field][level]];
  }

  /// No sum of absolute returns and costs of a candidate is above this, but for rounding.
  [[nodiscard]] double magnitude() const { return magnitude_; }

  /// Different classes of rows; as many as rows() when no two rows have equal prices.
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
