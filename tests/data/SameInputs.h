#pragma once

#include <bit>
#include <cstdint>
#include <sstream>
#include <string>
#include <variant>

#include "tests/data/PlainInputsReader.h"
#include "tests/data/PlainTarget.h"

namespace verdalis::testing {

inline void tell(std::ostringstream& out, double value) {
  // All bits, except the sign of a zero, which the file does not store.
  out << std::hex << std::bit_cast<std::uint64_t>(value + 0.0) << std::dec << '\n';
}
inline void tell(std::ostringstream& out, const std::string& value) {
  out << '[' << value << "]\n";
}
inline void tell(std::ostringstream& out, bool value) {
  out << (value ? "yes\n" : "no\n");
}
inline void tell(std::ostringstream& out, const Number& value) {
  if (value.isEmpty()) {
    out << "empty\n";
  } else {
    tell(out, static_cast<double>(value));
  }
}

/// The values of a crop that are saved.
inline std::string contentOf(const Crop& crop) {
  std::ostringstream out;
  tell(out, crop.cropType);
  tell(out, crop.price);
  tell(out, crop.maxYield);
  for (const CostField& field : costFields())
    std::visit([&](auto member) { tell(out, crop.inputCosts.*member); }, field);
  return out.str();
}

inline std::string contentOf(const IrrigationCosts& plant) {
  std::ostringstream out;
  for (const double value : {plant.GPM, plant.Lift, plant.PSI, plant.LaborPerHour, plant.FixedPerAcre,
                             plant.RepairsPerAcreInch, plant.NPC, plant.cost, plant.dblEstHours}) {
    tell(out, value);
  }
  tell(out, plant.active);
  tell(out, plant.FuelType);
  return out.str();
}

inline std::string contentOf(const GeneralInputs& general) {
  std::ostringstream out;
  for (const std::string& text : {general.splitIndex, general.totalAcres, general.waterAllocation,
                                  general.irrigEff, general.annualRain}) {
    tell(out, text);
  }
  return out.str();
}

/// All values that saved inputs can change in a target, as one text, for comparison.
inline std::string contentOf(const PlainTarget& target) {
  std::ostringstream out;
  out << contentOf(target.general) << contentOf(target.plant);
  for (const auto& crop : target.rows)
    out << (crop ? contentOf(*crop) : "no crop\n");
  for (const auto& event : target.events)
    out << event << '\n';
  return out.str();
}

}  // namespace verdalis::testing
