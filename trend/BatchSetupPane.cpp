#include "trend/BatchSetupPane.h"

#include <algorithm>
#include <utility>

#include "controls/ask.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/quote.h"
#include "trend/TrendVariables.h"

namespace verdalis {
namespace {

constexpr std::array<const char*, 3> wayCaptions{"Auto", "Import", "Manual"};
constexpr const char* unknownUnit = "(units)";

constexpr const char* fixedInfo =
    "This program uses a selected Option from the prior screen of results and executes a fixed trend of up "
    "to 2 different input variables.";
constexpr const char* fixedInstruction =
    "Choose a variable to run a fixed trend process on.  The variables on the left column are dependent on "
    "the crop type.  Variables in the right column affect all crops in the evaluations.";
constexpr const char* variableInfo =
    "This program runs the standard Verdalis evaluation over a range of values for an individual variable.  "
    "Once completed, a single trend process can be run on one of the resulting options.";
constexpr const char* variableInstruction =
    "Choose a variable to run a variable trend process on.  The variables on the left column are dependent "
    "on the crop type.  Variables in the right column affect all crops in the evaluations.";

void turnOn(OptionGroup& group, TrendValuesKind kind) {
  group.select(static_cast<int>(kind));
}

}  // namespace

BatchSetupPane::BatchSetupPane(Frame& window, Services& services, ProgramState& state, TrendState& trend,
                               TrendHost& host)
    : Frame(window, "pneBatchSetup(0)"), services_(services), state_(state), trend_(trend), host_(host) {
  makeControls();
  wire();
  wireProcesses();
}

void BatchSetupPane::makeControls() {
  for (std::size_t i = 0; i < trendVariableCount; ++i) {
    const std::string index = "(" + std::to_string(i) + ")";
    optBatchVariable.push_back(std::make_unique<OptionButton>(
        *this, "optBatchVariable" + index, batchVariables, trendVariables().at(i).caption));
    check.push_back(std::make_unique<Image>(*this, "check" + index));
    check.back()->setVisible(false);
  }
  for (std::size_t i = 0; i < wayCaptions.size(); ++i) {
    optBatchOption.push_back(std::make_unique<OptionButton>(
        *this, "optBatchOption(" + std::to_string(i) + ")", batchOptions, wayCaptions.at(i)));
  }
  batchVariables.select(0);
  turnOn(batchOptions, TrendValuesKind::automatic);
  frmBatches.setVisible(false);
}

void BatchSetupPane::wire() {
  for (std::size_t i = 0; i < optBatchVariable.size(); ++i) {
    optBatchVariable[i]->onClick.connect([this, i] {
      SetVariableLabels(static_cast<double>(i));
      showCropHint();
      showPreview();
    });
  }
  for (const auto& way : optBatchOption)
    way->onClick.connect([this] { showPreview(); });
  const auto takeAutomatic = [this] {
    turnOn(batchOptions, TrendValuesKind::automatic);
    showPreview();
  };
  for (TextBox& box : txtBatchMinimum)
    box.onChange.connect(takeAutomatic);
  cboBatchSteps.onChange.connect(takeAutomatic);
  cboBatchSteps.onClick.connect([this] { showPreview(); });
  txtBatchList.onChange.connect([this] {
    turnOn(batchOptions, TrendValuesKind::manual);
    showPreview();
  });
  cboCrops.onClick.connect([this] { showCropUnits(); });
  cboCrops.onChange.connect([this] { showCropHint(); });
  cmdOpenBatch.onClick.connect([this] { chooseFile(); });
  Command10.onClick.connect([this] { goBack(); });
  cmdBatchIt.onClick.connect([this] { onRun(); });
  cmdHelp.onHelp.connect([this](int index) { onHelp(index); });
}

void BatchSetupPane::tell(const Message& message) {
  ask(desk(), services_.messageBox, message);
}

void BatchSetupPane::ShowBatchScreen() {
  if (trend_.SelectedOption->Count() > 0) {
    openFixed();
  } else if (!openVariable()) {
    return;
  }
  state_.TrendMode = true;
  RefreshBatchButtons();
  showCropHint();
  showPreview();
  host_.showPane(*this);
}

void BatchSetupPane::openFixed() {
  cmdDeleteBatch.setEnabled(false);
  trend_.ProcessCollection.clear();
  trend_.CurrentProcess = 0;
  cboBatches.clear();
  cboCrops.clear();
  for (const std::string& crop : trend_.SelectedOption->getCrops())
    cboCrops.addItem(crop);
  cboCrops.setIndex(0);
  frmBatches.setVisible(true);
  if (AddBatchProcess()) LoadBatchProcess(0);
  host_.SetMainInfo(fixedInfo);
  lblgeneric16.setCaption(fixedInstruction);
}

bool BatchSetupPane::openVariable() {
  if (!host_.ready()) {
    tell({"Error", "Please enter all of the necessary information before continuing!", MessageKind::refusal,
          MessageIcon::exclamation, MessageButtons::ok});
    return false;
  }
  cboCrops.clear();
  for (std::size_t row = 0; row < host_.rowCount(); ++row) {
    const std::shared_ptr<Crop> crop = host_.rowCrop(row);
    if (crop && host_.isActive(row)) cboCrops.addItem(crop->cropType);
  }
  host_.saveInputs();
  cboCrops.setIndex(0);
  // Shows the unit of the price, even if another variable is still selected. This is intended.
  SetVariableLabels(0);
  frmBatches.setVisible(false);
  cmdDeleteBatch.setEnabled(false);
  trend_.ProcessCollection.clear();
  trend_.CurrentProcess = 0;
  for (const auto& tick : check)
    tick->setVisible(false);
  host_.SetMainInfo(variableInfo);
  lblgeneric16.setCaption(variableInstruction);
  return true;
}

TrendReading BatchSetupPane::readValues(bool validate) const {
  if (optBatchOption[0]->checked()) {
    return readRange({txtBatchMinimum[0].text(), txtBatchMinimum[1].text(), cboBatchSteps.text()}, validate);
  }
  if (optBatchOption[1]->checked()) return readValuesFile(pathOf(lblBatchFile.caption()), validate);
  if (optBatchOption[2]->checked()) return readValuesList(txtBatchList.text(), validate);
  return {{},
          Message{defaultTitle, "Please select an option for trend processing", MessageKind::notice,
                  MessageIcon::none, MessageButtons::ok}};
}

std::optional<Message> BatchSetupPane::refuseCrop(const std::string& cropName) const {
  const bool ofCrop = trendVariable(getSelectedIndex(batchVariables)).ofCrop;
  if (!ofCrop || GetCropIndex(host_, cropName).found) return std::nullopt;
  return Message{
      "Invalid value",
      "There is no crop " + quoteForMessage(cropName) +
          " among the crops of the main screen. Select a crop of the list \"Crop:\" that is there, "
          "or a variable that applies to all crops.",
      MessageKind::refusal, MessageIcon::exclamation, MessageButtons::ok};
}

std::optional<BatchProcess> BatchSetupPane::GetBatchProcess(const std::string& cropName, bool validate) {
  const std::int16_t variable = getSelectedIndex(batchVariables);
  TrendReading reading = readValues(validate);
  if (!reading.refusal) reading.refusal = refuseCrop(cropName);
  if (!reading.refusal && variable == rainVariable) reading.refusal = refuseRain(reading.values);
  if (reading.refusal) {
    tell(*reading.refusal);
    return std::nullopt;
  }
  BatchProcess process;
  process.variables_type = getSelectedIndex(batchOptions);
  switch (static_cast<TrendValuesKind>(process.variables_type)) {
    case TrendValuesKind::automatic:
      process.variables_min = generalText(Val(txtBatchMinimum[0].text()));
      process.variables_max = generalText(Val(txtBatchMinimum[1].text()));
      process.variables_steps = generalText(Val(cboBatchSteps.text()));
      break;
    case TrendValuesKind::import:
      process.inputfilename = lblBatchFile.caption();
      break;
    case TrendValuesKind::manual:
      process.variables_manual = txtBatchList.text();
      break;
  }
  process.SetValueArray(std::move(reading.values));
  process.cropIndex = static_cast<double>(GetCropIndex(host_, cropName).row);
  process.VariableIndex = variable;
  return process;
}

std::string BatchSetupPane::SetVariableLabels(double variableIndex) {
  const TrendVariable& variable = trendVariable(variableIndex);
  const std::shared_ptr<Crop> crop = host_.findCropByName(cboCrops.text());
  const bool known = crop || variable.cropUnit < 0;
  std::string caption = known ? variable.unitCaption(crop.get()) : unknownUnit;
  lblgeneric24.setCaption(caption);
  lblgeneric25.setCaption(caption);
  return caption;
}

void BatchSetupPane::showCropUnits() {
  // The crop of an entry may no longer exist, for example after deleting a custom crop.
  const std::shared_ptr<Crop> crop = host_.findCropByName(cboCrops.text());
  lblgeneric20.setCaption(crop ? trendVariables()[0].unitCaption(crop.get()) : unknownUnit);
  lblgeneric22.setCaption(crop ? trendVariables()[2].unitCaption(crop.get()) : unknownUnit);
  SetVariableLabels(getSelectedIndex(batchVariables));
  showCropHint();
}

void BatchSetupPane::showCropHint() {
  std::string hint;
  const std::string& name = cboCrops.text();
  if (refuseCrop(name)) {
    hint = "There is no crop of this name on the main screen.";
  } else if (trend_.SelectedOption->Count() > 0 && trendVariable(getSelectedIndex(batchVariables)).ofCrop) {
    const std::vector<std::string> crops = trend_.SelectedOption->getCrops();
    if (std::find(crops.begin(), crops.end(), name) == crops.end()) {
      hint = "The chosen option has no field with this crop, so its values would change nothing.";
    }
  }
  lblCropHint.setCaption(hint);
}

void BatchSetupPane::showPreview() {
  try {
    TrendReading reading = readValues(true);
    if (!reading.refusal && getSelectedIndex(batchVariables) == rainVariable)
      reading.refusal = refuseRain(reading.values);
    lblBatchPreview.setCaption(reading.refusal ? reading.refusal->text : describeValues(reading.values));
  } catch (const RunTimeError& error) {
    lblBatchPreview.setCaption(error.what());
  }
}

std::int16_t BatchSetupPane::getSelectedIndex(const OptionGroup& buttons) {
  return static_cast<std::int16_t>(std::max(buttons.selected(), 0));
}

void BatchSetupPane::chooseFile() {
  turnOn(batchOptions, TrendValuesKind::import);
  const auto path =
      askToOpen(desk(), services_.fileChooser, {"Select a file with trend values", host_.home(), "", ""});
  if (path) lblBatchFile.setCaption(path->string());
  showPreview();
}

void BatchSetupPane::endTrend() {
  if (const std::shared_ptr<Crop> crop = host_.rowCount() > 0 ? host_.rowCrop(0) : nullptr) {
    // Only the crop of the first row; other crops keep the production costs of the trend. This is intended.
    crop->inputCosts.UseBatch = false;
    crop->inputCosts.BatchGeneralCosts = 0;
  }
  IrrigationCosts& plant = host_.tempIrrigationCosts();
  plant.UseBatch = false;
  plant.BatchIrrigationCosts = 0;
  state_.TrendMode = false;
  host_.loadInputs();
}

void BatchSetupPane::goBack() {
  endTrend();
  if (trend_.SelectedOption->Count() < 1) {
    host_.backToMain();
  } else {
    host_.backToResults();
  }
}

}  // namespace verdalis
