#include "model/CropKind.h"
#include "model/checked.h"
#include "results/explainParts.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view depthPattern = "###,##0.0";
constexpr std::string_view yieldPattern = "###,##0.0";
constexpr std::string_view scalePattern = "0.000";

std::string depthText(double depth) {
  return inches(depth, depthPattern);
}

/// A cell of the table, or a value between two, as the details screen shows a yield; a fraction of the
/// maximum yield has more decimals.
std::string cellText(const YieldReading& reading, double cell) {
  return formatNumber(cell, reading.absolute ? yieldPattern : scalePattern);
}

void explainCells(ExplainedSteps& steps, const ExplainedField& field, const YieldReading& reading) {
  const std::string unit = reading.absolute ? yieldUnit(field.crop) : "of the maximum yield";
  const std::string soil = field.crop.soilName.empty() ? "" : " for " + field.crop.soilName;
  const auto addCell = [&](int row, double cell, const std::string& why) {
    steps.add("Yield table at " + std::to_string(row) + "'' of irrigation", "the cell" + soil + why, cell,
              cellText(reading, cell), unit);
  };
  addCell(reading.lo, reading.atLo,
          reading.lo > reading.depth ? ", read from the next inch, which is less than a tenth away" : "");
  if (reading.hi == reading.lo) {
    steps.add("Yield by the table", "the top of the table", reading.between,
              cellText(reading, reading.between), unit);
    return;
  }
  addCell(reading.hi, reading.atHi, "");
  const std::string lo = cellText(reading, reading.atLo);
  steps.add("Yield by the table",
            reading.atLo == reading.atHi
                ? "both cells are alike"
                : "on the line through both cells: " + lo + " + (" + depthText(reading.depth) + " - " +
                      std::to_string(reading.lo) + "'') x (" + cellText(reading, reading.atHi) + " - " + lo +
                      ") per inch",
            reading.between, cellText(reading, reading.between), unit);
}

void explainScale(ExplainedSteps& steps, const ExplainedField& field, const YieldReading& reading) {
  const Crop& crop = field.crop;
  const std::string most = "maximum yield " + yieldText(crop, crop.maxYield);
  if (!reading.absolute) {
    steps.add("Maximum yield", "as entered", crop.maxYield, formatNumber(crop.maxYield, yieldPattern),
              yieldUnit(crop));
    return;
  }
  const double full = crop.yieldTable->cell(crop.yieldTable->maxIrrigation(), reading.rain);
  const bool follows = crop.maxYield / full == reading.scale;
  steps.add("Share of the table's yields",
            follows ? most + " / the table's yield at full irrigation " + yieldText(crop, full)
                    : "as it stood: the table has no yield at full irrigation to measure the " + most + " by",
            reading.scale, formatNumber(reading.scale, scalePattern), "");
}

}  // namespace

std::string yieldUnit(const Crop& crop) {
  return crop.priceUnits().empty() ? std::string() : crop.priceUnits() + "/ac";
}

std::string yieldText(const Crop& crop, double yield) {
  const std::string unit = yieldUnit(crop);
  return formatNumber(yield, yieldPattern) + (unit.empty() ? "" : " " + unit);
}

void explainWater(ExplainedSteps& steps, const ExplainedField& field) {
  const double gross = grossFromNet(field.plan.Depth, field.efficiency);
  const double volume = checked(gross * field.plan.acres, "The gross water volume");
  const bool fallow = cropKind(field.crop.cropType) == CropKind::fallow;
  steps.add("Gross irrigation",
            fallow ? "Fallow gets no water"
                   : "the field's water " + formatNumber(volume, depthPattern) + " acre-inches / " +
                         steps.acresText(),
            gross, formatNumber(gross, depthPattern), "inches");
  steps.add("Net irrigation",
            "gross irrigation " + depthText(gross) + " x efficiency " +
                formatNumber(field.efficiency * 100, "##0.0") + " %",
            field.plan.Depth, formatNumber(field.plan.Depth, depthPattern), "inches");
}

void explainYield(ExplainedSteps& steps, const ExplainedField& field) {
  const Crop& crop = field.crop;
  const double yield = field.priced.Yield;
  if (cropKind(crop.cropType) == CropKind::fallow) {
    steps.add("Yield", "Fallow yields nothing", yield, formatNumber(yield, yieldPattern), yieldUnit(crop));
    return;
  }
  const YieldReading reading = crop.readYield(field.plan.Depth, field.plan.annualRain);
  steps.add(
      "Rain in the yield table",
      "effective annual rainfall " + depthText(field.plan.annualRain) + ", read from the nearest whole inch",
      reading.rain, std::to_string(reading.rain), "inches");
  if (reading.depth < field.plan.Depth) {
    steps.add("Irrigation in the yield table",
              "net irrigation " + depthText(field.plan.Depth) + " is above the table, so its top counts",
              reading.depth, formatNumber(reading.depth, depthPattern), "inches");
  }
  explainCells(steps, field, reading);
  explainScale(steps, field, reading);
  steps.add("Yield",
            "yield by the table " + cellText(reading, reading.between) + " x " +
                (reading.absolute ? "share " + formatNumber(reading.scale, scalePattern)
                                  : "maximum yield " + yieldText(crop, crop.maxYield)),
            yield, formatNumber(yield, yieldPattern), yieldUnit(crop));
}

}  // namespace verdalis
