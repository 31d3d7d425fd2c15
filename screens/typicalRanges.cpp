#include "screens/typicalRanges.h"

#include <algorithm>
#include <optional>

#include "model/StockCrops.h"
#include "screens/MainPane.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

std::optional<double> numberIn(const std::string& text) {
  if (!isNumeric(text)) return std::nullopt;
  try {
    return Val(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

std::string amount(double value) {
  std::string text = formatNumber(value, "#,##0.##");
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::string dollars(double value) {
  return "$" + formatNumber(value, "#,##0.00");
}

/// A range that cannot be worked out is not told.
template <class Tell>
std::string told(Tell tell) {
  try {
    return tell();
  } catch (const RunTimeError&) {
    return {};
  }
}

/// What the yield table makes of a maximum yield, as a run reads it.
std::string tableText(const Crop& crop, double maxYield, double rain) {
  Crop own = crop.Copy();
  own.maxYield = maxYield;
  own.setNormal(maxYield, rain);
  const double dry = own.yieldAt(0, rain);
  double most = dry;
  for (int inches = 1; inches <= own.yieldTable->maxIrrigation(); ++inches)
    most = std::max(most, own.yieldAt(inches, rain));
  return " With " + generalText(rain) + " inches of rain the yield table goes from " +
         formatNumber(dry, "#,##0.0") + " without irrigation to " + formatNumber(most, "#,##0.0") + ".";
}

}  // namespace

std::string acresRange(const IrrigationCosts& plant, const std::string& txtMax) {
  const std::optional<double> inches = numberIn(txtMax);
  if (!inches || *inches <= 0 || plant.GPM <= 0 || plant.dblEstHours <= 0) return {};
  return told([&] {
    return "In its hours the plant pumps " + amount(*inches) + " inches for up to " +
           formatNumber(plant.getMaxInches(1) / *inches, "#,##0") + " acres.";
  });
}

std::string waterRange(const std::vector<const Crop*>& crops, const std::string& txtEff) {
  double net = 0;
  for (const Crop* crop : crops)
    net = std::max(net, crop->getMaxIrrigation());
  if (net <= 0) return {};
  return told([&] {
    const std::string text = "Yields are known up to " + amount(net) + " net inches on a field";
    const std::optional<double> efficiency = numberIn(txtEff);
    if (!efficiency || *efficiency <= 0 || *efficiency > 100) return text + ".";
    return text + ": " + formatNumber(net * 100 / *efficiency, "#,##0.0") + " gross at " +
           amount(*efficiency) + " %.";
  });
}

std::string rainRange(const std::vector<const Crop*>& crops) {
  std::optional<int> first;
  std::optional<int> last;
  for (const Crop* crop : crops) {
    if (!crop->yieldTable) continue;
    first = first ? std::max(*first, crop->yieldTable->firstRain()) : crop->yieldTable->firstRain();
    last = last ? std::min(*last, crop->yieldTable->lastRain()) : crop->yieldTable->lastRain();
  }
  if (!first || *first > *last) return {};
  return "Yields are known from " + std::to_string(*first) + " to " + std::to_string(*last) +
         " inches of rain.";
}

std::string efficiencyRange() {
  for (const FieldRow& row : MainPane::fields()) {
    const Limit::Cell limit = row.limit.of({});
    if (row.control == "txtEff" && limit)
      return "At most " + amount(*limit) + " %. A new farm has " + std::string(row.startText) + " %.";
  }
  return {};
}

std::string priceRange(const Crop& crop) {
  const StockCrop* const stock = stockCrop(cropKind(crop.cropType));
  if (stock == nullptr) return {};
  return "Default " + dollars(stock->defaults.price) + " per " + crop.priceUnits() + ", at most " +
         dollars(stock->limits.price) + ".";
}

std::string maxYieldRange(const Crop& crop, const std::string& txtMaxYield, const std::string& txtAnnRain) {
  std::string text;
  if (const StockCrop* const stock = stockCrop(cropKind(crop.cropType))) {
    text = "Default " + amount(stock->defaults.maxYield) + " " + crop.cropUnitsArray[1] +
           " per acre, at most " + amount(stock->limits.maxYield) + ".";
  }
  const std::optional<double> maxYield = numberIn(txtMaxYield);
  const std::optional<double> rain = numberIn(txtAnnRain);
  if (!crop.yieldTable || !maxYield || !rain) return text;
  text += told([&] { return tableText(crop, *maxYield, *rain); });
  return text.starts_with(' ') ? text.substr(1) : text;
}

}  // namespace verdalis
