#pragma once

#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "data/GeneralInputs.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/PlainTarget.h"

namespace verdalis::testing {

/// Any finite number with each bit pattern equally likely, or a short number as users type it.
inline rc::Gen<double> anyNumber() {
  const auto bits = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
  const auto finite =
      rc::gen::suchThat(rc::gen::map(bits, [](std::uint64_t b) { return std::bit_cast<double>(b); }),
                        [](double x) { return std::isfinite(x); });
  return rc::gen::oneOf(finite, rc::gen::map(rc::gen::inRange(-5, 10'000), [](int n) { return n / 100.0; }));
}

/// A text that survives saving and loading: without commas, line ends or a leading blank.
inline rc::Gen<std::string> anySavedText() {
  const auto text =
      rc::gen::oneOf(rc::gen::container<std::string>(rc::gen::inRange<char>(32, 127)),
                     rc::gen::element<std::string>("", "Ma\xC3\xAFs", "\xE2\x82\xAC 5", "a\tb", "True"),
                     rc::gen::container<std::string>(rc::gen::inRange<char>(0, 127)));
  return rc::gen::map(text, [](std::string value) {
    std::erase_if(value, [](char c) { return c == ',' || c == '\r' || c == '\n'; });
    value.erase(0, value.find_first_not_of(" \t"));
    return value;
  });
}

/// The contents of a saved inputs file.
struct AnyInputs {
  GeneralInputs general;
  IrrigationCosts plant;
  CropScenario crops;
  bool trends = false;

  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& crop : crops)
      names.push_back(crop->cropType);
    return names;
  }

  /// The bytes of the file, composed from the texts of its parts.
  [[nodiscard]] std::string file() const {
    std::string text = general.writeData() + "\r\n" + plant.writeData() + "\r\n";
    for (const auto& crop : crops)
      text += crop->writeData() + "\r\n";
    return trends ? text + "batch_enabled\r\n" : text;
  }
};

inline void fillFromAny(double& field) {
  field = *anyNumber();
}
inline void fillFromAny(bool& field) {
  field = *rc::gen::arbitrary<bool>();
}
inline void fillFromAny(Number& field) {
  field = *rc::gen::weightedOneOf<Number>(
      {{1, rc::gen::just(Number())}, {2, rc::gen::map(anyNumber(), [](double x) { return Number(x); })}});
}
inline void fillFromAny(std::string& field) {
  field = *anySavedText();
}

inline std::shared_ptr<Crop> makeAnyCrop() {
  auto crop = std::make_shared<Crop>();
  crop->cropType = *rc::gen::suchThat(
      rc::gen::oneOf(anySavedText(), rc::gen::element<std::string>("Corn", "Wheat", "Fallow", "0")),
      [](const std::string& name) { return name != "batch_enabled"; });
  fillFromAny(crop->price);
  fillFromAny(crop->maxYield);
  for (const CostField& field : costFields())
    std::visit([&](auto member) { fillFromAny(crop->inputCosts.*member); }, field);
  return crop;
}

inline rc::Gen<AnyInputs> anyInputs() {
  return rc::gen::exec([] {
    AnyInputs inputs;
    inputs.general.splitIndex = *rc::gen::element<std::string>("", "0", "1", "2", "3", "4", "5");
    for (std::string* text : {&inputs.general.totalAcres, &inputs.general.waterAllocation,
                              &inputs.general.irrigEff, &inputs.general.annualRain, &inputs.plant.FuelType}) {
      fillFromAny(*text);
    }
    IrrigationCosts& plant = inputs.plant;
    for (double* value : {&plant.GPM, &plant.Lift, &plant.PSI, &plant.LaborPerHour, &plant.FixedPerAcre,
                          &plant.RepairsPerAcreInch, &plant.NPC, &plant.cost, &plant.dblEstHours}) {
      fillFromAny(*value);
    }
    fillFromAny(plant.active);
    fillFromAny(inputs.trends);
    const int crops = *rc::gen::inRange(0, 5);
    for (int i = 0; i < crops; ++i)
      inputs.crops.Add(makeAnyCrop());
    return inputs;
  });
}

inline void showValue(const AnyInputs& inputs, std::ostream& os) {
  os << inputs.file();
}

}  // namespace verdalis::testing
