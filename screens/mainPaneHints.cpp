#include <algorithm>
#include <utility>

#include "model/LandDivision.h"
#include "screens/MainPane.h"
#include "screens/typicalRanges.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

std::string counted(std::size_t count, const std::string& one, const std::string& several) {
  return formatNumber(static_cast<double>(count), "#,##0") + " " + (count == 1 ? one : several);
}

/// The first hint; the others are told in the tool tips of their fields.
std::string captionOf(const std::vector<FieldHint>& hints) {
  return hints.empty() ? std::string() : hints.front().text;
}

void add(std::vector<FieldHint>& hints, const Control& field, std::optional<std::string> text) {
  if (text) hints.push_back({&field, *std::move(text)});
}

}  // namespace

void MainPane::showHints(std::int16_t factor) {
  showStatus(factor);
  std::vector<FieldHint> farm = farmHints();
  const std::vector<FieldHint> crops = cropHints();
  lblFarmHint.setCaption(captionOf(farm));
  lblCropsHint.setCaption(captionOf(crops));
  farm.insert(farm.end(), crops.begin(), crops.end());
  add(farm, txtArraySize, readingHint(keepCaption, txtArraySize.text()));
  const bool same = farm == hints_;
  hints_ = std::move(farm);
  if (!same) onHints();
}

void MainPane::showStatus(std::int16_t factor) {
  ScenarioInputs inputs;
  inputs.txtArea = txtArea.text();
  inputs.txtMax = txtMax.text();
  inputs.lblVolume = lblVolume.caption();
  inputs.txtAnnRain = txtAnnRain.text();
  inputs.Option1 = landSplitButtons();
  const auto crops = static_cast<std::size_t>(
      std::count_if(cr.begin(), cr.end(), [](const auto& row) { return row->isActive(); }));
  if (crops > 0) inputs.cr.push_back({true, {}, {}});
  missing_ = missingInput(inputs);
  cmdStatus.setEnabled(missing_.has_value());
  if (missing_) {
    cmdStatus.setCaption(missing_->text);
    return;
  }
  const auto fields = static_cast<std::int16_t>(
      landDivisions()[static_cast<std::size_t>(landSplits.selected())].percentages.size());
  if (counted_.fields != fields || counted_.factor != factor)
    counted_ = {fields, factor, waterSplits(fields, factor)};
  const std::string splits =
      counted_.count ? ", " + counted(*counted_.count, "water split", "water splits") : "";
  cmdStatus.setCaption(counted(crops, "crop", "crops") + splits + ": ready");
}

std::vector<FieldHint> MainPane::farmHints() const {
  std::vector<FieldHint> hints;
  add(hints, txtArea, readingHint("Total acres", txtArea.text(), true));
  add(hints, txtMax, readingHint("Gross irrigation", txtMax.text()));
  add(hints, txtMax, capacityHint(*tempIrrigationCosts_, txtArea.text(), txtMax.text()));
  const std::optional<std::string> rain = readingHint("Annual rainfall", txtAnnRain.text(), true);
  add(hints, txtAnnRain, rain);
  for (const auto& row : cr) {
    if (rain || !row->isActive() || !row->Crop) continue;
    const std::optional<std::string> outside = rainHint(*row->Crop, txtAnnRain.text());
    if (!outside) continue;
    add(hints, txtAnnRain, outside);
    break;
  }
  add(hints, txtEff, readingHint("Irrigation efficiency", txtEff.text()));
  return hints;
}

std::vector<FieldHint> MainPane::cropHints() const {
  std::vector<FieldHint> hints;
  for (const auto& row : cr) {
    if (!row->isActive()) continue;
    const std::string crop = shownCaption(row->GetCrop());
    for (const auto& [what, box] :
         {std::pair("Price", &row->txtPrice), std::pair("Maximum yield", &row->txtMaxYield)}) {
      if (!box->visible()) continue;
      const std::string name = std::string(what) + " of " + crop;
      add(hints, *box,
          box->text().empty() ? name + ": empty, so it counts as 0." : readingHint(name, box->text()));
    }
  }
  return hints;
}

std::string MainPane::rangeOf(const Control& field) const {
  std::vector<const Crop*> chosen;
  std::vector<const Crop*> all;
  for (const auto& row : cr) {
    if (!row->Crop || !row->Crop->yieldTable) continue;
    all.push_back(row->Crop.get());
    if (row->isActive()) chosen.push_back(row->Crop.get());
    if (&field == &row->txtPrice) return priceRange(*row->Crop);
    if (&field == &row->txtMaxYield)
      return maxYieldRange(*row->Crop, row->txtMaxYield.text(), txtAnnRain.text());
  }
  const std::vector<const Crop*>& crops = chosen.empty() ? all : chosen;
  if (&field == &txtArea) return acresRange(*tempIrrigationCosts_, txtMax.text());
  if (&field == &txtMax) return waterRange(crops, txtEff.text());
  if (&field == &txtAnnRain) return rainRange(crops);
  if (&field == &txtEff) return efficiencyRange();
  return {};
}

void MainPane::goToMissing() {
  if (!missing_) return;
  using Field = MissingInput::Field;
  switch (missing_->field) {
    case Field::acres:
      desk().moveFocus(txtArea);
      break;
    case Field::irrigation:
      desk().moveFocus(txtMax);
      break;
    case Field::rain:
      desk().moveFocus(txtAnnRain);
      break;
    case Field::landSplit:
      desk().moveFocus(*Option1.front());
      break;
    case Field::crops:
      desk().moveFocus(cr.front()->chkCrop);
      break;
  }
}

}  // namespace verdalis
