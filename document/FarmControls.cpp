#include "document/FarmControls.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "document/copyFields.h"
#include "document/savedOption.h"
#include "model/savedFields.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Runs a step whose event may fail, as it may where the text was typed: the text stands then nevertheless.
template <class Step>
void pass(Step step) {
  try {
    step();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): told where the text was typed
  }
}

/// The price that typing a text gives a crop without a price.
double typedPrice(const std::string& text) {
  try {
    return isNumeric(text) ? toDouble(text) : 0;
  } catch (const RunTimeError&) {
    return 0;
  }
}

double typedYield(const std::string& text) {
  try {
    return Val(text);
  } catch (const RunTimeError&) {
    return 0;
  }
}

std::optional<double> unlessTyped(double inForce, double typed) {
  return inForce == typed ? std::nullopt : std::optional(inForce);
}

/// The number in a text. Nearly all texts stand as they did when they were read last.
template <class Read>
double remembered(ReadText& last, const std::string& text, Read read) {
  if (!last.text || *last.text != text) {
    last.value = read(text);
    last.text = text;
  }
  return last.value;
}

bool isAs(const DocumentCrop& entry, const CropRecord& row, std::optional<double> priceInForce,
          std::optional<double> maxYieldInForce) {
  return entry.chosen == row.isActive() && entry.price == row.txtPrice.text() &&
         entry.maxYield == row.txtMaxYield.text() && entry.priceInForce == priceInForce &&
         entry.maxYieldInForce == maxYieldInForce && sameCosts(entry.costs, row.Crop->inputCosts);
}

/// Finds the entries of crop rows by name. The n-th row of a name has its n-th entry.
class EntryFinder {
 public:
  explicit EntryFinder(const SharedList<DocumentCrop>& entries)
      : entries_(entries), taken_(entries.size(), false) {}

  /// The index of the entry; nothing if there is none.
  std::optional<std::size_t> take(const std::string& name) {
    // Entries mostly stand in the order of the rows.
    if (next_ < entries_.size() && !taken_[next_] && entries_[next_].name == name) return use(next_);
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      if (!taken_[i] && entries_[i].name == name) return use(i);
    }
    return std::nullopt;
  }

 private:
  std::size_t use(std::size_t index) {
    taken_[index] = true;
    next_ = index + 1;
    return index;
  }

  const SharedList<DocumentCrop>& entries_;
  std::vector<bool> taken_;
  std::size_t next_ = 0;
};

/// The setup of a trend as it stands at the start.
DocumentProcess untouchedProcess() {
  DocumentProcess process;
  process.minimum = "5";
  process.maximum = "13";
  process.steps = "2";
  process.file = "-";
  process.shown = true;
  return process;
}

/// The index of the process that the pane shows; the first if none is marked.
std::size_t shownProcess(const std::vector<DocumentProcess>& trend) {
  const auto shown = std::find_if(trend.begin(), trend.end(), [](const auto& each) { return each.shown; });
  return shown == trend.end() ? 0 : static_cast<std::size_t>(shown - trend.begin());
}

}  // namespace

bool FarmControls::isTrying() const {
  return parts_.state.TrendMode && !(parts_.main.visible() && !parts_.main.covered());
}

FarmDocument FarmControls::read(const FarmDocument& before) const {
  FarmDocument document = before;
  FarmInputs& inputs = document.inputs;
  if (!isTrying()) {
    inputs.farm = readFarm(before.inputs.farm);
    for (const SavedField<IrrigationCosts>& field : plantFields())
      field.copy(parts_.plant, inputs.plant.plant);
    inputs.crops = readCrops(before.inputs.crops);
  }
  inputs.options.keep = parts_.main.txtArraySize.text();
  inputs.options.factor = parts_.state.FineFactor;
  inputs.options.mixes = parts_.main.mixes;
  inputs.wishes = readWishes(before.inputs.wishes);
  document.trend = readTrend(before.trend);
  document.saved = readSaved(before.saved);
  document.customCrops = readCustomCrops(document, before.customCrops);
  return document;
}

DocumentFarm FarmControls::readFarm(const DocumentFarm& before) const {
  const MainPane& pane = parts_.main;
  DocumentFarm farm = before;
  farm.txtArea = pane.txtArea.text();
  farm.txtMax = pane.txtMax.text();
  farm.txtAnnRain = pane.txtAnnRain.text();
  farm.txtEff = pane.txtEff.text();
  farm.txtSoil = pane.txtSoil.text();
  farm.txtSize = pane.txtSize.text();
  const int split = pane.landSplits.selected();
  farm.split = split < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(split));
  farm.noSplit = pane.chkNoSplit.checked();
  farm.fallowNegatives = pane.Check1.checked();
  return farm;
}

/// The entries keep their order. A row in the state of the first start has no entry unless there was one.
SharedList<DocumentCrop> FarmControls::readCrops(const SharedList<DocumentCrop>& before) const {
  std::vector<SharedList<DocumentCrop>::Item> entries(before.begin(), before.end());
  std::vector<bool> hasRow(entries.size(), false);
  EntryFinder finder(before);
  static const DocumentCrop blank;
  readRows_.resize(parts_.main.cr.size());
  auto readRow = readRows_.begin();
  for (const auto& row : parts_.main.cr) {
    ReadRow& last = *readRow++;
    if (!row->Crop) continue;
    const Crop& crop = *row->Crop;
    const std::optional<std::size_t> place = finder.take(crop.cropType);
    if (place) hasRow[*place] = true;
    const DocumentCrop& old = place ? *entries[*place] : blank;
    const auto priceInForce =
        unlessTyped(crop.price, remembered(last.price, row->txtPrice.text(), typedPrice));
    const auto maxYieldInForce =
        unlessTyped(crop.maxYield, remembered(last.maxYield, row->txtMaxYield.text(), typedYield));
    if (isAs(old, *row, priceInForce, maxYieldInForce)) continue;
    DocumentCrop entry = old;
    entry.name = crop.cropType;
    entry.chosen = row->isActive();
    entry.price = row->txtPrice.text();
    entry.priceInForce = priceInForce;
    entry.maxYield = row->txtMaxYield.text();
    entry.maxYieldInForce = maxYieldInForce;
    copyFields(costFields(), crop.inputCosts, entry.costs);
    auto item = std::make_shared<const DocumentCrop>(std::move(entry));
    if (place) {
      entries[*place] = std::move(item);
    } else {
      entries.push_back(std::move(item));
    }
  }
  SharedList<DocumentCrop> crops;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (i < hasRow.size() && !hasRow[i] && deletedCrops.contains(entries[i]->name)) continue;
    crops.add(std::move(entries[i]));
  }
  return crops;
}

std::vector<DocumentWish> FarmControls::readWishes(const std::vector<DocumentWish>& before) const {
  std::vector<DocumentWish> wishes;
  for (const Wish& wish : parts_.main.wishes) {
    const auto old = std::find_if(before.begin(), before.end(),
                                  [&](const DocumentWish& each) { return each.wish == wish; });
    wishes.push_back(old == before.end() ? DocumentWish{wish, {}} : *old);
  }
  return wishes;
}

std::vector<DocumentProcess> FarmControls::readTrend(const std::vector<DocumentProcess>& before) const {
  const BatchSetupPane& pane = parts_.trends.pneBatchSetup0;
  const TrendState& trend = parts_.trends.trend;
  // The list of processes is that of the last setup; it is in force while a setup is open.
  const bool live = parts_.state.TrendMode || before.empty();
  const std::size_t count = live ? std::max<std::size_t>(trend.ProcessCollection.size(), 1) : before.size();
  const std::size_t shown =
      live ? static_cast<std::size_t>(std::max<std::int16_t>(trend.CurrentProcess, 0)) : shownProcess(before);
  std::vector<DocumentProcess> processes = before;
  processes.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    DocumentProcess& process = processes[i];
    process.shown = i == std::min(shown, count - 1);
    if (process.shown) {
      process.crop = pane.cboCrops.text();
      process.variable = static_cast<std::size_t>(BatchSetupPane::getSelectedIndex(pane.batchVariables));
      process.values = static_cast<std::size_t>(BatchSetupPane::getSelectedIndex(pane.batchOptions));
      process.minimum = pane.txtBatchMinimum[0].text();
      process.maximum = pane.txtBatchMinimum[1].text();
      process.steps = pane.cboBatchSteps.text();
      process.list = pane.txtBatchList.text();
      process.file = pane.lblBatchFile.caption();
      continue;
    }
    if (!live) continue;
    const BatchProcess& other = trend.ProcessCollection[i];
    const auto row = static_cast<std::size_t>(std::max(other.cropIndex, 0.0));
    if (row < parts_.main.cr.size() && parts_.main.cr[row]->Crop)
      process.crop = parts_.main.cr[row]->Crop->cropType;
    process.variable = static_cast<std::size_t>(other.VariableIndex);
    process.values = static_cast<std::size_t>(other.variables_type);
    process.minimum = other.variables_min;
    process.maximum = other.variables_max;
    process.steps = other.variables_steps;
    process.list = other.variables_manual;
    process.file = other.inputfilename;
  }
  return processes;
}

SharedList<SavedOption> FarmControls::readSaved(const SharedList<SavedOption>& before) const {
  SharedList<SavedOption> saved;
  std::vector<bool> taken(before.size(), false);
  std::size_t next = 0;
  const auto find = [&](const std::shared_ptr<FieldCollection>& option) {
    for (std::size_t n = 0; n < before.size(); ++n) {
      const std::size_t i = (next + n) % before.size();
      if (taken[i] || before[i].shown != option) continue;
      taken[i] = true;
      next = i + 1;
      return before.item(i);
    }
    return std::make_shared<const SavedOption>(saveOption(option, foundWith));
  };
  for (const auto& option : parts_.saved)
    saved.add(find(option));
  return saved;
}

/// The custom crops that are chosen, with those that came with the farm.
SharedList<EmbeddedCrop> FarmControls::readCustomCrops(const FarmDocument& document,
                                                       const SharedList<EmbeddedCrop>& before) const {
  const FileReader& library = parts_.library;
  const auto isWanted = [&](const std::string& name) {
    return std::any_of(document.inputs.crops.begin(), document.inputs.crops.end(),
                       [&](const auto& crop) { return crop->chosen && crop->name == name; });
  };
  const auto current = [&](const std::string& name) -> std::shared_ptr<const std::string> {
    for (const auto& crop : library.cropCollection) {
      if (crop->cropType == name) {
        if (auto text = library.textOf(*crop)) return text;
      }
    }
    return nullptr;
  };
  // Where the library lacks them, their order is that of their rows, which decides between equal plans. So a
  // new one stands as its row does here, whenever it was chosen.
  const auto rowOf = [&](const std::string& name) {
    return std::find_if(library.cropCollection.begin(), library.cropCollection.end(),
                        [&](const auto& crop) { return crop->cropType == name; }) -
           library.cropCollection.begin();
  };
  std::vector<SharedList<EmbeddedCrop>::Item> items;
  std::set<std::string> done;
  for (const auto& crop : before) {
    const bool ofFarm = library.isFarmCrop(crop->name);
    if (!ofFarm && !isWanted(crop->name) && current(crop->name)) continue;
    done.insert(crop->name);
    const auto text = current(crop->name);
    if (!text || *text == crop->text) {
      items.push_back(crop);
    } else {
      items.push_back(std::make_shared<const EmbeddedCrop>(EmbeddedCrop{crop->name, *text, crop->unknown}));
    }
  }
  for (const auto& crop : document.inputs.crops) {
    if (!crop->chosen || done.contains(crop->name)) continue;
    if (const auto text = current(crop->name)) {
      const auto next = std::find_if(items.begin(), items.end(), [&](const auto& other) {
        return current(other->name) && rowOf(other->name) > rowOf(crop->name);
      });
      items.insert(next, std::make_shared<const EmbeddedCrop>(EmbeddedCrop{crop->name, *text, {}}));
      done.insert(crop->name);
    }
  }
  SharedList<EmbeddedCrop> crops;
  for (auto& item : items)
    crops.add(std::move(item));
  return crops;
}

void FarmControls::put(const FarmDocument& document) {
  // A document of before a crop was deleted keeps what was entered for it.
  for (const auto& crop : document.inputs.crops)
    deletedCrops.erase(crop->name);
  if (!isTrying()) {
    putFarm(document.inputs.farm);
    putPlant(document.inputs.plant.plant);
    putCrops(document.inputs.crops);
    parts_.main.tellCapacity = nullptr;
    cautionOfCapacity();
  }
  putOptions(document.inputs.options);
  parts_.main.wishes.clear();
  for (const DocumentWish& each : document.inputs.wishes)
    parts_.main.wishes.push_back(each.wish);
  putTrend(document.trend);
  parts_.saved.clear();
  for (const auto& saved : document.saved)
    parts_.saved.push_back(optionOf(*saved, parts_.library.cropCollection));
}

void FarmControls::putFarm(const DocumentFarm& farm) {
  MainPane& pane = parts_.main;
  // The plant is put later, and only what both come to is of interest.
  pane.tellCapacity = [](const Message&) {};
  pass([&] { pane.txtArea.setText(farm.txtArea); });
  pass([&] { pane.txtMax.setText(farm.txtMax); });
  pass([&] { pane.txtAnnRain.setText(farm.txtAnnRain); });
  pass([&] { pane.txtEff.setText(farm.txtEff); });
  pass([&] { pane.txtSoil.setText(farm.txtSoil); });
  pane.txtSize.setText(farm.txtSize);
  pane.landSplits.select(farm.split ? static_cast<int>(*farm.split) : -1);
  pane.chkNoSplit.setChecked(farm.noSplit);
  pane.Check1.setChecked(farm.fallowNegatives);
}

void FarmControls::cautionOfCapacity() const {
  pass([&] {
    const MainPane& pane = parts_.main;
    const auto caution = capacityWarning(parts_.plant, pane.txtArea.text(), pane.txtMax.text());
    if (caution && tellCaution) tellCaution(*caution);
  });
}

void FarmControls::putPlant(const IrrigationCosts& plant) {
  if (samePlant(plant, parts_.plant)) return;
  for (const SavedField<IrrigationCosts>& field : plantFields())
    field.copy(plant, parts_.plant);
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    pass([&] {
      if (field.box != nullptr) {
        (parts_.irrigation.*field.box).setText(generalText(plant.*field.value));
      } else {
        (parts_.irrigation.*field.list).setText(plant.FuelType);
      }
    });
  }
}

void FarmControls::putCrops(const SharedList<DocumentCrop>& crops) {
  EntryFinder finder(crops);
  static const DocumentCrop blank;
  for (const auto& row : parts_.main.cr) {
    if (!row->Crop) continue;
    Crop& crop = *row->Crop;
    const std::optional<std::size_t> place = finder.take(crop.cropType);
    const DocumentCrop& entry = place ? crops[*place] : blank;
    row->chkCrop.setChecked(entry.chosen);
    pass([&] { row->txtPrice.setText(entry.price); });
    pass([&] { row->txtMaxYield.setText(entry.maxYield); });
    crop.price = entry.priceInForce.value_or(typedPrice(entry.price));
    crop.maxYield = entry.maxYieldInForce.value_or(typedYield(entry.maxYield));
    copyFields(costFields(), entry.costs, crop.inputCosts);
  }
}

void FarmControls::putOptions(const DocumentOptions& options) {
  parts_.main.txtArraySize.setText(options.keep);
  parts_.state.FineFactor = options.factor;
  parts_.main.mixes = options.mixes;
}

void FarmControls::putTrend(const std::vector<DocumentProcess>& trend) {
  BatchSetupPane& pane = parts_.trends.pneBatchSetup0;
  const std::size_t shown = shownProcess(trend);
  if (parts_.state.TrendMode && parts_.trends.trend.SelectedOption->Count() > 0 && !trend.empty()) {
    std::vector<BatchProcess> processes;
    for (const DocumentProcess& process : trend)
      processes.push_back(processOf(process));
    pane.putProcesses(std::move(processes), static_cast<std::int16_t>(shown));
  }
  const DocumentProcess process = trend.empty() ? untouchedProcess() : trend[shown];
  pass([&] { pane.cboCrops.setText(process.crop); });
  pane.batchVariables.select(static_cast<int>(process.variable));
  pass([&] { pane.txtBatchMinimum[0].setText(process.minimum); });
  pass([&] { pane.txtBatchMinimum[1].setText(process.maximum); });
  pass([&] { pane.cboBatchSteps.setText(process.steps); });
  pass([&] { pane.txtBatchList.setText(process.list); });
  pane.lblBatchFile.setCaption(process.file);
  // Setting the texts has selected the ways they belong to.
  pane.batchOptions.select(static_cast<int>(process.values));
}

/// A process as the pane would read it, without refusing anything.
BatchProcess FarmControls::processOf(const DocumentProcess& process) const {
  BatchProcess made;
  made.cropIndex = static_cast<double>(GetCropIndex(parts_.trends.host(), process.crop).row);
  made.VariableIndex = static_cast<double>(process.variable);
  made.variables_type = static_cast<std::int16_t>(process.values);
  made.variables_min = process.minimum;
  made.variables_max = process.maximum;
  made.variables_steps = process.steps;
  made.variables_manual = process.list;
  made.inputfilename = process.file;
  pass([&] {
    switch (static_cast<TrendValuesKind>(process.values)) {
      case TrendValuesKind::automatic:
        made.SetValueArray(readRange({process.minimum, process.maximum, process.steps}, false).values);
        break;
      case TrendValuesKind::import:
        made.SetValueArray(readValuesFile(pathOf(process.file), false).values);
        break;
      case TrendValuesKind::manual:
        made.SetValueArray(readValuesList(process.list, false).values);
        break;
    }
  });
  return made;
}

void FarmControls::forgetRuns() {
  for (const auto& row : parts_.main.cr) {
    if (!row->Crop) continue;
    inputCosts entered;
    copyFields(costFields(), row->Crop->inputCosts, entered);
    row->Crop->inputCosts = entered;
  }
  parts_.plant.UseBatch = false;
  parts_.plant.BatchIrrigationCosts = 0;
}

}  // namespace verdalis
