#pragma once

#include <string>
#include <utility>
#include <vector>

#include "document/FarmDocument.h"
#include "model/savedFields.h"
#include "tests/support/Plant.h"

namespace verdalis::testing {

/// A field of a saved option, with figures that were worked out: dollars for the field.
inline SavedOptionField savedField(const std::string& crop, double acres, double depth, double returns,
                                   double costs) {
  SavedOptionField field;
  field.crop = crop;
  field.acres = acres;
  field.depth = depth;
  field.rain = 16;
  field.price = 6.5;
  field.yield = 184.44;
  field.units = "bu.,bushels";
  field.returns = returns;
  field.costs = costs;
  return field;
}

inline DocumentCrop savedCrop(const std::string& name, const std::string& price) {
  DocumentCrop crop;
  crop.name = name;
  crop.chosen = true;
  crop.price = price;
  crop.maxYield = "220";
  crop.costs.NitrogenApplied = 180;
  crop.costs.NitrogenCost = 0.44;
  return crop;
}

/// Inputs of a farm with Corn and Wheat.
inline FarmInputs savedInputs() {
  FarmInputs inputs;
  inputs.farm.txtArea = "100";
  inputs.farm.txtMax = "12";
  inputs.farm.txtAnnRain = "16";
  inputs.farm.txtEff = "80";
  inputs.farm.txtSoil = "Silt Loam";
  inputs.farm.split = 0;
  inputs.plant.plant = defaultPlant();
  inputs.crops.add(savedCrop("Corn", "6.5"));
  inputs.crops.add(savedCrop("Wheat", "7"));
  inputs.options.keep = "100";
  return inputs;
}

/// An option with these inputs. Its costs are the sum of those of its fields.
inline SavedOption savedOption(std::vector<SavedOptionField> fields, FarmInputs inputs = savedInputs(),
                               const std::string& name = "") {
  SavedOption saved;
  saved.name = name;
  saved.fields = std::move(fields);
  for (const SavedOptionField& field : saved.fields)
    saved.costs += field.costs;
  saved.inputs = std::move(inputs);
  return saved;
}

/// An option of one field of Corn, 100 acres, with this net return, dollars for the farm.
inline SavedOption savedEarning(double net, FarmInputs inputs = savedInputs(), const std::string& name = "") {
  return savedOption({savedField("Corn", 100, 8, net + 20000, 20000)}, std::move(inputs), name);
}

}  // namespace verdalis::testing
