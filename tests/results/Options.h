#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldCollection.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"

namespace verdalis::testing {

using Option = std::shared_ptr<FieldCollection>;

/// A field whose crop costs `cost` and sells for `sales` dollars an acre, with a yield of 1 unit.
inline std::shared_ptr<Field> plainField(double acres, double sales, double cost, double depth = 0,
                                         const std::string& cropType = "Millet") {
  auto field = std::make_shared<Field>();
  field->acres = acres;
  field->Depth = depth;
  field->annualRain = 16;
  *field->theCrop = namedCrop(cropType);
  field->theCrop->soilName = "Silt Loam";
  field->theCrop->Yield = 1;
  field->theCrop->price = sales;
  field->theCrop->inputCosts.MiscCost = cost;
  return field;
}

inline Option optionOf(std::initializer_list<std::shared_ptr<Field>> fields) {
  auto option = std::make_shared<FieldCollection>();
  for (const auto& field : fields)
    option->Add(field);
  return option;
}

/// An option of one field of 10 acres with this net return an acre.
inline Option optionEarning(double profit) {
  return optionOf({plainField(10, profit + 50, 50)});
}

inline Option placeholder() {
  auto option = std::make_shared<FieldCollection>();
  option->isNew = true;
  return option;
}

/// A field of a stock crop on the default plant, with its yield looked up.
inline std::shared_ptr<Field> stockField(const Crop& crop, double acres, double depth, double rain = 16) {
  auto field = std::make_shared<Field>();
  field->acres = acres;
  field->Depth = depth;
  field->annualRain = rain;
  *field->theCrop = crop.Copy();
  field->theCrop->setNormal(crop.maxYield, rain);
  field->theCrop->soilName = "Silt Loam";
  yieldAt(*field->theCrop, depth, rain);
  *field->irrigCosts = defaultPlant();
  return field;
}

}  // namespace verdalis::testing
