#pragma once

#include <string>

#include "document/FarmDocument.h"
#include "document/documentKeys.h"

namespace verdalis::testing {

/// Gives every member its own value, counted up from `next`. Every third empty number stays empty.
template <class Owner>
void fillKeys(std::span<const DocumentKey<Owner>> keys, Owner& owner, double next) {
  struct Fill {
    double& next;
    void operator()(double& member) const { member = next++; }
    void operator()(bool& member) const { member = true; }
    void operator()(std::string& member) const { member = "Natural Gas"; }
    void operator()(Number& member) const {
      if (static_cast<int>(next) % 3 != 0) member = next;
      ++next;
    }
  };
  for (const DocumentKey<Owner>& each : keys)
    each.field.visit(owner, Fill{next});
}

inline DocumentCrop cropWithEverything(const std::string& name) {
  DocumentCrop crop;
  crop.name = name;
  crop.chosen = true;
  crop.price = "about 6.52";
  crop.priceInForce = 6.52;
  crop.maxYield = "22O";
  crop.maxYieldInForce = 219.99999999999997;
  fillKeys(costKeys(), crop.costs, 1.25);
  crop.unknown = {{"x-crop", "1"}};
  crop.unknownCosts = {{"x-costs", "[]"}};
  return crop;
}

inline FarmInputs inputsWithEverything() {
  FarmInputs inputs;
  DocumentFarm& farm = inputs.farm;
  farm.txtArea = "125";
  farm.txtMax = "14";
  farm.txtAnnRain = "17.5";
  farm.txtEff = "85";
  farm.txtSoil = "Silt Loam";
  farm.txtSize = "7";
  farm.split = 3;
  farm.noSplit = true;
  farm.fallowNegatives = true;
  farm.unknown = {{"x-farm", R"({"b":1.10,"a":[1,2,{"c":null}]})"}};
  fillKeys(plantKeys(), inputs.plant.plant, 100.5);
  inputs.plant.unknown = {{"x-plant", R"("\u00e4")"}};
  inputs.crops.add(cropWithEverything("Corn"));
  DocumentCrop plain;
  plain.name = "Ma\xC3\xAFs \"doux\"";
  plain.price = "4.1";
  plain.maxYield = "90";
  inputs.crops.add(plain);
  inputs.options.keep = "250";
  inputs.options.factor = 20;
  inputs.options.mixes = true;
  inputs.options.unknown = {{"x-options", "12345678901234567890"}};
  inputs.wishes = {{{Wish::Kind::acresAtLeast, "Corn", 0, 40}, {{"x-wish", "true"}}},
                   {{Wish::Kind::acresAtMost, "Corn", 0, 80.5}, {}},
                   {{Wish::Kind::fieldIs, "Corn", 1, 0}, {}},
                   {{Wish::Kind::fieldIsNot, "Wheat", 2, 0}, {}},
                   {{Wish::Kind::depthAtLeast, "", 3, 1.5}, {}},
                   {{Wish::Kind::depthAtMost, "", 4, 12}, {}},
                   {{Wish::Kind::cropsAtLeast, "", 0, 2}, {}},
                   {{Wish::Kind::cropsAtMost, "", 0, 3}, {}}};
  return inputs;
}

inline SavedOption savedOptionWithEverything() {
  SavedOption saved;
  saved.name = "Wet year";
  saved.costs = 51234.125;
  SavedOptionField& field = saved.fields.emplace_back();
  field.crop = "Corn";
  field.acres = 62.5;
  field.depth = 11.9;
  field.rain = 17;
  field.price = 6.52;
  field.maxYield = 220;
  field.normalFactor = 0.1;
  field.yield = 201.33333333333334;
  field.soil = "Silt Loam";
  field.units = "bu.";
  field.costs = 25000.5;
  field.returns = 82000.25;
  field.trendedCosts = 410;
  field.trendedIrrigation = 4.25;
  fillKeys(costKeys(), field.ownCosts.emplace(), 200.5);
  fillKeys(plantKeys(), field.ownPlant.emplace(), 300.5);
  field.unknown = {{"x-field", "-0"}};
  saved.fields.emplace_back().crop = "Fallow";
  saved.trend = {{"Price of Corn", 6.52, "$", "/ bu.", {{"x-trend", "1E5"}}}, {"Rain", 17, "", "\"", {}}};
  saved.inputs = inputsWithEverything();
  saved.inputs.unknown = {{"x-inputs", "{}"}};
  saved.unknown = {{"x-saved", "2"}};
  saved.unknownOption = {{"x-option", "3"}};
  return saved;
}

/// A document in which every key of a farm file stands at least once, with its own value.
inline FarmDocument documentWithEverything() {
  FarmDocument document;
  document.name = "North \xE2\x80\x9CHill\xE2\x80\x9D Farm";
  document.notes = "First line\r\nSecond line\twith a tab and a \\ backslash";
  document.letterhead = "A. Adviser";
  document.inputs = inputsWithEverything();
  document.seasons = {{"dry", 13, 1, {{"x-season", "null"}}}, {"wet", 20.5, 0.5, {}}};
  document.trend = {
      {"Corn", 0, 0, "3", "7", "9", "", "", true, {{"x-process", "[1]"}}},
      {"", 5, 2, "", "", "", "13;17;20", "", false, {}},
  };
  document.saved.add(savedOptionWithEverything());
  document.customCrops.add({"Sugar Beets", "CROP=Sugar Beets\r\nUNITS=tons\r\n", {{"x-custom", "false"}}});
  document.unknown = {{"x-second", "1"}, {"x-first", R"({"text":"kept"})"}};
  return document;
}

}  // namespace verdalis::testing
