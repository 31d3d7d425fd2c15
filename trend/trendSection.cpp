#include "trend/trendSection.h"

#include <algorithm>
#include <string>
#include <utility>

#include "handout/addCells.h"
#include "handout/limitRows.h"
#include "handout/styles.h"
#include "results/OptionRows.h"
#include "results/figures.h"
#include "results/optionsSection.h"
#include "results/passOver.h"
#include "trend/exportText.h"

namespace verdalis {
namespace {

constexpr const char* fieldsNote = "Each field of each option. Amounts are dollars for the whole field.";

/// The values of a trend as the head of a column.
HandoutColumn columnOf(const TrendedInput& input) {
  const std::size_t begin = std::min(input.name.find_first_not_of(' '), input.name.size());
  return {input.name.substr(begin), input.units[0] + input.units[1], true, {input.units[0], "", 2, true}};
}

/// Adds the net return per acre, and of the farm, of a copy of an option.
void addNetReturns(HandoutRow& row, const FieldCollection& option, double efficiency) {
  std::optional<double> farm;
  std::optional<double> acre;
  passOver([&] {
    FieldCollection copy = option.Copy();  // pricing stores its sums
    farm = copy.getProfit(efficiency);
    acre = perAcre(*farm, acresOf(option));
  });
  addNumber(row, acre);
  addNumber(row, farm);
}

std::vector<HandoutColumn> returnColumns() {
  return {{"Net return", "$/acre", true, perAcreStyle}, {"Net return of the farm", "$", true, dollarsStyle}};
}

template <class Type>
void append(std::vector<Type>& list, const std::vector<Type>& more) {
  list.insert(list.end(), more.begin(), more.end());
}

const std::shared_ptr<FieldCollection>* bestOf(const TrendedStep& step) {
  for (const auto& option : step.options) {
    if (option != nullptr && option->Count() > 0) return &option;
  }
  return nullptr;
}

/// The processes of a fixed trend, told by one of its options.
std::vector<HandoutColumn> processColumns(const TrendOptionArray& options) {
  std::vector<HandoutColumn> columns;
  if (options.rows() == 0 || options.columns() == 0) return columns;
  const FieldCollection& option = *options.at(0, 0);
  for (std::size_t i = 0; i < option.theVariable.size() && i < option.theUnits.size(); ++i)
    columns.push_back(columnOf({option.theVariable[i], option.theUnits[i]}));
  return columns;
}

/// Calls `use(number, option)` for each option of a fixed trend, counted from 1.
template <class Use>
void forEachOption(const TrendOptionArray& options, Use use) {
  std::size_t number = 0;
  for (std::size_t i = 0; i < options.rows(); ++i) {
    for (std::size_t j = 0; j < options.columns(); ++j)
      use(++number, *options.at(i, j));
  }
}

/// The number of a step and the values that made its option.
HandoutRow frontOf(std::size_t number, const FieldCollection& option, std::size_t processes) {
  HandoutRow row;
  addNumber(row, static_cast<double>(number));
  for (std::size_t i = 0; i < processes; ++i)
    addNumber(row, i < option.theValue.size() ? std::optional(option.theValue[i]) : std::nullopt);
  return row;
}

}  // namespace

std::vector<TrendedStep> stepsOf(const TrendOutcome& outcome) {
  std::vector<TrendedStep> steps;
  steps.reserve(outcome.evaluations.size());
  for (std::size_t i = 0; i < outcome.evaluations.size(); ++i) {
    const TrendEvaluation& evaluation = outcome.evaluations[i];
    steps.push_back({evaluation.value, evaluation.efficiency, outcome.options(i)});
  }
  return steps;
}

HandoutSection variableTrendSection(const std::vector<TrendedStep>& steps, const TrendedInput& input,
                                    std::optional<std::size_t> rows) {
  HandoutSection section{"Trend", {}, {}, {}};
  HandoutTable table{"", {{"Step", "", true, wholeStyle}, columnOf(input)}, {}};
  append(table.columns, returnColumns());
  table.columns.push_back({"Crops and acres", "", false, {}});
  std::vector<TrendBest> bests;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    HandoutRow row;
    addNumbers(row, {static_cast<double>(i + 1), steps[i].value});
    const auto* const best = bestOf(steps[i]);
    if (best != nullptr) {
      addNetReturns(row, **best, steps[i].efficiency);
      addText(row, cropsWithAcres(**best));
    }
    bests.push_back(
        {steps[i].value, best == nullptr ? nullptr : std::make_shared<FieldCollection>((*best)->Copy())});
    table.rows.push_back(std::move(row));
  }
  passOver([&] {
    if (steps.size() < 2) return;
    Chart chart = variableTrendChart(bests, input, std::nullopt);
    section.paragraphs.push_back(chart.summary);
    section.charts.push_back(std::move(chart));
  });
  section.tables.push_back(std::move(table));
  limitRows(section, rows, "steps");
  return section;
}

HandoutSection variableTrendFieldsSection(const std::vector<TrendedStep>& steps, const TrendedInput& input) {
  HandoutTable table{"", {{"Step", "", true, wholeStyle}, columnOf(input)}, {}};
  append(table.columns, optionFieldsColumns());
  for (std::size_t i = 0; i < steps.size(); ++i) {
    std::size_t number = 0;
    for (const auto& option : steps[i].options) {
      if (option == nullptr || option->Count() == 0) continue;
      HandoutRow front;
      addNumbers(front, {static_cast<double>(i + 1), steps[i].value});
      addOptionFields(table, ++number, *option, steps[i].efficiency, front.cells);
    }
  }
  return {"Trend fields", {fieldsNote}, {}, {std::move(table)}};
}

HandoutSection fixedTrendSection(const TrendOptionArray& options, double efficiency,
                                 std::optional<std::size_t> rows) {
  HandoutSection section{"Trend", {}, {}, {}};
  const std::vector<HandoutColumn> processes = processColumns(options);
  HandoutTable table{"", {{"Step", "", true, wholeStyle}}, {}};
  append(table.columns, processes);
  append(table.columns, returnColumns());
  table.columns.push_back({"Crops and acres", "", false, {}});
  forEachOption(options, [&](std::size_t number, const FieldCollection& option) {
    HandoutRow row = frontOf(number, option, processes.size());
    addNetReturns(row, option, efficiency);
    addText(row, cropsWithAcres(option));
    table.rows.push_back(std::move(row));
  });
  passOver([&] {
    if (table.rows.size() < 2) return;
    Chart chart = fixedTrendChart(options).chart;
    section.paragraphs.push_back(chart.summary);
    section.charts.push_back(std::move(chart));
  });
  section.tables.push_back(std::move(table));
  limitRows(section, rows, "steps");
  return section;
}

HandoutSection fixedTrendFieldsSection(const TrendOptionArray& options, double efficiency) {
  const std::vector<HandoutColumn> processes = processColumns(options);
  HandoutTable table{"", {{"Step", "", true, wholeStyle}}, {}};
  append(table.columns, processes);
  append(table.columns, optionFieldsColumns());
  forEachOption(options, [&](std::size_t number, const FieldCollection& option) {
    addOptionFields(table, 1, option, efficiency, frontOf(number, option, processes.size()).cells);
  });
  return {"Trend fields", {fieldsNote}, {}, {std::move(table)}};
}

}  // namespace verdalis
