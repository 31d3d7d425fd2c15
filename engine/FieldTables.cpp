#include "engine/FieldTables.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "engine/CandidateBuilder.h"
#include "model/PricedField.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

PricedRow::Price priceOf(const FieldPlan& plan, const Crop& crop, const SearchInputs& inputs) {
  try {
    const PricedField priced = priceField(plan, crop, inputs.irrigationCosts, inputs.efficiency);
    return {priced.returns, priced.costs};
  } catch (const RunTimeError&) {
    // The search prices the first candidate with this field again, which throws in the right place.
    return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
  }
}

void summarise(PricedRow& row) {
  row.maxReturn = row.maxCost = -infinity;
  row.minReturn = row.minCost = infinity;
  for (const auto& [income, cost] : row.prices) {
    row.maxReturn = std::max(row.maxReturn, income);
    row.minReturn = std::min(row.minReturn, income);
    row.maxCost = std::max(row.maxCost, cost);
    row.minCost = std::min(row.minCost, cost);
    row.isComplete = row.isComplete && std::isfinite(income) && std::isfinite(cost);
    row.magnitude = std::max(row.magnitude, std::fabs(income) + std::fabs(cost));
  }
}

/// Rounds gains to steps of a few rounding errors.
double roughGain(const PricedRow& row, double gain) {
  constexpr double roundings = 32;
  const double step = row.magnitude * roundings * std::numeric_limits<double>::epsilon();
  return std::isfinite(step) && step > 0 ? std::floor(gain / step) : gain;
}

/// Order of the crops in the groups: by rounded gain, crops of equal prices together.
struct CropOrder {
  double roughGain;
  std::uint32_t firstTwin;  ///< The first crop with these prices
  std::uint32_t crop;
  friend bool operator<(const CropOrder& a, const CropOrder& b) {
    if (a.roughGain != b.roughGain) return a.roughGain > b.roughGain;
    return a.firstTwin != b.firstTwin ? a.firstTwin < b.firstTwin : a.crop < b.crop;
  }
};

std::vector<CropOrder> orderCrops(const PricedRow& row) {
  std::vector<CropOrder> byPrice;
  for (std::uint32_t crop = 0; crop < row.prices.size(); ++crop)
    byPrice.push_back({0, crop, crop});
  std::sort(byPrice.begin(), byPrice.end(), [&](const CropOrder& a, const CropOrder& b) {
    const PricedRow::Price& priceA = row.prices[a.crop];
    const PricedRow::Price& priceB = row.prices[b.crop];
    return priceA == priceB ? a.crop < b.crop : priceA < priceB;
  });
  for (std::size_t i = 0; i < byPrice.size(); ++i) {
    const PricedRow::Price& price = row.prices[byPrice[i].crop];
    byPrice[i].roughGain = roughGain(row, price.income - price.cost);
    if (i > 0 && price == row.prices[byPrice[i - 1].crop]) byPrice[i].firstTwin = byPrice[i - 1].firstTwin;
  }
  std::sort(byPrice.begin(), byPrice.end());
  return byPrice;
}

void makeGroups(PricedRow& row) {
  const std::vector<CropOrder> order = orderCrops(row);
  for (const CropOrder& entry : order) {
    if (entry.firstTwin == entry.crop) {
      const PricedRow::Price& price = row.prices[entry.crop];
      row.firstOfGroup.push_back(static_cast<std::uint32_t>(row.crops.size()));
      row.gains.push_back(price.income - price.cost);
      row.returns.push_back(price.income);
      row.costs.push_back(price.cost);
    }
    row.crops.push_back(entry.crop);
  }
  row.firstOfGroup.push_back(static_cast<std::uint32_t>(row.crops.size()));
  row.groups = row.gains.size();
  for (std::size_t group = row.groups - 1; group-- > 0;) {
    row.gains[group] = std::max(row.gains[group], row.gains[group + 1]);
  }
  row.bestGain = row.gains.front();
  const std::size_t padded = (row.groups + priceBlockSize - 1) / priceBlockSize * priceBlockSize;
  row.gains.resize(padded, -infinity);
  row.returns.resize(padded, -infinity);
  row.costs.resize(padded, 0);
}

}  // namespace

bool FieldTables::price(RunPulse& pulse) {
  const std::vector<double>& acres = inputs_.landSplit.getSplits();
  rowNumbers_.resize(acres.size());
  if (inputs_.depths.Count() == 0 || cropCount() == 0) return true;
  std::map<std::pair<std::uint64_t, std::uint64_t>, std::size_t> known;
  for (std::size_t field = 0; field < acres.size(); ++field) {
    double fieldMagnitude = 0;
    for (const double depth : inputs_.depths.levels(field)) {
      const auto key =
          std::make_pair(std::bit_cast<std::uint64_t>(acres[field]), std::bit_cast<std::uint64_t>(depth));
      const auto [entry, isFirst] = known.try_emplace(key, rows_.size());
      if (isFirst) {
        priceRow(acres[field], depth);
        if (!pulse.turn()) return false;
      }
      rowNumbers_[field].push_back(entry->second);
      fieldMagnitude = std::max(fieldMagnitude, rows_[entry->second].magnitude);
    }
    magnitude_ += fieldMagnitude;
  }
  return true;
}

void FieldTables::priceRow(double acres, double depth) {
  PricedRow row;
  row.prices.reserve(cropCount());
  for (const auto& crop : inputs_.combinations.crops()) {
    row.prices.push_back(priceOf({acres, netDepthOf(*crop, depth), inputs_.rain}, *crop, inputs_));
  }
  summarise(row);
  if (row.isComplete) {
    makeGroups(row);
    classify(row);
  } else {
    row.magnitude = infinity;
  }
  rows_.push_back(std::move(row));
}

void FieldTables::classify(PricedRow& row) {
  row.classNumber = classes_.try_emplace(row.prices, classes_.size()).first->second;
}

}  // namespace verdalis
