#include "model/Crop.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "model/CropKind.h"
#include "model/checked.h"
#include "model/savedFields.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Whole inches of a depth after rounding to tenths, half away from zero on the decimal text: 3.96 gives 4. A
/// depth rounds up to the next inch from f.95 on. The 64-bit float nearest to f.95 is (100 f + 95) / 100, and
/// a float is at or above it exactly if its shortest text is f.95 or more, so no text is needed.
double wholeInches(double depth) {
  if (depth < 0) return -wholeInches(-depth);
  const double inches = std::floor(depth);
  return depth >= (inches * 100 + 95) / 100 ? inches + 1 : inches;
}

std::string describeRange(const YieldTable& table) {
  return std::to_string(table.firstRain()) + " to " + std::to_string(table.lastRain()) + " inches";
}

/// Column of a rainfall: the nearest whole inch, halves to even. -1 if no table can have it.
int rainColumn(double annualRain) {
  const double rounded = std::nearbyint(annualRain);
  return rounded >= 0 && rounded <= std::numeric_limits<int>::max() ? static_cast<int>(rounded) : -1;
}

/// Builds the message only on error, because this is called for every price.
/// \throws RunTimeError (overflow)
double checkedYield(double yield, const std::string& cropType) {
  return std::isfinite(yield) ? yield : checked(yield, "The yield of " + cropType);
}

}  // namespace

std::string Crop::yieldToString() const {
  return formatNumber(Yield, "###,##0.0") + " " + cropUnitsArray[0] + "/ac";
}

void Crop::setYieldTable(const YieldTable& table) {
  yieldTable = std::make_shared<const YieldTable>(table);
}

double Crop::yieldAt(double Depth, double annualRain) const {
  if (cropKind(cropType) == CropKind::fallow) return 0;
  return readYield(Depth, annualRain).Yield;
}

YieldReading Crop::readYield(double Depth, double annualRain) const {
  if (!yieldTable) {
    throw RunTimeError(ErrorNumber::subscript, "The crop " + cropType + " has no yield table.");
  }
  const YieldTable& table = *yieldTable;
  const int top = table.maxIrrigation();
  if (Depth > top) Depth = top;

  const double whole = wholeInches(Depth);
  const int rain = rainColumn(annualRain);
  if (!(whole >= 0)) {
    throw RunTimeError(ErrorNumber::subscript, "A net irrigation of " + generalText(Depth) +
                                                   " inches is outside the yield table of " + cropType +
                                                   ". Check the irrigation amount and efficiency.");
  }
  YieldReading reading;
  reading.depth = Depth;
  reading.rain = rain;
  reading.lo = static_cast<int>(whole);
  if (!table.contains(reading.lo, rain)) {
    throw RunTimeError(ErrorNumber::subscript, "Annual rainfall " + generalText(annualRain) +
                                                   " is outside the yield table of " + cropType + " (" +
                                                   describeRange(table) + ").");
  }
  reading.hi = reading.lo + 1 > top ? top : reading.lo + 1;
  const double y0 = table.cell(reading.lo, rain);
  const double y1 = table.cell(reading.hi, rain);
  reading.atLo = y0;
  reading.atHi = y1;

  // Intended: this one cell, not the whole table, decides between absolute and relative. So a cell of 1 or
  // less in a dry corner of an absolute table counts as relative.
  reading.absolute = y1 > 1.0;
  reading.scale = reading.absolute ? normalFactor : maxYield;
  reading.between = y0;
  if (y0 != y1) {
    // Intended: just below a whole inch, lo is above Depth, so t is a small negative number.
    const double t = (Depth - reading.lo) / (reading.hi - reading.lo);
    reading.between = y0 + t * (y1 - y0);
  }
  reading.Yield = checkedYield(reading.between * reading.scale, cropType);
  return reading;
}

void Crop::setYield(double& Depth, double annualRain) {
  Yield = yieldAt(Depth, annualRain);
  if (cropKind(cropType) != CropKind::fallow) Depth = std::min(Depth, getMaxIrrigation());
}

void Crop::setNormal(double expectedYield, double annualRain) {
  if (!yieldTable) return;
  const int rain = rainColumn(annualRain);
  if (!yieldTable->contains(yieldTable->maxIrrigation(), rain)) return;
  const double factor = expectedYield / yieldTable->cell(yieldTable->maxIrrigation(), rain);
  if (std::isfinite(factor)) normalFactor = factor;
}

double Crop::getMaxIrrigation() const {
  return yieldTable ? yieldTable->maxIrrigation() : 0;
}

Crop Crop::Copy() const {
  Crop copy = *this;
  copy.inputCosts.AlfalfaFlat = 0;
  return copy;
}

std::string Crop::writeData() const {
  return cropType + "\r\n" + savedLines(cropFields(), *this) + "\r\n" + inputCosts.writeData();
}

}  // namespace verdalis
