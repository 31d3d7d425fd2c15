#include "results/detailsSection.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "handout/addCells.h"
#include "handout/styles.h"
#include "model/PricedField.h"
#include "results/detailCharts.h"
#include "results/passOver.h"

namespace verdalis {
namespace {

/// A field of the option with its prices.
struct DetailedField {
  std::size_t number = 0;  ///< From 1
  const Field& field;
  PricedField priced;
  CostParts parts;

  [[nodiscard]] std::string name() const {
    return "Field " + std::to_string(number) + ", " + field.theCrop->cropType;
  }
};

using Fields = std::vector<DetailedField>;

/// A line of the costs and returns: what it is, and its dollars for a field.
struct MoneyLine {
  const char* name;
  std::function<double(const DetailedField&)> dollars;
  bool strong = false;
};

double partsOf(const PumpingParts& parts) {
  return parts.labor + parts.fuel + parts.repairs;
}

template <auto part>
double productionPart(const DetailedField& field) {
  return field.parts.production.*part;
}

template <auto part>
double irrigationPart(const DetailedField& field) {
  return field.parts.irrigation.*part;
}

/// The lines in the order in which they are added up.
const std::array<MoneyLine, 21>& moneyLines() {
  using Production = ProductionParts;
  using Pumping = PumpingParts;
  using Detailed = DetailedField;
  static const std::array<MoneyLine, 21> lines{{
      {"Sales", [](const Detailed& field) { return field.priced.sales; }},
      {"Other returns", [](const Detailed& field) { return field.priced.returns - field.priced.sales; }},
      {"Returns", [](const Detailed& field) { return field.priced.returns; }, true},
      {"Nitrogen", productionPart<&Production::nitrogen>},
      {"Phosphorus", productionPart<&Production::phosphorus>},
      {"Seed", productionPart<&Production::seed>},
      {"Herbicide", productionPart<&Production::herbicide>},
      {"Insecticide", productionPart<&Production::insecticide>},
      {"Tillage", productionPart<&Production::tillage>},
      {"Planting", productionPart<&Production::planting>},
      {"Fertilizer application", productionPart<&Production::fertilizerApplication>},
      {"Herbicide application", productionPart<&Production::herbicideApplication>},
      {"Insecticide application", productionPart<&Production::insecticideApplication>},
      {"Harvest", productionPart<&Production::harvest>},
      {"Miscellaneous", productionPart<&Production::misc>},
      // A trend may replace the costs; they have no parts then.
      {"Production",
       [](const Detailed& field) {
         return field.field.theCrop->inputCosts.UseBatch ? field.priced.production.cost : 0;
       }},
      {"Irrigation labor", irrigationPart<&Pumping::labor>},
      {"Irrigation fuel", irrigationPart<&Pumping::fuel>},
      {"Irrigation repairs", irrigationPart<&Pumping::repairs>},
      {"Irrigation",
       [](const Detailed& field) {
         return partsOf(field.parts.irrigation) == 0 ? field.priced.irrigation.cost : 0;
       }},
      {"Costs", [](const Detailed& field) { return field.priced.costs; }, true},
  }};
  return lines;
}

Fields detailedFields(const FieldCollection& option, double efficiency) {
  Fields fields;
  for (const auto& field : option) {
    DetailedField detailed{fields.size() + 1, *field, {}, {}};
    detailed.priced = priceField({field->acres, field->Depth, field->annualRain}, *field->theCrop,
                                 *field->irrigCosts, efficiency, &detailed.parts);
    fields.push_back(std::move(detailed));
  }
  return fields;
}

HandoutTable fieldsTable(const Fields& fields, double efficiency) {
  HandoutTable table{"Fields",
                     {{"Field", "", true, wholeStyle},
                      {"Crop", "", false, {}},
                      {"Acres", "ac", true, acresStyle},
                      {"Net irrigation", "in", true, depthStyle},
                      {"Gross irrigation", "in", true, depthStyle},
                      {"Yield", "per acre", true, yieldStyle},
                      {"Unit", "", false, {}},
                      {"Price", "$/unit", true, perAcreStyle},
                      {"Pumping", "hours", true, wholeStyle}},
                     {}};
  for (const DetailedField& each : fields) {
    const Crop& crop = *each.field.theCrop;
    HandoutRow row;
    addNumber(row, static_cast<double>(each.number));
    addText(row, crop.cropType);
    addNumbers(row, {each.field.acres, each.field.Depth});
    addNumber(row, efficiency > 0 ? std::optional(each.field.Depth / efficiency) : std::nullopt);
    addNumber(row, each.priced.Yield);
    addText(row, crop.priceUnits());
    addNumber(row, crop.price);
    addNumber(row, each.field.irrigCosts->pumps(each.field.Depth) ? each.priced.irrigation.hours : 0);
    table.rows.push_back(std::move(row));
  }
  return table;
}

HandoutTable moneyTable(const Fields& fields) {
  HandoutTable table{"Costs and returns", {{"", "", false, {}}}, {}};
  for (const DetailedField& each : fields)
    table.columns.push_back({each.name(), "$/acre", true, perAcreStyle});
  table.columns.push_back({"Farm", "$", true, dollarsStyle});
  const auto add = [&](const MoneyLine& line) {
    HandoutRow row{{}, line.strong};
    addText(row, line.name);
    double sum = 0;
    bool any = line.strong;
    for (const DetailedField& each : fields) {
      const double dollars = line.dollars(each);
      sum += dollars;
      any = any || dollars != 0;
      addNumber(row, each.field.acres > 0 ? std::optional(dollars / each.field.acres) : std::nullopt);
    }
    addNumber(row, sum);
    if (any) table.rows.push_back(std::move(row));
  };
  for (const MoneyLine& line : moneyLines())
    add(line);
  add({"Net return", [](const DetailedField& field) { return field.priced.profit(); }, true});
  return table;
}

/// Whether two fields have the same charts.
bool sameCharts(const Field& a, const Field& b) {
  return a.theCrop->cropType == b.theCrop->cropType && a.Depth == b.Depth && a.acres == b.acres;
}

/// The charts of each field; fields that are alike have theirs once.
void addCharts(HandoutSection& section, const FieldCollection& option) {
  std::vector<const Field*> told;
  std::size_t number = 0;
  for (const auto& each : option) {
    ++number;
    const bool known =
        std::any_of(told.begin(), told.end(), [&](const Field* field) { return sameCharts(*field, *each); });
    if (known) continue;
    told.push_back(each.get());
    Field field = each->Copy();  // pricing stores its sums
    const std::string name = "Field " + std::to_string(number) + ": ";
    passOver([&] {
      Chart chart = returnChart(field);
      chart.title = name + "from returns to net return, per acre";
      section.charts.push_back(std::move(chart));
    });
    passOver([&] {
      std::optional<Chart> chart = yieldChart(field);
      if (!chart) return;
      chart->title = name + "yield of " + field.theCrop->cropType;
      section.charts.push_back(std::move(*chart));
    });
  }
}

}  // namespace

HandoutSection detailsSection(const std::string& title, const FieldCollection& option, double efficiency) {
  HandoutSection section{title, {}, {}, {}};
  passOver([&] {
    const Fields fields = detailedFields(option, efficiency);
    section.tables.push_back(fieldsTable(fields, efficiency));
    section.tables.push_back(moneyTable(fields));
  });
  addCharts(section, option);
  return section;
}

}  // namespace verdalis
