#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/IrrigationCosts.h"
#include "model/inputCosts.h"
#include "tests/data/PlainCropReader.h"
#include "tests/data/PlainTarget.h"

// A second, simple reader of saved inputs, for comparison. It splits all values first and shares no code with
// the program's reader.

namespace verdalis::testing {

using CostField = std::variant<double inputCosts::*, bool inputCosts::*, Number inputCosts::*>;

/// The 31 costs of a crop block, in the order of the file.
inline const std::array<CostField, 31>& costFields() {
  using C = inputCosts;
  static const std::array<CostField, 31> fields{&C::NitrogenCost,
                                                &C::NitrogenApplied,
                                                &C::NOptimal,
                                                &C::PCost,
                                                &C::PApplied,
                                                &C::POptimal,
                                                &C::SeedCost,
                                                &C::SeedRate,
                                                &C::SeedOptimal,
                                                &C::Herbicide,
                                                &C::Insecticide,
                                                &C::Tillage,
                                                &C::Planting,
                                                &C::HerbicideApplication,
                                                &C::InsecticideApplication,
                                                &C::Returns,
                                                &C::HarvestBasePerAcre,
                                                &C::HarvestExceedBu,
                                                &C::HarvestExceedRate,
                                                &C::HarvestHauling,
                                                &C::HarvestFlatRate,
                                                &C::AlfalfaSwathing,
                                                &C::AlfalfaSwathingNum,
                                                &C::AlfalfaRaking,
                                                &C::AlfalfaRakingNum,
                                                &C::AlfalfaBaling,
                                                &C::AlfalfaBalingNum,
                                                &C::AlfalfaPerTon,
                                                &C::AlfalfaStand,
                                                &C::MiscCost,
                                                &C::FertilizerApplication};
  return fields;
}

/// The values of a file. They end at a comma or a line end; leading blanks are dropped.
inline Texts plainInputValues(const std::string& text) {
  Texts values;
  for (const std::string& line : plainLines(text)) {
    Texts parts = plainSplit(line);
    if (parts.empty()) parts.emplace_back();
    for (const std::string& part : parts)
      values.push_back(part.substr(std::min(part.size(), part.find_first_not_of(" \t"))));
  }
  // There is no value after a comma at the very end.
  if (!text.empty() && text.back() == ',') values.pop_back();
  return values;
}

inline bool plainSwitch(std::string word) {
  for (char& c : word) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  return word == "true";
}

/// Reads the text of a file into a target. read() returns whether it was read completely.
class PlainInputsReader {
 public:
  PlainInputsReader(const std::string& text, PlainTarget& target)
      : values_(plainInputValues(text)), target_(target) {}

  bool read() {
    GeneralInputs& general = target_.general;
    for (std::string* field : {&general.splitIndex, &general.totalAcres, &general.waterAllocation,
                               &general.irrigEff, &general.annualRain}) {
      if (!take(*field)) return false;
    }
    IrrigationCosts& plant = target_.plant;
    for (double* field : {&plant.GPM, &plant.Lift, &plant.PSI, &plant.LaborPerHour, &plant.FixedPerAcre,
                          &plant.RepairsPerAcreInch, &plant.NPC, &plant.cost}) {
      if (!take(*field)) return false;
    }
    if (!take(plant.active) || !take(plant.FuelType) || !take(plant.dblEstHours)) return false;
    if (!showGeneral()) return false;
    showPlant();

    std::vector<bool> filled(target_.rows.size());
    while (next_ < values_.size()) {
      const std::string token = values_[next_++];
      if (token == "batch_enabled") {
        target_.setTrendEnabled();
        continue;
      }
      const auto row = rowOf(token, filled);
      if (row && !block(*target_.rows[*row])) return false;
    }
    target_.refreshRows();
    return true;
  }

 private:
  bool take(std::string& field) {
    if (next_ == values_.size()) return false;
    field = values_[next_++];
    return true;
  }
  bool take(double& field) {
    std::string text;
    if (!take(text)) return false;
    const auto value = plainVal(text);
    if (value) field = *value;
    return value.has_value();
  }
  bool take(bool& field) {
    std::string text;
    if (!take(text)) return false;
    field = plainSwitch(text);
    return true;
  }
  bool take(Number& field) {
    if (next_ == values_.size()) return false;
    if (values_[next_].empty()) {
      ++next_;
      field = Number();
      return true;
    }
    double value = 0;
    if (!take(value)) return false;
    field = value;
    return true;
  }

  bool showGeneral() {
    target_.setText("txtAnnRain", target_.general.annualRain);
    target_.setText("txtEff", target_.general.irrigEff);
    if (target_.general.splitIndex.empty()) {
      target_.chooseLandSplit(std::nullopt);
    } else {
      const auto index = plainInches(target_.general.splitIndex);  // also parses a whole number
      if (!index || *index < 0 || *index > 5) return false;
      target_.chooseLandSplit(*index);
    }
    target_.setText("txtArea", target_.general.totalAcres);
    target_.setText("txtMax", target_.general.waterAllocation);
    return true;
  }

  void showPlant() {
    const IrrigationCosts& plant = target_.plant;
    const auto number = [&](const char* control, double value) {
      target_.setText(control, generalText(value));
    };
    number("txtGPM", plant.GPM);
    number("txtEstHours", plant.dblEstHours);
    number("txtLift", plant.Lift);
    number("txtPSI", plant.PSI);
    target_.setText("cboFuelType", plant.FuelType);
    number("txtCost", plant.cost);
    number("txtLaborPerHour", plant.LaborPerHour);
    number("txtRepairsPerAcre", plant.RepairsPerAcreInch);
  }

  /// The first row of that name that has no block yet, else the first row of that name.
  std::optional<std::size_t> rowOf(const std::string& name, std::vector<bool>& filled) const {
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < target_.rows.size(); ++i) {
      if (target_.rows[i] && target_.rows[i]->cropType == name) rows.push_back(i);
    }
    if (rows.empty()) return std::nullopt;
    for (const std::size_t row : rows) {
      if (filled[row]) continue;
      filled[row] = true;
      return row;
    }
    return rows.front();
  }

  bool block(Crop& crop) {
    if (!take(crop.price) || !take(crop.maxYield)) return false;
    for (const CostField& field : costFields()) {
      if (!std::visit([&](auto member) { return take(crop.inputCosts.*member); }, field)) return false;
    }
    return true;
  }

  Texts values_;
  std::size_t next_ = 0;
  PlainTarget& target_;
};

}  // namespace verdalis::testing
