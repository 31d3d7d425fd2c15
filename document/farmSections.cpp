#include "document/farmSections.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/CropKind.h"
#include "model/Fuel.h"
#include "model/LandDivision.h"
#include "model/StockCrops.h"
#include "model/savedFields.h"
#include "screens/wishText.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using Costs = inputCosts;

/// A number with all its decimals.
const NumberStyle asItIs{"", "", 0, true, true};
/// Dollars and cents, and smaller parts where they are entered.
const NumberStyle money{"", "", 2, true, true};

HandoutCell cellOf(const std::string& text) {
  if (text.empty()) return {};
  if (!isNumeric(text)) return text;
  return toDouble(text);
}

/// A typed text and the number in force, if that is another one.
HandoutCell cellOf(const std::string& text, const std::optional<double>& inForce) {
  return inForce ? HandoutCell(*inForce) : cellOf(text);
}

HandoutTable inputTable(const std::string& title) {
  return {title, {{"Input", "", false, {}}, {"Value", "", true, asItIs}, {"Unit", "", false, {}}}, {}};
}

void add(HandoutTable& table, std::string what, HandoutCell value, std::string unit = {}) {
  table.rows.push_back({{std::move(what), std::move(value), std::move(unit)}, false});
}

std::string splitText(const std::optional<std::size_t>& split) {
  if (!split || *split >= landDivisions().size()) return {};
  std::string text(landDivisions().at(*split).caption);
  while (text.ends_with(' '))
    text.pop_back();
  return text;
}

HandoutTable farmTable(const DocumentFarm& farm) {
  HandoutTable table = inputTable("Land and water");
  add(table, "Total acres", cellOf(farm.txtArea), "acres");
  add(table, "Gross irrigation", cellOf(farm.txtMax), "inches over the farm");
  add(table, "Annual rainfall", cellOf(farm.txtAnnRain), "inches");
  add(table, "Irrigation efficiency", cellOf(farm.txtEff), "percent");
  if (!farm.txtSoil.empty()) add(table, "Soil", farm.txtSoil);
  const std::string split = splitText(farm.split);
  if (!split.empty()) add(table, "Land split", split, "percent of the acres");
  if (farm.noSplit) add(table, "Undivided farm", std::string("also compared"));
  return table;
}

HandoutTable plantTable(const IrrigationCosts& plant) {
  const Fuel* const fuel = findFuel(plant.FuelType);
  const std::string unit(fuel == nullptr ? "fuel unit" : fuel->unit);
  HandoutTable table = inputTable("Pumping plant");
  add(table, "Discharge rate", plant.GPM, "gallons per minute");
  add(table, "Pumping water lift", plant.Lift, "feet");
  add(table, "Operating pressure", plant.PSI, "psi");
  if (!plant.FuelType.empty()) add(table, "Fuel", plant.FuelType);
  add(table, "Fuel cost", plant.cost, "$ per " + unit);
  add(table, "Fuel performance", plant.NPC, "water horsepower-hours per " + unit);
  add(table, "Labor", plant.LaborPerHour, "$ per hour");
  add(table, "Repairs and maintenance", plant.RepairsPerAcreInch, "$ per acre-inch");
  add(table, "Pumping hours", plant.dblEstHours, "hours per season");
  return table;
}

/// The crops that a line of the costs is about.
enum class Of { all, seedByThousand, seedByPound };

/// A line of the tables of rates and costs.
struct CostLine {
  const char* name;
  const char* unit;
  SavedField<Costs> field;
  Of of = Of::all;
  bool Costs::*optimal = nullptr;  ///< If it is set, a rule takes the place of the number
  const char* rule = "";
};

const std::array<CostLine, 9> rateLines{{
    {"Nitrogen", "lb/acre", &Costs::NitrogenApplied, Of::all, &Costs::NOptimal, "by yield"},
    {"Phosphorus", "lb/acre", &Costs::PApplied, Of::all, &Costs::POptimal, "by yield"},
    {"Seed by number", "seeds/acre", &Costs::SeedRate, Of::seedByThousand, &Costs::SeedOptimal, "by water"},
    {"Seed by weight", "lb/acre", &Costs::SeedRate, Of::seedByPound, &Costs::SeedOptimal, "by water"},
    {"Extra harvest charge above", "units/acre", &Costs::HarvestExceedBu},
    {"Swathing", "times a season", &Costs::AlfalfaSwathingNum},
    {"Raking", "times a season", &Costs::AlfalfaRakingNum},
    {"Bales", "bales/acre", &Costs::AlfalfaBalingNum},
    {"Life of stand", "years", &Costs::AlfalfaStand},
}};

const std::array<CostLine, 21> costLines{{
    {"Nitrogen", "$/lb", &Costs::NitrogenCost},
    {"Phosphorus", "$/lb", &Costs::PCost},
    {"Seed by number", "$/1,000 seeds", &Costs::SeedCost, Of::seedByThousand},
    {"Seed by weight", "$/lb", &Costs::SeedCost, Of::seedByPound},
    {"Herbicide", "$/acre", &Costs::Herbicide},
    {"Insecticide", "$/acre", &Costs::Insecticide},
    {"Tillage", "$/acre", &Costs::Tillage},
    {"Planting", "$/acre", &Costs::Planting},
    {"Fertilizer application", "$/acre", &Costs::FertilizerApplication},
    {"Herbicide application", "$/acre", &Costs::HerbicideApplication},
    {"Insecticide application", "$/acre", &Costs::InsecticideApplication},
    {"Harvest, base charge", "$/acre", &Costs::HarvestBasePerAcre},
    {"Harvest, extra charge", "$/unit", &Costs::HarvestExceedRate},
    {"Hauling", "$/unit", &Costs::HarvestHauling},
    {"Harvest, flat rate", "$/unit", &Costs::HarvestFlatRate},
    {"Swathing", "$/acre", &Costs::AlfalfaSwathing},
    {"Raking", "$/acre", &Costs::AlfalfaRaking},
    {"Baling", "$/bale", &Costs::AlfalfaBaling},
    {"Harvest by the ton", "$/ton", &Costs::AlfalfaPerTon},
    {"Miscellaneous costs", "$/acre", &Costs::MiscCost},
    {"Other returns of the land", "$/acre", &Costs::Returns},
}};

bool concerns(Of of, const std::string& crop) {
  if (of == Of::all) return true;
  return isSeedPricedByPound(cropKind(crop)) == (of == Of::seedByPound);
}

struct CellOfMember {
  HandoutCell operator()(double value) const { return value; }
  HandoutCell operator()(const Number& value) const {
    return value.isEmpty() ? HandoutCell() : HandoutCell(static_cast<double>(value));
  }
  HandoutCell operator()(bool /*value*/) const { return {}; }
  HandoutCell operator()(const std::string& value) const { return value; }
};

HandoutCell cellOf(const CostLine& line, const DocumentCrop& crop) {
  if (!concerns(line.of, crop.name)) return {};
  if (line.optimal != nullptr && crop.costs.*line.optimal) return std::string(line.rule);
  return line.field.visit(crop.costs, CellOfMember());
}

bool tellsSomething(const HandoutCell& cell) {
  const auto* const number = std::get_if<double>(&cell);
  return number != nullptr ? *number != 0 : !std::holds_alternative<std::monostate>(cell);
}

using Crops = std::vector<const DocumentCrop*>;

template <std::size_t count>
HandoutTable linesTable(const std::string& title, const std::array<CostLine, count>& lines,
                        const Crops& crops, const NumberStyle& style) {
  HandoutTable table{title, {{"Per crop", "", false, {}}, {"Unit", "", false, {}}}, {}};
  for (const DocumentCrop* crop : crops)
    table.columns.push_back({crop->name, "", true, style});
  for (const CostLine& line : lines) {
    HandoutRow row{{std::string(line.name), std::string(line.unit)}, false};
    for (const DocumentCrop* crop : crops)
      row.cells.push_back(cellOf(line, *crop));
    if (std::any_of(row.cells.begin() + 2, row.cells.end(), tellsSomething))
      table.rows.push_back(std::move(row));
  }
  return table;
}

Crops cropsOf(const FarmDocument& farm, CropsToTell which) {
  Crops crops;
  for (const auto& crop : farm.inputs.crops) {
    if (crop->chosen) crops.push_back(crop.get());
  }
  if (which == CropsToTell::chosen && !crops.empty()) return crops;
  crops.clear();
  for (const auto& crop : farm.inputs.crops)
    crops.push_back(crop.get());
  return crops;
}

std::string unitOf(const std::string& crop, const CropScenario& library) {
  for (const auto& each : library) {
    if (each->cropType == crop) return each->priceUnits();
  }
  return {};
}

HandoutTable pricesTable(const Crops& crops, const CropScenario& library) {
  HandoutTable table{"Prices and yields",
                     {{"Crop", "", false, {}},
                      {"Price", "$/unit", true, money},
                      {"Maximum yield", "units/acre", true, asItIs},
                      {"Unit", "", false, {}}},
                     {}};
  for (const DocumentCrop* crop : crops) {
    table.rows.push_back({{crop->name, cellOf(crop->price, crop->priceInForce),
                           cellOf(crop->maxYield, crop->maxYieldInForce), unitOf(crop->name, library)},
                          false});
  }
  return table;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  const auto end = [&] {
    if (line.find_first_not_of(" \t") != std::string::npos) lines.push_back(line);
    line.clear();
  };
  for (const char character : text) {
    if (character == '\n' || character == '\r') {
      end();
    } else {
      line += character;
    }
  }
  end();
  return lines;
}

}  // namespace

std::string dateText(const ClockTime& time) {
  constexpr std::array<const char*, 12> months{"January",   "February", "March",    "April",
                                               "May",       "June",     "July",     "August",
                                               "September", "October",  "November", "December"};
  const auto month = static_cast<std::size_t>(std::clamp(time.month, 1, 12) - 1);
  return std::string(months.at(month)) + " " + std::to_string(time.day) + ", " + std::to_string(time.year);
}

Handout reportHandout(const FarmDocument& farm, const ClockTime& today) {
  return {"Irrigation plan", farm.name, farm.letterhead, dateText(today), {}};
}

HandoutSection farmSection(const FarmDocument& farm) {
  HandoutSection section{"Farm and pumping plant", {}, {}, {}};
  section.tables.push_back(farmTable(farm.inputs.farm));
  const IrrigationCosts& plant = farm.inputs.plant.plant;
  if (plant.active) {
    section.tables.push_back(plantTable(plant));
  } else {
    section.paragraphs.emplace_back("No pumping plant has been applied, so water costs nothing here.");
  }
  if (farm.inputs.wishes.empty()) return section;
  HandoutTable wishes{"Wishes that every plan meets", {{"Wish", "", false, {}}}, {}};
  for (const DocumentWish& each : farm.inputs.wishes)
    wishes.rows.push_back({{wishText(each.wish)}, false});
  section.tables.push_back(std::move(wishes));
  return section;
}

HandoutSection cropsSection(const FarmDocument& farm, const CropScenario& library, CropsToTell which) {
  HandoutSection section{"Crops, prices and costs", {}, {}, {}};
  const Crops crops = cropsOf(farm, which);
  section.tables.push_back(pricesTable(crops, library));
  for (const HandoutTable& table :
       std::array{linesTable("Rates", rateLines, crops, asItIs),
                  linesTable("Costs and other returns", costLines, crops, money)}) {
    if (!table.rows.empty()) section.tables.push_back(table);
  }
  const bool sunflower = std::any_of(crops.begin(), crops.end(), [](const DocumentCrop* crop) {
    return cropKind(crop->name) == CropKind::sunflower;
  });
  section.paragraphs.emplace_back(sunflower
                                      ? "A unit is that of the yield; harvest of Sunflower is paid by 100 lb."
                                      : "A unit is that of the yield.");
  return section;
}

HandoutSection notesSection(const FarmDocument& farm) {
  return {"Notes", linesOf(farm.notes), {}, {}};
}

}  // namespace verdalis
