#pragma once

#include <string>
#include <variant>
#include <vector>

#include "tests/data/PlainInputsReader.h"
#include "tests/data/PlainTarget.h"

namespace verdalis::testing {

/// A target filled with values that the file does not contain, to show which values were read.
struct FilledTarget : PlainTarget {
  explicit FilledTarget(const std::vector<std::string>& names) : PlainTarget(names) {
    general = {"1", "2", "3", "4", "5"};
    plant.GPM = 77;
    plant.FuelType = "Propane";
    for (const auto& crop : rows) {
      crop->price = 77;
      for (const auto& field : costFields())
        std::visit([&](auto member) { fill(crop->inputCosts.*member); }, field);
    }
  }

 private:
  static void fill(double& field) { field = 77; }
  static void fill(Number& field) { field = 77; }
  static void fill(bool& field) { field = true; }
};

}  // namespace verdalis::testing
