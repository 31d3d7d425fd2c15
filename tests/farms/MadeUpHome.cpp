#include "tests/farms/MadeUpHome.h"

#include <algorithm>
#include <utility>

#include "text/encoding.h"

namespace verdalis::testing {
namespace {

constexpr std::size_t firstRain = 11;
constexpr std::size_t lastRain = 21;

bool isForage(const std::string& crop) {
  return crop == "Alfalfa";
}

std::string wholeNumbers(std::size_t first, std::size_t last) {
  std::string list = std::to_string(first);
  for (std::size_t number = first + 1; number <= last; ++number)
    list += ',' + std::to_string(number);
  return list;
}

/// A key of a JSON object with a number, a switch or another value as it is written.
std::string entry(std::string_view key, std::string_view value) {
  return '"' + std::string(key) + "\": " + std::string(value);
}

std::string quoted(std::string_view key, std::string_view text) {
  return entry(key, '"' + std::string(text) + '"');
}

std::string object(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& each : entries)
    text += (text.empty() ? "{" : ", ") + each;
  return text + '}';
}

struct Cost {
  std::string_view key;
  std::size_t low;
  std::size_t high;
};

/// The costs that all crops have.
constexpr std::array<Cost, 14> commonCosts{{{"nitrogenApplied", 0, 200},
                                            {"nitrogenCost", 0, 2},
                                            {"phosphorusApplied", 0, 60},
                                            {"phosphorusCost", 0, 2},
                                            {"seedRate", 0, 30000},
                                            {"seedCost", 0, 5},
                                            {"herbicide", 0, 40},
                                            {"insecticide", 0, 40},
                                            {"tillage", 0, 40},
                                            {"planting", 5, 20},
                                            {"fertilizerApplication", 0, 8},
                                            {"herbicideApplication", 0, 8},
                                            {"insecticideApplication", 0, 8},
                                            {"miscellaneous", 0, 90}}};
constexpr std::array<Cost, 4> grainHarvest{{{"harvestBasePerAcre", 10, 40},
                                            {"harvestExceed", 20, 90},
                                            {"harvestExceedRate", 0, 1},
                                            {"harvestHauling", 0, 1}}};
constexpr std::array<Cost, 7> forageHarvest{{{"swathing", 5, 20},
                                             {"swathingNumber", 1, 5},
                                             {"raking", 2, 9},
                                             {"rakingNumber", 1, 5},
                                             {"baling", 2, 20},
                                             {"balesPerAcre", 1, 12},
                                             {"lifeOfStand", 1, 7}}};

}  // namespace

std::string madeUpPrice(Draw& draw, const std::string& crop) {
  return isForage(crop) ? draw.number(60, 160) : draw.number(2, 9);
}

std::string madeUpYield(Draw& draw, const std::string& crop) {
  if (isForage(crop)) return draw.number(3, 12);
  if (crop == "Sunflower") return draw.number(800, 3000);
  return draw.number(30, crop == "Soybeans" ? 149 : crop == "Wheat" ? 199 : 260);
}

MadeUpHome::MadeUpHome(std::string name, Draw& draw)
    : name_(std::move(name)), draw_(draw), top_(8 + draw.below(17)) {
  // The costs of the first six depend on their names, those of the last two do not.
  constexpr std::array<std::string_view, 8> names{"Alfalfa",   "Corn",  "Grain Sorghum", "Soybeans",
                                                  "Sunflower", "Wheat", "Millet",        "Sugar Beets"};
  for (const std::string_view crop : names) {
    if (crop == "Corn" || draw_.percent(55)) crops_.emplace_back(crop);
  }
  std::sort(crops_.begin(), crops_.end());
}

std::vector<MadeUpFile> MadeUpHome::files() {
  std::vector<MadeUpFile> result;
  for (const std::string& crop : crops_) {
    result.push_back({name_ + "/crops/" + crop + ".txt", cropFile(crop)});
    if (draw_.percent(20))
      result.push_back({name_ + "/crops/soils/" + lowerCase(crop) + ".txt", soilsFile(crop)});
  }
  result.push_back({farmFile(), farm()});
  return result;
}

std::string MadeUpHome::cropFile(const std::string& crop) {
  const std::string_view units = isForage(crop)        ? "ton,tons"
                                 : crop == "Sunflower" ? "lb.,pounds"
                                                       : "bu.,bushels";
  return "CROP=" + crop + "\n\nUNITS=" + std::string(units) +
         "\n\nANNUAL_RAIN=" + wholeNumbers(firstRain, lastRain) + "\n\nEFF_IRRIG=" + wholeNumbers(0, top_) +
         "\n\nYIELD_VALUES=" + yields(crop, draw_.percent(30)) + '\n';
}

std::string MadeUpHome::soilsFile(const std::string& crop) {
  std::string text;
  for (const std::string_view soil : {"ulysses", "valent", "valentine"}) {
    text += "SOIL=" + std::string(soil) + "\nANNUAL_RAIN=" + wholeNumbers(firstRain, lastRain) +
            "\nEFF_IRRIG=" + wholeNumbers(0, top_);
    // One draw after the other: the compiler chooses the order within an expression.
    text += "\nYIELD=" + yields(crop, false);
    text += "\nRELATIVE=" + yields(crop, true) + '\n';
  }
  return text;
}

/// The cells of a yield table: each inch adds less than the one before. Relative yields are fractions of 1.
std::string MadeUpHome::yields(const std::string& crop, bool relative) {
  constexpr std::size_t thousandths = 1000;
  const std::size_t full = relative ? 1 : isForage(crop) ? 4 + draw_.below(6) : 50 + draw_.below(200);
  const std::size_t dry = draw_.below(60);  // percent of the full yield without irrigation
  const std::size_t extra = draw_.percent(50) ? 0 : 1 + draw_.below(14);
  std::string list;
  for (std::size_t water = 0; water <= top_; ++water) {
    const std::size_t gain = (100 - dry) * water * (2 * top_ - water) / (top_ * top_);
    for (std::size_t rain = firstRain; rain <= lastRain; ++rain) {
      const std::size_t yield = full * thousandths * (dry + gain) * (70 + 3 * (rain - firstRain)) / 10000;
      const std::string decimals = std::to_string(thousandths + yield % thousandths).substr(1);
      list += (list.empty() ? "" : ",") + std::to_string(yield / thousandths) + '.' + decimals +
              draw_.digits(extra);
    }
  }
  return list;
}

std::string MadeUpHome::farm() {
  constexpr std::array<std::string_view, 4> soils{"Silt Loam", "Silt Loam", "Fine Sand", "Loamy Sand"};
  const std::string inputs =
      object({quoted("txtArea", draw_.number(40, 400)), quoted("txtMax", draw_.number(4, 24)),
              quoted("txtAnnRain", std::to_string(firstRain + draw_.below(lastRain - firstRain + 1))),
              quoted("txtEff", draw_.number(50, 98)), quoted("txtSoil", draw_.oneOf(soils)),
              entry("split", std::to_string(draw_.below(6))),
              entry("noSplit", draw_.percent(25) ? "true" : "false")});
  std::string entries;
  for (const std::string& crop : crops_)
    entries += (entries.empty() ? "" : ",\n    ") + cropEntry(crop, crop == "Corn" || draw_.percent(40));
  return "{\n  \"format\": \"verdalis-farm\",\n  \"version\": 1,\n  \"farm\": " + inputs +
         ",\n  \"plant\": " + plant() + ",\n  \"crops\": [\n    " + entries +
         "\n  ],\n  \"options\": " + object({quoted("keep", "10"), entry("factor", "10")}) + "\n}\n";
}

std::string MadeUpHome::plant() {
  constexpr std::array<std::string_view, 3> fuels{"Natural Gas", "Diesel", "Propane"};
  return object({entry("gpm", draw_.number(600, 1500)), entry("lift", draw_.number(0, 300)),
                 entry("psi", draw_.number(0, 60)), quoted("fuelType", draw_.oneOf(fuels)),
                 entry("fuelCost", draw_.number(0, 8)), entry("fuelPerformance", draw_.number(10, 70)),
                 entry("laborPerHour", draw_.number(0, 30)), entry("repairsPerAcreInch", draw_.number(0, 1)),
                 entry("fixedPerAcre", draw_.number(0, 20)), entry("seasonHours", draw_.number(1500, 2600)),
                 entry("active", draw_.percent(80) ? "true" : "false")});
}

std::string MadeUpHome::cropEntry(const std::string& crop, bool chosen) {
  std::vector<std::string> costs;
  const auto add = [&](const auto& table) {
    for (const Cost& cost : table)
      costs.push_back(entry(cost.key, draw_.number(cost.low, cost.high)));
  };
  add(commonCosts);
  for (const std::string_view key : {"nitrogenOptimal", "phosphorusOptimal", "seedOptimal"})
    costs.push_back(entry(key, draw_.percent(60) ? "true" : "false"));
  if (isForage(crop)) {
    add(forageHarvest);
    if (draw_.percent(30)) costs.push_back(entry("forageFlatRate", draw_.number(20, 50)));
  } else {
    add(grainHarvest);
    if (draw_.percent(20)) costs.push_back(entry("harvestFlatRate", draw_.number(0, 1)));
  }
  if (draw_.percent(30)) costs.push_back(entry("otherReturns", draw_.number(0, 50)));
  return object({quoted("name", crop), entry("chosen", chosen ? "true" : "false"),
                 quoted("price", madeUpPrice(draw_, crop)), quoted("maxYield", madeUpYield(draw_, crop)),
                 entry("costs", object(costs))});
}

}  // namespace verdalis::testing
