#include "tests/reference/TablePricing.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/FieldTables.h"

namespace verdalis::reference {
namespace {

constexpr std::size_t block = priceBlockSize;
constexpr double infinity = std::numeric_limits<double>::infinity();

/// Prices of the crops by position, padded. In this order candidates are visited from the last to the first,
/// so equal profits need no second check.
struct Row {
  std::vector<double> returns;
  std::vector<double> costs;
};

class TablePricing {
 public:
  TablePricing(const SearchInputs& inputs, const FieldTables& tables)
      : crops_(tables.cropCount()),
        kept_(static_cast<std::size_t>(inputs.size), -infinity),
        current_(tables.fields()) {
    for (const PricedRow& priced : tables.rows()) {
      Row row;
      for (const auto& [income, cost] : priced.prices) {
        row.returns.push_back(income);
        row.costs.push_back(cost);
      }
      const std::size_t padded = (crops_ + block - 1) / block * block;
      row.returns.resize(padded, -infinity);
      row.costs.resize(padded, 0);
      rows_.push_back(std::move(row));
    }
  }

  void priceSplit(std::size_t split, const FieldTables& tables, const std::uint16_t* levels) {
    split_ = static_cast<std::int64_t>(split);
    for (std::size_t k = 0; k < current_.size(); ++k)
      current_[k] = &rows_[tables.rowNumbers(k)[levels[k]]];
    price(0, 0, 0, 0);
  }

  [[nodiscard]] std::vector<KeptCandidate> ranked() const { return kept_.ranked(); }

 private:
  void price(std::size_t field, double returns, double costs, std::uint64_t digits) {
    const Row& row = *current_[field];
    if (field + 1 == current_.size()) {
      priceLast(row, returns, costs, digits);
      return;
    }
    for (std::size_t i = 0; i < crops_; ++i) {
      price(field + 1, returns + row.returns[i], costs + row.costs[i], (digits + i) * crops_);
    }
  }

  void priceLast(const Row& row, double returns, double costs, std::uint64_t digits) {
    for (std::size_t begin = 0; begin < crops_; begin += block) {
      if (!anyReaches(kept_.needed(-1, 0), returns, costs, &row.returns[begin], &row.costs[begin])) continue;
      for (std::size_t i = begin; i < std::min(begin + block, crops_); ++i) {
        const double profit = (returns + row.returns[i]) - (costs + row.costs[i]);
        if (profit > kept_.threshold()) kept_.offer({profit, split_, digits + i});
      }
    }
  }

  std::size_t crops_;
  KeptCandidates kept_;
  std::vector<Row> rows_;
  std::vector<const Row*> current_;
  std::int64_t split_ = 0;
};

}  // namespace

std::vector<KeptCandidate> priceAllByTables(const SearchInputs& inputs) {
  ProgramState state;
  RunHooks hooks;
  RunPulse pulse(state, hooks);
  FieldTables tables(inputs);
  if (!tables.price(pulse)) return {};
  TablePricing pricing(inputs, tables);
  for (auto split = static_cast<std::size_t>(inputs.depths.Count()); split-- > 0;) {
    pricing.priceSplit(split, tables, inputs.depths.levelNumbers(split));
  }
  return pricing.ranked();
}

}  // namespace verdalis::reference
