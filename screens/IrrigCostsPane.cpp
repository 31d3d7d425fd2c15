#include "screens/IrrigCostsPane.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "model/Fuel.h"
#include "model/checked.h"
#include "model/stockPlant.h"
#include "screens/modInputTest.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Gallons in an acre-inch, as used by the hint. The plant uses a different figure. This is intended.
constexpr double hintGallonsPerAcreInch = 27154.2876;

using Pane = IrrigCostsPane;
using Plant = IrrigationCosts;

enum Group { costGroup, pumpingGroup };

constexpr std::array<FieldGroup<Pane>, 2> paneGroups{{
    {.heading = "Variable Irrigation Costs",
     .resultLabel = "Irrigation Costs Subtotal:",
     .resultControl = &Pane::lblICosts,
     .note = "*subtotal does not include labor costs"},
    {.heading = "How much are you pumping?",
     .resultControl = &Pane::lblInchHint,
     .note = "*this figure is for your information only"},
}};

constexpr std::array<IrrigCostsField, 8> paneFields{{
    {.row = {.control = "txtGPM",
             .group = costGroup,
             .label = "GPM - Discharge rate in gallons per minute",
             .unit = "GPM",
             .helpIndex = 15},
     .box = &Pane::txtGPM,
     .value = &Plant::GPM,
     .changesHint = true},
    {.row = {.control = "txtLift",
             .group = costGroup,
             .label = "Pumping Water Lift",
             .unit = "feet",
             .testLabel = "Pumping Water Lift:",
             .limit = Limit(999),
             .helpIndex = 7},
     .box = &Pane::txtLift,
     .value = &Plant::Lift},
    {.row = {.control = "txtPSI",
             .group = costGroup,
             .label = "Irrigation system operating pressure (psi)",
             .unit = "psi",
             .testLabel = "Well Head Operating Pressure",
             .limit = Limit(200),
             .helpIndex = 17},
     .box = &Pane::txtPSI,
     .value = &Plant::PSI},
    {.row = {.control = "cboFuelType", .group = costGroup, .label = "Fuel Type", .helpIndex = 18},
     .list = &Pane::cboFuelType},
    {.row = {.control = "txtCost",
             .group = costGroup,
             .label = "Fuel Cost",
             .unit = "per fuel unit",
             .testLabel = "Fuel Cost",
             .limit = Limit::byFuel(),
             .helpIndex = 19},
     .box = &Pane::txtCost,
     .value = &Plant::cost},
    {.row = {.control = "txtLaborPerHour",
             .group = costGroup,
             .label = "Labor",
             .unit = "/ hour",
             .testLabel = "Labor",
             .limit = Limit(100),
             .helpIndex = 20},
     .box = &Pane::txtLaborPerHour,
     .value = &Plant::LaborPerHour},
    {.row = {.control = "txtRepairsPerAcre",
             .group = costGroup,
             .label = "Repairs and Maintenance",
             .unitHint = "/ ac-in",
             .testLabel = "Repairs and Maintenance",
             .limit = Limit(0.99),
             .helpIndex = 8,
             .startText = stockRepairsText},
     .box = &Pane::txtRepairsPerAcre,
     .value = &Plant::RepairsPerAcreInch},
    {.row = {.control = "txtEstHours",
             .group = costGroup,
             .label = "Total Season Pumping Hours",
             .unit = "hours",
             .testLabel = "Total Season Pumping Hours",
             .limit = Limit(8000),
             .helpIndex = 16},
     .box = &Pane::txtEstHours,
     .value = &Plant::dblEstHours,
     .changesHint = true},
}};

/// The value of one term of the result; 0 if it cannot be calculated.
template <class Step>
double valueOrZero(Step step) {
  try {
    const double value = step();
    return std::isfinite(value) ? value : 0;
  } catch (const RunTimeError&) {
    return 0;
  }
}

/// Sets the caption of a label. If the caption cannot be made, the label keeps its old one.
template <class Caption>
void showWhereMade(Label& label, Caption caption) {
  try {
    label.setCaption(caption());
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): a field may contain an incomplete number
  }
}

}  // namespace

std::optional<std::string> fuelCostFault(const std::string& fuelType, const std::string& text) {
  const auto field = std::find_if(paneFields.begin(), paneFields.end(),
                                  [](const IrrigCostsField& each) { return each.value == &Plant::cost; });
  return fieldFault(field->row, fuelType, text);
}

std::span<const IrrigCostsField> IrrigCostsPane::fields() {
  return paneFields;
}

std::span<const FieldGroup<IrrigCostsPane>> IrrigCostsPane::groups() {
  return paneGroups;
}

std::vector<std::string> IrrigCostsPane::fuelNames() {
  std::vector<std::string> names;
  for (const Fuel& fuel : fuels)
    names.emplace_back(fuel.name);
  return names;
}

IrrigCostsPane::IrrigCostsPane(Frame& window, Services& services,
                               std::shared_ptr<IrrigationCosts> tempIrrigationCosts)
    : Frame(window, "pneIrrigCosts"),
      services_(services),
      tempIrrigationCosts_(std::move(tempIrrigationCosts)) {
  setCaption(std::string(title));
  wire();
}

void IrrigCostsPane::wire() {
  for (const IrrigCostsField& field : fields()) {
    if (field.box == nullptr) continue;
    TextBox& box = this->*field.box;
    wireField(box, field.row, services_.messageBox, [this] { return cboFuelType.text(); });
    hints.add(box, fieldName(field.row));
    box.onChange.connect([this, &field] {
      showCosts();
      if (field.changesHint) showInchHint();
    });
  }
  cboFuelType.onClick.connect([this] { showCosts(); });
  Command4.onClick.connect([this] { emptyTexts(*this); });
  cmdDefaultIrrigCosts.onClick.connect([this] { showDefaults(); });
  Command9.onClick.connect([this] { apply(); });
  cmdCancel.onClick.connect([this] { onBack(); });
  cmdHelp.onHelp.connect([this](int index) { onHelp(index); });
}

void IrrigCostsPane::open() {
  showInchHint();
  emptyZeroTexts(window());
  unapplied_.opened();
  hints.refresh();
}

void IrrigCostsPane::showDefaults() {
  for (const IrrigCostsField& field : fields()) {
    if (field.box != nullptr) {
      (this->*field.box).setText(std::string(defaultPlantText(field.value)));
    } else {
      const auto& offered = cboFuelType.items();
      const auto fuel = std::find(offered.begin(), offered.end(), defaultPlantText(&Plant::FuelType));
      cboFuelType.setIndex(static_cast<int>(fuel - offered.begin()));
    }
  }
}

void IrrigCostsPane::showStartTexts() {
  for (const IrrigCostsField& field : fields()) {
    if (field.box != nullptr) (this->*field.box).setText(std::string(field.row.startText));
  }
  cboFuelType.setText(fuelPrompt);
  showCosts();
  showInchHint();
}

void IrrigCostsPane::showFuelUnit() {
  const Fuel* const fuel = findFuel(cboFuelType.text());
  lblFuelUnit.setCaption(fuel == nullptr ? "per fuel unit" : "per " + std::string(fuel->unit));
}

void IrrigCostsPane::showCosts() {
  showFuelUnit();
  const double waterHorsepower = valueOrZero([this] {
    return (Val(txtPSI.text()) * feetPerPsi + Val(txtLift.text())) * Val(txtGPM.text()) /
           gallonFeetPerHorsepower;
  });
  const double hoursPerAcreInch =
      valueOrZero([this] { return 1 / (Val(txtGPM.text()) / gpmPerAcreInchHour); });
  const std::optional<double> performance = fuelPerformance(cboFuelType.text());
  if (!performance) return;
  const double fuelPerHour = valueOrZero([&] { return waterHorsepower / *performance; });
  const double fuel = valueOrZero([&] { return Val(txtCost.text()) * hoursPerAcreInch * fuelPerHour; });
  showWhereMade(lblICosts, [&] {
    return "$" + formatNumber(Val(txtRepairsPerAcre.text()) + fuel, "###,##0.00") + " / ac-in";
  });
}

void IrrigCostsPane::showInchHint() {
  const std::string area = areaText ? areaText() : std::string();
  const double inches = valueOrZero([&] {
    return (Val(txtGPM.text()) * 60 * Val(txtEstHours.text()) / hintGallonsPerAcreInch) / Val(area);
  });
  showWhereMade(lblInchHint, [&] {
    return "Based on " + formatNumber(Val(txtGPM.text()), "#0") + " gpm, " + formatNumber(Val(area), "0") +
           " acres, and " + formatNumber(Val(txtEstHours.text()), "0") +
           " hours of pumping, you would apply " + formatNumber(inches, "###,##0.0") +
           " inches of water in a season";
  });
}

void IrrigCostsPane::apply() {
  IrrigationCosts& plant = *tempIrrigationCosts_;
  for (const IrrigCostsField& field : fields()) {
    if (field.value != nullptr) plant.*field.value = Val((this->*field.box).text());
  }
  plant.FuelType = cboFuelType.text();
  // A text that is not a fuel keeps the previous performance figure of the plant.
  if (const std::optional<double> performance = fuelPerformance(plant.FuelType)) plant.NPC = *performance;
  plant.active = true;
  onApplied();
}

}  // namespace verdalis
