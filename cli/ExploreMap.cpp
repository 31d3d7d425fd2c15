#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "cli/CsvWriter.h"
#include "cli/ExploreArguments.h"
#include "cli/ExplorePlan.h"
#include "cli/ExploreQuestions.h"
#include "cli/TextTable.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "explore/inputMap.h"
#include "questions/mapAnswer.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

Json axisJson(const MapAxis& axis) {
  Json values = Json::array();
  for (const double value : axis.values)
    values.push_back(jsonNumber(value));
  return {{"input", inputName(axis.input)}, {"values", std::move(values)}};
}

/// Writes the rows of a map, each with one number per value of x.
template <class NumberAt>
void putRows(JsonStream& json, std::string_view key, const InputMap& map, NumberAt numberAt) {
  json.beginList(key);
  for (std::size_t row = 0; row < map.y.values.size(); ++row) {
    Json numbers = Json::array();
    for (std::size_t column = 0; column < map.x.values.size(); ++column)
      numbers.push_back(numberAt(map.at(row, column)));
    json.put(numbers);
  }
  json.end();
}

void writeJson(std::ostream& out, const Farm& farm, const InputMap& map) {
  JsonStream json(out);
  beginAnswer(json, farm);
  json.put("x", axisJson(map.x));
  json.put("y", axisJson(map.y));
  json.beginList("mixes");
  for (const Mix& mix : map.mixes)
    json.put(mixJson(mix));
  json.end();
  putRows(json, "profit", map, [&](std::size_t point) { return jsonNumber(map.profit[point]); });
  putRows(json, "mix", map, [&](std::size_t point) { return Json(map.mix[point]); });
  json.end();
}

void writeCsv(std::ostream& out, const InputMap& map) {
  out << "x,y,profit,mix" << fieldsCsvHead(FieldFigures::mix) << "\r\n";
  for (std::size_t row = 0; row < map.y.values.size(); ++row) {
    for (std::size_t column = 0; column < map.x.values.size(); ++column) {
      const std::size_t point = map.at(row, column);
      out << csvNumber(map.x.values[column]) << ',' << csvNumber(map.y.values[row]) << ','
          << csvNumber(map.profit[point]) << ',' << map.mix[point] << mixCsv(map.mixes[map.mix[point]])
          << "\r\n";
    }
  }
}

/// The letters for a mix: A to Z, then AA, AB and so on.
std::string lettersOf(std::size_t mix) {
  constexpr std::size_t letters = 26;
  std::string text;
  for (std::size_t rest = mix + 1; rest > 0; rest = (rest - 1) / letters)
    text.insert(text.begin(), static_cast<char>('A' + (rest - 1) % letters));
  return text;
}

std::string cellText(const InputMap& map, std::size_t point) {
  return lettersOf(map.mix[point]) + " " + dollarsText(map.profit[point]);
}

/// The number of table columns that fit side by side, each as wide as the widest cell.
std::size_t columnsABlock(const InputMap& map) {
  std::size_t cell = 0;
  for (std::size_t point = 0; point < map.profit.size(); ++point)
    cell = std::max(cell, textWidth(cellText(map, point)));
  for (const double value : map.x.values)
    cell = std::max(cell, textWidth(valueText(value)));
  std::size_t label = 0;
  for (const double value : map.y.values)
    label = std::max(label, textWidth(valueText(value)));
  constexpr std::size_t gap = 2;
  return std::max<std::size_t>(1, (mostTableColumns - std::min(label, mostTableColumns)) / (cell + gap));
}

void writeBlock(std::ostream& out, const InputMap& map, std::size_t first, std::size_t end) {
  std::vector<TextTable::Column> columns{{""}};
  for (std::size_t column = first; column < end; ++column)
    columns.push_back({valueText(map.x.values[column])});
  TextTable table(std::move(columns));
  for (std::size_t row = 0; row < map.y.values.size(); ++row) {
    std::vector<std::string> cells{valueText(map.y.values[row])};
    for (std::size_t column = first; column < end; ++column)
      cells.push_back(cellText(map, map.at(row, column)));
    table.add(std::move(cells));
  }
  table.write(out);
  out << '\n';
}

void writeTable(std::ostream& out, const InputMap& map) {
  out << "Across: " << printable(inputTitle(map.x.input))
      << "\nDown:   " << printable(inputTitle(map.y.input)) << "\n\n";
  const std::size_t width = columnsABlock(map);
  for (std::size_t first = 0; first < map.x.values.size(); first += width)
    writeBlock(out, map, first, std::min(first + width, map.x.values.size()));
  out << "The letter in front of a net return stands for what is grown then:\n";
  for (std::size_t mix = 0; mix < map.mixes.size(); ++mix)
    out << wrapped(lettersOf(mix) + "  " + mixText(map.mixes[mix]), 3) << '\n';
  out << '\n'
      << wrapped(
             "Each net return is that of the best plan. Water counts in whole acre-inches over the farm, "
             "and rain in whole inches, so a small farm shows steps.")
      << '\n';
}

class ExploreMap : public ExploreQuestion {
 public:
  [[nodiscard]] std::string_view name() const override { return "map"; }
  [[nodiscard]] std::string_view description() const override {
    return "The best plan over the values of two inputs";
  }

  void addOptions(CLI::App& command) override {
    addTextOption(command, "--x", "INPUT=FROM:TO:N", x_,
                  "An input and N evenly spaced values, such as \"price Corn=4:8:9\".\nThe inputs are water, "
                  "rain, efficiency, fuel, price CROP and max-yield CROP");
    addTextOption(command, "--y", "INPUT=FROM:TO:M", y_, "Another input");
  }

  void answer(const ExploreCall& call, std::ostream& out) override {
    if (!x_ || !y_) throw Refusal("A map needs two inputs (--x INPUT=FROM:TO:N and --y INPUT=FROM:TO:M).");
    const InputRange x = readInputRange("--x", *x_, call.farm);
    const InputRange y = readInputRange("--y", *y_, call.farm);
    if (x.input == y.input)
      throw Refusal("--y " + quoteForMessage(*y_) + ": A map needs two different inputs.");
    if (x.range.count > mostPoints / y.range.count) {
      throw Refusal("--y " + quoteForMessage(*y_) + ": A map has at most " +
                    formatNumber(static_cast<double>(mostPoints), "###,###") + " points.");
    }
    const InputMap map = answered(exploreMap(call.farm, {x.input, x.range.values()},
                                             {y.input, y.range.values()}, call.state, call.hooks));
    if (call.tell) {
      call.tell([&](std::optional<std::size_t> rows) { return mapSection(call.farm, map, rows); });
    }
    if (call.format == workbookFormat) {
      call.section = mapSection(call.farm, map);
    } else if (call.format == "json") {
      writeJson(out, call.farm, map);
    } else if (call.format == "csv") {
      writeCsv(out, map);
    } else {
      writeTable(out, map);
    }
  }

 private:
  std::optional<std::string> x_;
  std::optional<std::string> y_;
};

}  // namespace

std::unique_ptr<ExploreQuestion> makeExploreMap() {
  return std::make_unique<ExploreMap>();
}

}  // namespace verdalis
