#include "results/OptionRows.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

#include "model/PricedField.h"
#include "model/checked.h"
#include "results/passOver.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr double unknownGross = -1;

/// A field as it counts for mixes and mirror images: crop by number, acres, and net inches.
struct FieldKey {
  std::size_t crop;
  double acres;
  double depth;

  friend auto operator<=>(const FieldKey&, const FieldKey&) = default;
};

using MixKey = std::vector<std::pair<std::size_t, double>>;

/// Whether two net returns differ by less than half a dollar.
bool equallyGood(const std::optional<double>& a, const std::optional<double>& b) {
  return a && b && std::abs(*a - *b) < 0.5;
}

/// The crops with their acres added, most acres first; of equal acres, the crop that is named first.
std::vector<std::pair<std::string, double>> acresByCrop(const FieldCollection& option) {
  std::vector<std::pair<std::string, double>> sums;
  for (const auto& field : option) {
    const std::string& crop = field->theCrop->cropType;
    const auto found =
        std::find_if(sums.begin(), sums.end(), [&](const auto& sum) { return sum.first == crop; });
    if (found == sums.end()) {
      sums.emplace_back(crop, field->acres);
    } else {
      found->second += field->acres;
    }
  }
  std::sort(sums.begin(), sums.end(), [](const auto& a, const auto& b) {
    return a.second != b.second ? a.second > b.second : a.first < b.first;
  });
  return sums;
}

}  // namespace

std::string cropsWithAcres(const FieldCollection& option) {
  std::string text;
  for (const auto& [crop, acres] : acresByCrop(option)) {
    text += (text.empty() ? "" : ", ") + crop;
    passOver([&, sum = acres] { text += " " + formatNumber(sum, "###,###,##0"); });
  }
  return text;
}

double netReturnOf(const FieldCollection& option, double efficiency) {
  if (option.TotalCost == 0) return option.Copy().getProfit(efficiency);
  double sum = 0;
  for (const auto& field : option) {
    const Crop& crop = *field->theCrop;
    sum += field->TotalReturn != 0
               ? field->TotalReturn
               : totalReturns(crop, salesOf(crop, crop.Yield, field->acres), field->acres);
  }
  return checked(checked(sum, "The return of the farm") - option.TotalCost, "The profit of the farm");
}

OptionRows::OptionRows(const std::vector<Option>& options, double efficiency) {
  std::map<std::string, std::size_t, std::less<>> cropNumbers;
  std::map<MixKey, std::size_t> mixNumbers;
  std::map<std::vector<FieldKey>, std::size_t> firsts;
  rows_.reserve(options.size());
  std::vector<FieldKey> fields;
  MixKey mix;
  for (const Option& option : options) {
    addRow(*option, efficiency);
    Row& row = rows_.back();
    fields.clear();
    for (const auto& field : *option) {
      const std::string& name = field->theCrop->cropType;
      auto crop = cropNumbers.find(name);
      if (crop == cropNumbers.end()) {
        crop = cropNumbers.emplace(name, crops_.size()).first;
        crops_.push_back(name);
      }
      fields.push_back({crop->second, field->acres, field->Depth});
    }
    std::sort(fields.begin(), fields.end());
    mix.clear();
    for (const FieldKey& field : fields)
      mix.emplace_back(field.crop, field.acres);
    const auto [number, isNew] = mixNumbers.try_emplace(mix, mixes_.size());
    if (isNew) {
      Mix made;
      made.text = cropsWithAcres(*option);
      for (const auto& [crop, acres] : acresByCrop(*option))
        made.crops.push_back(crop);
      mixes_.push_back(std::move(made));
    }
    row.mix = number->second;
    row.first = firsts.try_emplace(fields, rows_.size() - 1).first->second;
    if (!equallyGood(row.profit, rows_[row.first].profit)) row.first = rows_.size() - 1;
    hasMirrors_ = hasMirrors_ || row.first + 1 < rows_.size();
  }
  std::vector<std::size_t> order(mixes_.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return mixes_[a].text < mixes_[b].text; });
  // Different mixes may read the same; they share a place.
  for (std::size_t i = 0; i < order.size(); ++i) {
    const bool same = i > 0 && mixes_[order[i]].text == mixes_[order[i - 1]].text;
    mixes_[order[i]].place = same ? mixes_[order[i - 1]].place : i;
  }
}

void OptionRows::addRow(const FieldCollection& option, double efficiency) {
  Row row;
  row.gross.fill(unknownGross);
  for (const auto& field : option) {
    row.acres += field->acres;
    if (row.fields < mostFields) {
      passOver([&] { row.gross[row.fields] = grossFromNet(field->Depth, efficiency); });
      row.parts[row.fields] = field->acres;
      mostGross_ = std::max(mostGross_, row.gross[row.fields]);
    }
    ++row.fields;
  }
  passOver([&] { row.profit = netReturnOf(option, efficiency); });
  if (row.profit) {
    best_ = std::max(best_.value_or(*row.profit), *row.profit);
    worst_ = std::min(worst_.value_or(*row.profit), *row.profit);
  }
  fields_ = std::max(fields_, std::min(row.fields, mostFields));
  rows_.push_back(row);
}

bool OptionRows::mixHas(std::size_t mix, const std::string& crop) const {
  const std::vector<std::string>& crops = mixes_[mix].crops;
  return std::find(crops.begin(), crops.end(), crop) != crops.end();
}

std::optional<double> OptionRows::behind(std::size_t index) const {
  if (!best_ || !rows_[index].profit) return std::nullopt;
  const double dollars = *best_ - *rows_[index].profit;
  return std::isfinite(dollars) ? std::optional(dollars) : std::nullopt;
}

bool OptionRows::isWithin(std::size_t index, double percent) const {
  const std::optional<double> dollars = behind(index);
  return dollars && *dollars <= within(percent);
}

double OptionRows::within(double percent) const {
  return best_ ? std::abs(*best_) * percent / 100 : 0;
}

}  // namespace verdalis
