#include "screens/CustomCropPane.h"

#include <system_error>
#include <utility>

#include "controls/ask.h"
#include "data/StockGrids.h"
#include "data/writeFile.h"
#include "model/CropKind.h"
#include "model/YieldUnit.h"
#include "platform/errors.h"
#include "platform/fileAccess.h"
#include "screens/CustomGrid.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {
namespace {

constexpr std::array<CustomCropField, 9> paneFields{{
    {.control = "cboCustomGrid(0)", .label = "Select a custom crop:"},
    {.control = "txtCustom(0)", .label = "Name of Crop", .note = "The name of your custom crop"},
    {.control = "cboCustomGrid(4)",
     .label = "Yield Units",
     .note = "*Define the units that your custom crop will use.  'Tons' will be considered a forage crop."},
    {.control = "cboCustomGrid(1)",
     .label = "Annual Rainfall Range",
     .note = "*Set the rainfall range for the data grid below"},
    {.control = "cboCustomGrid(2)", .label = "to"},
    {.control = "cboCustomGrid(3)",
     .label = "Maximum Net Irrigation",
     .note = "*Set the maximum net irrigation for the grid below",
     .unit = "inches"},
    {.control = "cmdCustomGrid(0)",
     .label = "",
     .note = "*Size the grid below using the values defined above"},
    {.control = "cboCustomGrid(5)", .label = "Load Default Crop Values:"},
    {.control = "dgCustom", .label = "Enter crop yields manually or paste from EXCEL to grid below"},
}};

constexpr int firstRainLeast = 9;
constexpr int firstRainMost = 11;
constexpr int lastRainLeast = 12;
constexpr int lastRainMost = 32;
constexpr int irrigationMost = 32;

/// A crop with a default table, and the unit selected with it.
struct DefaultTable {
  CropKind crop;
  YieldUnit unit;
};

constexpr std::array<DefaultTable, 6> defaultTables{{
    {CropKind::corn, YieldUnit::bushels},
    {CropKind::alfalfa, YieldUnit::tons},
    {CropKind::grainSorghum, YieldUnit::bushels},
    {CropKind::soybeans, YieldUnit::bushels},
    {CropKind::sunflower, YieldUnit::pounds},
    // The table is in bushels, but the unit is tons, so a crop saved from it is a forage crop. This is
    // intended.
    {CropKind::wheat, YieldUnit::tons},
}};

constexpr const char* noCrop = "Select...";
constexpr const char* noDefault = "Select crop...";

/// Runs a step of a handler. If it fails, the handler continues with the next step.
template <class Step>
void leaveOutIfFailing(Step step) {
  try {
    step();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): continue with the next step
  }
}

void fillWithNumbers(ComboBox& list, int first, int last) {
  list.clear();
  for (int number = first; number <= last; ++number)
    list.addItem(std::to_string(number));
}

void fillWithDefaultCrops(ComboBox& list) {
  list.clear();
  for (const DefaultTable& table : defaultTables)
    list.addItem(std::string(cropName(table.crop)));
  list.setText(noDefault);
}

}  // namespace

std::span<const CustomCropField> CustomCropPane::fields() {
  return paneFields;
}

CustomCropPane::CustomCropPane(Frame& window, Services& services, std::filesystem::path folder)
    : Frame(window, "pneCustomCrop"), services_(services), folder_(std::move(folder)) {
  setCaption(std::string(title));
  cmdCustomGrid6.setVisible(false);
  dgCustom.setCurrent(1, 1);
  wire();
}

void CustomCropPane::wire() {
  cboCustomGrid[0].onClick.connect([this] {
    if (!listing_) loadCustomCrop(cboCustomGrid[0].index());
  });
  cboCustomGrid[5].onClick.connect([this] { loadDefaultTable(); });
  txtCustom.onKey.connect([this] { customAltered = true; });
  dgCustom.onCharacter.connect([this](const std::string& character) { typeIntoGrid(dgCustom, character); });
  dgCustom.onKey.connect([this](GridKey key) { pressKeyInGrid(dgCustom, key, services_.clipboard); });
  cmdCustomGrid0.onClick.connect([this] { setGridSize(); });
  cmdCustomGrid2.onClick.connect([this] { save(); });
  cmdCustomGrid3.onClick.connect([this] { copyGrid(); });
  cmdCustomGrid4.onClick.connect([this] { pasteGrid(); });
  cmdCustomGrid5.onClick.connect([this] { goHome(); });
  cmdCustomGrid6.onClick.connect([this] { deleteCrop(); });
  cmdHelp.onHelp.connect([this](int index) { onHelp(index); });
}

void CustomCropPane::fillLists() {
  fillWithNumbers(cboCustomGrid[1], firstRainLeast, firstRainMost);
  fillWithNumbers(cboCustomGrid[2], lastRainLeast, lastRainMost);
  fillWithNumbers(cboCustomGrid[3], 0, irrigationMost);
  fillWithDefaultCrops(cboCustomGrid[5]);
  for (const std::size_t list : {1U, 2U, 3U})
    cboCustomGrid.at(list).setIndex(1);
  cboCustomGrid[4].clear();
  for (const YieldUnitNames& unit : yieldUnits)
    cboCustomGrid[4].addItem(std::string(unit.choice));
  cboCustomGrid[4].setIndex(0);
}

void CustomCropPane::open() {
  scanCustomCrops();
  listCustomCrops();
  resetCustomEditor();
  onShowPane();
}

void CustomCropPane::scanCustomCrops() {
  CustomCropList = findCustomCrops(folder_);
}

void CustomCropPane::listCustomCrops() {
  ComboBox& list = cboCustomGrid[0];
  list.clear();
  list.addItem(noCrop);
  for (const CustomCropEntry& crop : CustomCropList)
    list.addItem(crop.name);
  list.setIndex(0);
}

void CustomCropPane::resetCustomEditor() {
  txtCustom.setText("");
  for (const std::size_t list : {1U, 2U, 3U})
    cboCustomGrid.at(list).setIndex(0);
  dgCustom.clear();
  cboCustomGrid[0].setIndex(0);
  fillWithDefaultCrops(cboCustomGrid[5]);
  customAltered = false;
}

void CustomCropPane::loadCustomCrop(int index) {
  cmdCustomGrid6.setVisible(index > 0);
  if (index <= 0) {
    resetCustomEditor();
    return;
  }
  const auto position = static_cast<std::size_t>(index);
  if (position > CustomCropList.size()) return;
  const CustomCropContents crop = readCustomCrop(CustomCropList[position - 1].path);
  const Grid::Batch batch(dgCustom);
  if (crop.name) txtCustom.setText(*crop.name);
  if (crop.firstRain) cboCustomGrid[1].setText(*crop.firstRain);
  if (crop.lastRain) cboCustomGrid[2].setText(*crop.lastRain);
  if (crop.maxIrrigation) cboCustomGrid[3].setText(*crop.maxIrrigation);
  setGridSize();
  fillCustomGrid(dgCustom, crop.values);
  customAltered = false;
}

void CustomCropPane::setGridSize() {
  leaveOutIfFailing([this] {
    sizeCustomGrid(dgCustom, wholeInches(cboCustomGrid[1].text()), wholeInches(cboCustomGrid[2].text()), 0,
                   wholeInches(cboCustomGrid[3].text()));
  });
}

void CustomCropPane::loadDefaultTable() {
  if (!dgCustom.cell(1, 1).empty()) {
    const MessageAnswer answer = ask(
        desk(), services_.messageBox,
        {"Load defaults?",
         "Loading default crop values will overwrite any existing data you've entered for this custom crop.  "
         "Continue to load the default crop values?",
         MessageKind::question, MessageIcon::question, MessageButtons::yesNo});
    if (answer != MessageAnswer::yes) return;
  }
  const int index = cboCustomGrid[5].index();
  if (index < 0) return;
  const DefaultTable& table = defaultTables.at(static_cast<std::size_t>(index));
  const StockGrid* const grid = stockGrid(lowerCase(cropName(table.crop)));
  if (grid == nullptr) return;
  cboCustomGrid[1].setText(std::string(grid->firstRain));
  cboCustomGrid[2].setText(std::string(grid->lastRain));
  cboCustomGrid[3].setText(std::string(grid->maxIrrigation));
  const Grid::Batch batch(dgCustom);
  setGridSize();
  cboCustomGrid[4].setIndex(static_cast<int>(table.unit));
  fillCustomGrid(dgCustom, commaSeparatedEntries(grid->values));
}

void CustomCropPane::save() {
  const std::optional<Target> target = pathToSave();
  if (!target) return;
  if (txtCustom.text().empty() || dgCustom.cell(1, 1).empty()) {
    ask(desk(), services_.messageBox,
        {"Not enough information",
         "Please enter all of the information above, including information in the data grid",
         MessageKind::refusal, MessageIcon::exclamation});
    return;
  }
  writeAndTell(*target);
  ask(desk(), services_.messageBox,
      {"Saved", "The custom crop has been saved.", MessageKind::notice, MessageIcon::information});
  reloadRows();
  customAltered = false;
}

/// \returns nothing if the user cancels.
std::optional<CustomCropPane::Target> CustomCropPane::pathToSave() {
  const CustomCropEntry* const crop = selectedCrop();
  if (crop != nullptr && crop->name == txtCustom.text()) return Target{crop->path, true};
  if (crop != nullptr) {
    const MessageAnswer answer =
        ask(desk(), services_.messageBox,
            {"Save as new?",
             "Do you want to save this as a new custom crop?  Selecting YES will "
             "create a new custom crop.",
             MessageKind::question, MessageIcon::question, MessageButtons::yesNoCancel});
    // No keeps the file name and writes the new crop name into the first line of the file.
    if (answer == MessageAnswer::no) return Target{crop->path, true};
    if (answer != MessageAnswer::yes) return std::nullopt;
  }
  return Target{customCropPath(folder_, txtCustom.text())};
}

void CustomCropPane::write(const std::filesystem::path& path) {
  // The folder may have been deleted since the library was read.
  static_cast<void>(makeFolder(folder_));
  writeFile(path,
            customCropText({txtCustom.text(), cboCustomGrid[4].text(), cboCustomGrid[1].text(),
                            cboCustomGrid[2].text(), cboCustomGrid[3].text(), customGridValues(dgCustom)}));
}

void CustomCropPane::writeAndTell(const Target& target) {
  const CustomCropEntry saved{target.path, txtCustom.text()};
  const std::optional<FormerCustomCrop> former = formerCustomCrop(saved.path);
  try {
    write(saved.path);
  } catch (const RunTimeError& error) {
    onSaveFailed(saved, error.what());
    return;
  }
  onSaved(saved);
  const std::optional<FormerCustomCrop> now = formerCustomCrop(saved.path);
  if (!former || !now || former->bytes == now->bytes) return;
  if (!target.selectedFile) {
    onReplaced(*former, *now);
  } else if (former->name != now->name) {
    onRenamed(former->name);
  }
}

void CustomCropPane::restore(const FormerCustomCrop& crop,
                             const std::optional<FormerCustomCrop>& replacedBy) {
  const std::optional<FormerCustomCrop> now = formerCustomCrop(crop.path);
  static_cast<void>(makeFolder(folder_));
  writeFile(crop.path, crop.bytes);
  if (now && now->bytes != crop.bytes && !(replacedBy && now->bytes == replacedBy->bytes))
    onReplaced(*now, crop);
  listAgain();
  reloadRows();
}

/// Fills the list of saved crops, with the same one selected, and leaves the editor as it is.
void CustomCropPane::listAgain() {
  const CustomCropEntry* const crop = selectedCrop();
  const std::filesystem::path selected = crop == nullptr ? std::filesystem::path() : crop->path;
  scanCustomCrops();
  listing_ = true;
  listCustomCrops();
  for (std::size_t i = 0; i < CustomCropList.size(); ++i) {
    if (CustomCropList[i].path == selected) cboCustomGrid[0].setIndex(static_cast<int>(i) + 1);
  }
  listing_ = false;
  cmdCustomGrid6.setVisible(cboCustomGrid[0].index() > 0);
}

void CustomCropPane::copyGrid() {
  services_.clipboard.clear();
  services_.clipboard.setText(spreadsheetText(dgCustom));
  ask(desk(), services_.messageBox,
      {"Ready to Paste", "Your grid has been copied to your clipboard and can now be pasted into Excel",
       MessageKind::notice, MessageIcon::exclamation});
}

void CustomCropPane::pasteGrid() {
  const std::string text = services_.clipboard.text();
  if (!isSpreadsheetNumbers(text)) {
    ask(desk(), services_.messageBox,
        {"Try again",
         "Non-numeric characters were detected in the data being pasted into the grid.  Please only copy "
         "numeric values from Excel, do not include header rows or any cells with non-numeric characters. "
         "Please try again.",
         MessageKind::refusal, MessageIcon::exclamation});
    return;
  }
  if (text.empty()) {
    ask(desk(), services_.messageBox,
        {"Copy from Excel", "Copy your selection from a Microsoft Excel worksheet first!",
         MessageKind::refusal, MessageIcon::exclamation});
    return;
  }
  pasteSpreadsheet(dgCustom, text);
}

void CustomCropPane::goHome() {
  if (customAltered) {
    const MessageAnswer answer =
        ask(desk(), services_.messageBox,
            {"Are you sure?", "Are you sure?  Any unsaved changes to this custom crop will be lost.",
             MessageKind::question, MessageIcon::information, MessageButtons::yesNoCancel});
    if (answer != MessageAnswer::yes) return;
  }
  reloadRows();
  onBackHome();
}

void CustomCropPane::deleteCrop() {
  const CustomCropEntry* const crop = selectedCrop();
  if (crop == nullptr) return;
  const MessageAnswer answer = ask(desk(), services_.messageBox,
                                   {"Delete crop?", "Delete " + crop->name, MessageKind::question,
                                    MessageIcon::question, MessageButtons::yesNoCancel});
  if (answer != MessageAnswer::yes) return;
  // Write protection of the file does not prevent this; only the permissions of its folder matter.
  const CustomCropEntry deleted = *crop;
  const std::optional<FormerCustomCrop> former = formerCustomCrop(deleted.path);
  std::error_code error;
  std::filesystem::remove(deleted.path, error);
  open();
  if (error) {
    onDeleteFailed(deleted, reasonText(error));
  } else if (former) {
    onDeleted(*former);
  }
  ask(desk(), services_.messageBox,
      {"Crop deleted", "Custom crop deleted", MessageKind::notice, MessageIcon::exclamation});
}

void CustomCropPane::reloadRows() {
  leaveOutIfFailing([this] {
    if (loadCropRows) loadCropRows();
  });
}

/// The selected saved crop; nullptr if none is selected.
const CustomCropEntry* CustomCropPane::selectedCrop() const {
  const int index = cboCustomGrid[0].index();
  const auto position = static_cast<std::size_t>(index);
  if (index < 1 || position > CustomCropList.size()) return nullptr;
  return &CustomCropList[position - 1];
}

}  // namespace verdalis
