#include "questions/values.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "explore/water.h"
#include "model/StockCrops.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

/// The limit of a field of a pane.
template <class Rows, class RowOf>
Limit limitOf(const Rows& rows, std::string_view control, RowOf rowOf) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return rowOf(row).control == control; });
  return found == rows.end() ? Limit() : rowOf(*found).limit;
}

InputBounds upTo(std::optional<double> most) {
  if (!most) return {};
  return {0, most};
}

}  // namespace

std::vector<double> ValueRange::values() const {
  return evenValues(from, to, count);
}

double numberOf(const std::string& text) {
  if (!isNumeric(text) || text.find(',') != std::string::npos)
    throw std::invalid_argument("Please enter a valid number");
  return toDouble(text);
}

void requireAbove(double from, double to) {
  if (!(from < to)) throw std::invalid_argument("The last value must be above the first.");
}

void requireValue(const FarmInput& input, double value, const Farm& farm) {
  const InputBounds bounds = inputBounds(input, farm);
  if (bounds.least && value < *bounds.least)
    throw std::invalid_argument("The " + inputName(input) + " must be at least " +
                                generalText(*bounds.least) + ".");
  if (bounds.most && value > *bounds.most)
    throw std::invalid_argument("The " + inputName(input) + " must be at most " + generalText(*bounds.most) +
                                ".");
  if (input.kind == Kind::water && !isWater(farm, value))
    throw std::invalid_argument("Acres times inches must be at least 1 ac-in.");
}

std::size_t countOf(const std::string& text) {
  const double values = numberOf(text);
  if (values < 2 || values > static_cast<double>(mostPoints) ||
      values != static_cast<double>(static_cast<std::size_t>(values))) {
    throw std::invalid_argument("The number of values must be a whole number from 2 to " +
                                formatNumber(static_cast<double>(mostPoints), "###,###") + ".");
  }
  return static_cast<std::size_t>(values);
}

InputBounds inputBounds(const FarmInput& input, const Farm& farm) {
  const StockCrop* const stock = stockCrop(cropKind(input.crop));  // other crops have no range test
  switch (input.kind) {
    case Kind::water:
    case Kind::rain:
      return {};
    case Kind::efficiency:
      return upTo(limitOf(MainPane::fields(), "txtEff", [](const FieldRow& row) { return row; }).of(""));
    case Kind::fuel:
      return upTo(limitOf(IrrigCostsPane::fields(), "txtCost", [](const IrrigCostsField& field) {
                    return field.row;
                  }).of(farm.plant.FuelType));
    case Kind::price:
      return upTo(stock != nullptr ? std::optional(stock->limits.price) : std::nullopt);
    case Kind::maxYield:
      break;
  }
  return upTo(stock != nullptr ? std::optional(stock->limits.maxYield) : std::nullopt);
}

void requireSeasons(const std::vector<Season>& seasons) {
  if (seasons.size() < leastSeasons || seasons.size() > mostSeasons) {
    throw std::invalid_argument("There must be " + std::to_string(leastSeasons) + " to " +
                                std::to_string(mostSeasons) + " seasons.");
  }
  for (std::size_t i = 0; i < seasons.size(); ++i) {
    requireWeight(seasons[i].weight);
    requireNewName(seasons[i].name, {seasons.begin(), seasons.begin() + static_cast<std::ptrdiff_t>(i)});
  }
}

void requireWeight(double weight) {
  if (!(weight > 0)) throw std::invalid_argument("The weight must be above 0.");
}

void requireNewName(const std::string& name, const std::vector<Season>& seasons) {
  const bool repeated =
      std::any_of(seasons.begin(), seasons.end(), [&](const Season& other) { return other.name == name; });
  if (repeated) throw std::invalid_argument("There is already a season with this name.");
}

void requirePercent(double percent, const Farm& farm) {
  if (!(percent > 0 && percent < 100))
    throw std::invalid_argument("The percentage must be above 0 and below 100.");
  requireValue({Kind::water, {}}, farm.grossDepth * (1 - percent / 100), farm);
}

}  // namespace verdalis
