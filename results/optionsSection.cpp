#include "results/optionsSection.h"

#include <algorithm>
#include <string>
#include <utility>

#include "charts/Chart.h"
#include "handout/addCells.h"
#include "handout/limitRows.h"
#include "handout/styles.h"
#include "results/OptionResult.h"
#include "results/OptionRows.h"
#include "results/figures.h"
#include "results/passOver.h"

namespace verdalis {
namespace {

std::optional<double> rankOf(std::size_t number) {
  return number > 0 ? std::optional(static_cast<double>(number)) : std::nullopt;
}

/// "Field 2, 31.25 ac"; without the acres where the options divide the land differently.
std::string fieldHead(const OptionRows& rows, std::size_t field) {
  std::optional<double> acres;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].fields < rows.fields()) continue;
    const double part = rows[row].parts[field];
    if (acres && *acres != part) return "Field " + std::to_string(field + 1);
    acres = part;
  }
  std::string head = "Field " + std::to_string(field + 1);
  passOver([&] {
    if (!acres) return;
    std::string text = styled(*acres, acresStyle);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    head += ", " + text + " ac";
  });
  return head;
}

/// The variables of a trend with their units, of the option that has the most of them.
std::vector<HandoutColumn> trendColumns(const ListedOptions& list) {
  const FieldCollection* most = nullptr;
  for (const auto& option : list.options) {
    if (most == nullptr || option->theVariable.size() > most->theVariable.size()) most = option.get();
  }
  std::vector<HandoutColumn> columns;
  for (std::size_t i = 0; most != nullptr && i < most->theVariable.size(); ++i) {
    const UnitsPair units = i < most->theUnits.size() ? most->theUnits[i] : UnitsPair();
    columns.push_back({most->theVariable[i], units[0] + units[1], true, {units[0], "", 2, true}});
  }
  return columns;
}

std::string noteOf(const ListedOptions& list, const OptionRows& rows) {
  bool undivided = false;
  for (std::size_t row = 0; row < rows.size(); ++row)
    undivided = undivided || rows[row].fields < rows.fields();
  std::string note =
      "Irrigation is told in gross inches. Costs include irrigation costs; net returns are those to land, "
      "management, and irrigation equipment.";
  if (undivided) note += " An option with one field only uses the whole farm as one.";
  if (std::find(list.numbers.begin(), list.numbers.end(), 0U) != list.numbers.end())
    note += " An option without a rank is not among those kept.";
  return note;
}

}  // namespace

ListedOptions ListedOptions::inOrder(const std::vector<std::shared_ptr<FieldCollection>>& options,
                                     double efficiency, bool trend) {
  ListedOptions list{{}, {}, efficiency, trend};
  for (const auto& option : options) {
    if (option == nullptr || option->Count() == 0) continue;
    list.options.push_back(option);
    list.numbers.push_back(list.options.size());
  }
  return list;
}

HandoutSection optionsSection(const ListedOptions& list, std::optional<std::size_t> rows) {
  const OptionRows facts(list.options, list.efficiency);
  HandoutSection section{"Options", {noteOf(list, facts)}, {}, {}};
  HandoutTable table;
  table.columns = {{list.trend ? "Option" : "Rank", "", true, wholeStyle},
                   {"Crops and acres", "", false, {}}};
  const std::vector<HandoutColumn> variables = trendColumns(list);
  table.columns.insert(table.columns.end(), variables.begin(), variables.end());
  for (std::size_t field = 0; field < facts.fields(); ++field)
    table.columns.push_back({fieldHead(facts, field), "gross in", true, depthStyle});
  table.columns.push_back({"Net return", "$/acre", true, perAcreStyle});
  table.columns.push_back({"Net return of the farm", "$", true, dollarsStyle});
  table.columns.push_back({list.trend ? "Behind the highest" : "Behind the best", "$", true, dollarsStyle});
  for (std::size_t i = 0; i < facts.size(); ++i) {
    const OptionRows::Row& option = facts[i];
    HandoutRow row;
    addNumber(row, rankOf(list.numbers[i]));
    addText(row, facts.mixText(option.mix));
    const std::vector<double>& values = list.options[i]->theValue;
    for (std::size_t variable = 0; variable < variables.size(); ++variable)
      addNumber(row, variable < values.size() ? std::optional(values[variable]) : std::nullopt);
    for (std::size_t field = 0; field < facts.fields(); ++field) {
      const bool known = field < option.fields && option.gross[field] >= 0;
      addNumber(row, known ? std::optional(option.gross[field]) : std::nullopt);
    }
    std::optional<double> acre;
    passOver([&] {
      if (option.profit) acre = perAcre(*option.profit, option.acres);
    });
    addNumber(row, acre);
    addNumber(row, option.profit);
    addNumber(row, facts.behind(i));
    row.strong = !list.trend && facts.behind(i) == 0.0;
    table.rows.push_back(std::move(row));
  }
  section.tables.push_back(std::move(table));
  limitRows(section, rows, "options");
  return section;
}

std::vector<HandoutColumn> optionFieldsColumns() {
  return {{"Option", "", true, wholeStyle},
          {"Field", "", true, wholeStyle},
          {"Crop", "", false, {}},
          {"Acres", "ac", true, acresStyle},
          {"Net irrigation", "in", true, depthStyle},
          {"Gross irrigation", "in", true, depthStyle},
          {"Yield", "per acre", true, yieldStyle},
          {"Unit of the yield", "", false, {}},
          {"Price", "$/unit", true, perAcreStyle},
          {"Maximum yield", "per acre", true, yieldStyle},
          {"Soil", "", false, {}},
          {"Costs", "$", true, dollarsStyle},
          {"Return", "$", true, dollarsStyle},
          {"Net return", "$", true, dollarsStyle},
          {"Costs of the option", "$", true, dollarsStyle},
          {"Return of the option", "$", true, dollarsStyle},
          {"Net return of the option", "$", true, dollarsStyle}};
}

void addOptionFields(HandoutTable& table, std::size_t number, const FieldCollection& option,
                     double efficiency, const std::vector<HandoutCell>& front) {
  FieldCollection copy = option.Copy();  // pricing stores its sums
  std::optional<OptionResult> known;
  passOver([&] { known = describeOption(copy, efficiency); });
  for (std::size_t i = 0; i < copy.mCol.size(); ++i) {
    HandoutRow row{front, false};
    addNumber(row, rankOf(number));
    addNumber(row, static_cast<double>(i + 1));
    if (known) {
      const FieldResult& field = known->fields[i];
      addText(row, field.crop);
      addNumbers(row, {field.acres, field.netDepth, field.grossDepth, field.yield});
      addText(row, field.yieldUnit);
      addNumbers(row, {field.price, field.maxYield});
      addText(row, field.soil);
      addNumbers(row,
                 {field.costs, field.returns, field.profit(), known->costs, known->returns, known->profit});
    } else {
      const Field& field = *copy.mCol[i];
      addText(row, field.theCrop->cropType);
      addNumbers(row, {field.acres, field.Depth});
    }
    table.rows.push_back(std::move(row));
  }
}

HandoutSection optionFieldsSection(const ListedOptions& list) {
  HandoutTable table{"", optionFieldsColumns(), {}};
  for (std::size_t i = 0; i < list.options.size(); ++i)
    addOptionFields(table, list.numbers[i], *list.options[i], list.efficiency);
  return {"Fields", {"Each field of each option. Amounts are dollars for the whole field."}, {}, {table}};
}

}  // namespace verdalis
