#include "data/SavedInputs.h"

#include <span>
#include <string_view>
#include <vector>

#include "data/SavedCropBlocks.h"
#include "data/readFile.h"
#include "data/writeFile.h"
#include "model/CropKind.h"
#include "model/savedFields.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view trendToken = "batch_enabled";

template <class Owner>
void read(SavedValueReader& values, Owner& owner, std::span<const SavedField<Owner>> fields) {
  for (const SavedField<Owner>& field : fields)
    field.read(owner, values.next());
}

/// The row for a crop block: the first row of that crop name not filled yet, so that two crops of the same
/// name get one block each. If all are filled, the first.
Crop* rowFor(std::string_view name, const std::vector<std::shared_ptr<Crop>>& rows,
             std::vector<bool>& filled) {
  Crop* first = nullptr;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!rows[i] || rows[i]->cropType != name) continue;
    if (!filled[i]) {
      filled[i] = true;
      return rows[i].get();
    }
    if (first == nullptr) first = rows[i].get();
  }
  return first;
}

void putPlantIntoControls(const IrrigationCosts& plant, InputControls& controls) {
  controls.setText("txtGPM", generalText(plant.GPM));
  controls.setText("txtEstHours", generalText(plant.dblEstHours));
  controls.setText("txtLift", generalText(plant.Lift));
  controls.setText("txtPSI", generalText(plant.PSI));
  controls.setText("cboFuelType", plant.FuelType);
  controls.setText("txtCost", generalText(plant.cost));
  controls.setText("txtLaborPerHour", generalText(plant.LaborPerHour));
  controls.setText("txtRepairsPerAcre", generalText(plant.RepairsPerAcreInch));
}

void readInto(std::string_view text, SavedInputsTarget& target) {
  SavedValueReader values(text);
  GeneralInputs& general = target.generalInputs();
  for (std::string* field : {&general.splitIndex, &general.totalAcres, &general.waterAllocation,
                             &general.irrigEff, &general.annualRain}) {
    *field = values.next();
  }
  IrrigationCosts& plant = target.tempIrrigationCosts();
  read(values, plant, plantFields());
  general.setData(target);
  putPlantIntoControls(plant, target);

  std::vector<bool> filled(target.rowCrops().size());
  while (!values.atEnd()) {
    const std::string_view token = values.next();
    if (token == trendToken) {
      target.setTrendEnabled();
    } else if (Crop* crop = rowFor(token, target.rowCrops(), filled)) {
      readSavedCrop(values, *crop);
    }
  }
  target.refreshRows();
}

}  // namespace

void readSavedCrop(SavedValueReader& values, Crop& crop) {
  read(values, crop, cropFields());
  read(values, crop.inputCosts, costFields());
}

std::optional<std::string> savedNameCaution(const std::string& name) {
  constexpr const char* lost = " so its price, yield and costs will not be there at the next start. ";
  if (name.find_first_of(" \t\r\n") == 0) {
    return "The name begins with a blank. The saved inputs leave out blanks at the beginning of a name," +
           std::string(lost) + "Begin the name with a letter.";
  }
  if (name == cropName(CropKind::fallow)) {
    return "Fallow is the name of land without a crop: a crop of this name yields nothing, and the saved "
           "inputs mix it up with that land. Choose another name.";
  }
  if (name == trendToken) {
    return "In the saved inputs, batch_enabled does not begin a crop but turns on trend processing," +
           std::string(lost) + "Choose another name.";
  }
  if (name.find(',') != std::string::npos) {
    return "The name contains a comma. In the saved inputs a comma ends a name," + std::string(lost) +
           "Choose a name without one.";
  }
  return std::nullopt;
}

std::string savedInputsText(const GeneralInputs& general, const IrrigationCosts& plant,
                            const CropScenario& cropCollection, bool trendEnabled) {
  std::string text = general.writeData() + "\r\n" + plant.writeData() + "\r\n";
  for (const auto& crop : cropCollection)
    text += crop->writeData() + "\r\n";
  if (trendEnabled) text += std::string(trendToken) + "\r\n";
  return text;
}

bool saveInputs(const std::filesystem::path& file, const GeneralInputs& general, const IrrigationCosts& plant,
                const CropScenario& cropCollection, bool trendEnabled) {
  try {
    writeFile(file, savedInputsText(general, plant, cropCollection, trendEnabled));
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

bool loadInputs(const std::filesystem::path& file, SavedInputsTarget& target) {
  try {
    readInto(readFile(file), target);
    return true;
  } catch (const RunTimeError&) {
    return false;  // the values read so far are kept
  }
}

}  // namespace verdalis
