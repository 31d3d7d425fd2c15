#include "data/SavedInputs.h"

#include <span>
#include <string_view>
#include <vector>

#include "data/readFile.h"
#include "data/writeFile.h"
#include "model/savedFields.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view trendToken = "batch_enabled";

/// Splits the file into values.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : rest_(text) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  std::string_view next() {
    if (rest_.empty()) throw RunTimeError(ErrorNumber::invalidCall, "The saved inputs end too early.");
    const std::size_t start = rest_.find_first_not_of(" \t");
    rest_.remove_prefix(start == std::string_view::npos ? rest_.size() : start);
    const std::size_t end = rest_.find_first_of(",\r\n");
    const std::string_view value = rest_.substr(0, end);
    if (end == std::string_view::npos) {
      rest_ = {};
    } else {
      rest_.remove_prefix(end + (rest_.substr(end, 2) == "\r\n" ? 2 : 1));
    }
    return value;
  }

  template <class Owner>
  void read(Owner& owner, std::span<const SavedField<Owner>> fields) {
    for (const SavedField<Owner>& field : fields)
      field.read(owner, next());
  }

 private:
  std::string_view rest_;
};

void readCropBlock(ValueReader& values, Crop& crop) {
  values.read(crop, cropFields());
  values.read(crop.inputCosts, costFields());
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
  ValueReader values(text);
  GeneralInputs& general = target.generalInputs();
  for (std::string* field : {&general.splitIndex, &general.totalAcres, &general.waterAllocation,
                             &general.irrigEff, &general.annualRain}) {
    *field = values.next();
  }
  IrrigationCosts& plant = target.tempIrrigationCosts();
  values.read(plant, plantFields());
  general.setData(target);
  putPlantIntoControls(plant, target);

  std::vector<bool> filled(target.rowCrops().size());
  while (!values.atEnd()) {
    const std::string_view token = values.next();
    if (token == trendToken) {
      target.setTrendEnabled();
    } else if (Crop* crop = rowFor(token, target.rowCrops(), filled)) {
      readCropBlock(values, *crop);
    }
  }
  target.refreshRows();
}

}  // namespace

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
