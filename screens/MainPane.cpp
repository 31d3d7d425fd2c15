#include "screens/MainPane.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "controls/ask.h"
#include "model/LandDivision.h"
#include "screens/modInputTest.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::array<FieldRow, 7> farmFields{{
    {.control = "txtArea", .label = "Total Acres:", .helpIndex = 0},
    {.control = "txtMax", .label = "Annual Gross Irrigation Amount (inches):", .helpIndex = 4},
    {.control = "lblVolume", .label = "Calculated Gross Water Volume: (ac-in)", .helpIndex = 5},
    {.control = "txtAnnRain", .label = "Annual Rainfall (inches):", .helpIndex = 3},
    {.control = "txtEff",
     .label = "Irrigation Efficiency %",
     .testLabel = "Irrigation Efficiency %",
     .limit = Limit(100),
     .helpIndex = 2,
     .startText = "85"},
    {.control = "txtSoil", .label = "Soil:", .helpIndex = 29, .startText = "Silt Loam"},
    {.control = "Option1", .label = "Land Split:", .helpIndex = 6},
}};

const FieldRow& farmField(std::string_view control) {
  return *std::find_if(farmFields.begin(), farmFields.end(),
                       [&](const FieldRow& row) { return row.control == control; });
}

}  // namespace

std::span<const FieldRow> MainPane::fields() {
  return farmFields;
}

std::optional<std::string> efficiencyFault(const std::string& text) {
  return fieldFault(farmField("txtEff"), {}, text);
}

std::optional<Message> capacityWarning(const IrrigationCosts& plant, const std::string& txtArea,
                                       const std::string& txtMax) {
  if (plant.GPM <= 0 || plant.dblEstHours <= 0) return std::nullopt;
  const double inches = plant.getMaxInches(Val(txtArea));
  if (Val(txtMax) <= inches) return std::nullopt;
  return Message{"Capacity Exceeded",
                 "According to the seasonal pumping hours entered on the Irrigation Cost screen of " +
                     formatNumber(plant.dblEstHours, "###,###") +
                     " hours, \nyour system cannot pump more than " + formatNumber(inches, "###,###.0") +
                     " inches."};
}

MainPane::MainPane(Frame& window, Services& services, std::shared_ptr<IrrigationCosts> tempIrrigationCosts)
    : Frame(window, "pneMain"), services_(services), tempIrrigationCosts_(std::move(tempIrrigationCosts)) {
  for (std::size_t i = 0; i < landDivisions().size(); ++i) {
    Option1.push_back(std::make_unique<OptionButton>(*this, "Option1(" + std::to_string(i) + ")", landSplits,
                                                     std::string(landDivisions().at(i).caption)));
  }
  cropBox.setCaption("Select the Crops to Evaluate:");
  cropScroll.smallStep = 100;
  cropScroll.largeStep = 300;
  row(0);

  txtArea.onChange.connect([this] { getVolume(); });
  txtMax.onChange.connect([this] {
    getVolume();
    warnOfCapacity();
  });
  wireField(txtEff, farmField("txtEff"), services_.messageBox, [] { return std::string(); });
  const auto takeSoil = [this] { currentSoil = txtSoil.text(); };
  txtSoil.onChange.connect(takeSoil);
  txtSoil.onClick.connect(takeSoil);
  txtSoil.onLeave.connect(takeSoil);
  Check1.onClick.connect([this] { FallowNegatives = !FallowNegatives; });
  cropScroll.onChange.connect([this] {
    cropFrameTop = -cropScroll.value();
    desk().moveFocus(Command7);  // so that no row keeps the focus while the list moves
  });
  Command1.onClick.connect([this] { onRun(); });
  Command7.onClick.connect([this] { onDefaults(); });
  Command8.onClick.connect([this] { onIrrigation(); });
  cmdStatus.onClick.connect([this] { goToMissing(); });
  cmdHelp.onHelp.connect([this](int index) { onHelp(index); });
}

LandSplitButtons MainPane::landSplitButtons() const {
  LandSplitButtons buttons{};
  for (std::size_t i = 0; i < buttons.size(); ++i)
    buttons.at(i) = Option1[i]->checked();
  return buttons;
}

ScenarioInputs MainPane::scenarioInputs() const {
  ScenarioInputs inputs;
  inputs.txtArea = txtArea.text();
  inputs.txtMax = txtMax.text();
  inputs.lblVolume = lblVolume.caption();
  inputs.txtAnnRain = txtAnnRain.text();
  inputs.txtEff = txtEff.text();
  inputs.currentSoil = currentSoil;
  inputs.Option1 = landSplitButtons();
  for (const auto& record : cr)
    inputs.cr.push_back(record->input());
  inputs.chkNoSplit = chkNoSplit.checked();
  inputs.txtArraySize = txtArraySize.text();
  inputs.wishes = wishes;
  inputs.mixes = mixes;
  return inputs;
}

bool MainPane::ready() const {
  return verdalis::ready(scenarioInputs());
}

double MainPane::getVolume() {
  lblVolume.setCaption(volumeText(txtArea.text(), txtMax.text()));
  return 0;
}

void MainPane::warnOfCapacity() {
  const auto warning = capacityWarning(*tempIrrigationCosts_, txtArea.text(), txtMax.text());
  if (!warning) return;
  if (tellCapacity) {
    tellCapacity(*warning);
  } else {
    ask(desk(), services_.messageBox, *warning);
  }
}

void MainPane::setChanges(std::vector<FieldHint> changes) {
  if (changes == changes_) return;
  changes_ = std::move(changes);
  onHints();
}

void MainPane::unloadRows() {
  // These name fields that go now.
  hints_.clear();
  changes_.clear();
  cr.resize(1);
}

CropRecord& MainPane::row(std::size_t index) {
  if (index >= cr.size()) {
    cr.push_back(std::make_unique<CropRecord>(cropFrame, static_cast<int>(cr.size()), services_.messageBox));
    CropRecord& record = *cr.back();
    record.onInputCosts.connect([this, &record] { onInputCosts(record); });
  }
  return *cr[index];
}

void MainPane::InitializeCropFrame() {
  onRowsChanged();
  const int height = static_cast<int>(cr.size()) * cropRowHeight;
  if (height > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(
        ErrorNumber::overflow,
        "There are " + std::to_string(cr.size()) +
            " crops, and the list of crops has room for 59. Delete custom crops, or take files out "
            "of the folder of crops.");
  }
  cropScroll.setValue(0);
  const int overhang = height - cropFrameHolderHeight;
  cropScroll.setMaximum(overhang);
  cropScroll.setEnabled(overhang >= 0);
}

std::shared_ptr<Crop> MainPane::findCropByName(const std::string& name) const {
  std::shared_ptr<Crop> found;
  for (const auto& record : cr) {
    if (record->Crop && lowerCase(record->Crop->cropType) == lowerCase(name)) found = record->Crop;
  }
  return found;
}

}  // namespace verdalis
