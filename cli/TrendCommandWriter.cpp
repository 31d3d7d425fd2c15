#include "cli/TrendCommandWriter.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/CsvWriter.h"
#include "cli/JsonWriter.h"
#include "cli/OptionsWriter.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

Json toJson(const TrendedOption& option) {
  Json json = toJson(option.option);
  Json& trend = json["trend"] = Json::array();
  for (const TrendedValue& value : option.trend) {
    trend.push_back({{"variable", value.variable},
                     {"value", jsonNumber(value.value)},
                     {"prefix", value.prefix},
                     {"suffix", value.suffix}});
  }
  return json;
}

void putSteps(JsonStream& json, const TrendResult& trend) {
  json.put("kind", "variable");
  json.put("variable", trend.variables.at(0).variable);
  json.put("crop", trend.variables.at(0).crop);
  json.beginList("steps");
  for (const TrendStep& step : trend.steps) {
    json.beginObject();
    json.put("value", jsonNumber(step.value));
    json.beginList("options");
    for (const OptionResult& option : step.result.options)
      json.put(toJson(option));
    json.end();
    json.end();
  }
  json.end();
}

void putGridAndRanking(JsonStream& json, const TrendResult& trend) {
  json.put("kind", "fixed");
  json.beginList("variables");
  for (const TrendedVariable& variable : trend.variables)
    json.put({{"variable", variable.variable}, {"crop", variable.crop}});
  json.end();
  json.beginList("grid");
  for (const TrendGridEntry& entry : trend.grid) {
    json.beginObject();
    json.beginList("values");
    for (const double value : entry.values)
      json.put(jsonNumber(value));
    json.end();
    json.put("option", toJson(entry.option));
    json.end();
  }
  json.end();
  json.beginList("options");
  for (const TrendedOption& option : trend.options)
    json.put(toJson(option));
  json.end();
}

void writeTrendJson(std::ostream& out, const TrendResult& trend) {
  JsonStream json(out);
  json.beginObject();
  if (!trend.wishes.empty()) json.put("wishes", trend.wishes);
  if (trend.fixed) {
    putGridAndRanking(json, trend);
  } else {
    putSteps(json, trend);
  }
  json.end();
}

void writeTrendCsv(std::ostream& out, const TrendResult& trend) {
  writeCsvHead(out, "step,value,value2,");
  std::size_t count = 0;
  for (const TrendStep& step : trend.steps) {
    const std::string front = std::to_string(++count) + "," + csvNumber(step.value) + ",,";
    std::size_t number = 0;
    for (const OptionResult& option : step.result.options)
      writeCsvRows(out, ++number, option, front);
  }
  for (const TrendGridEntry& entry : trend.grid) {
    const std::string second = entry.values.size() > 1 ? csvNumber(entry.values[1]) : "";
    writeCsvRows(out, 1, entry.option.option,
                 std::to_string(++count) + "," + csvNumber(entry.values.at(0)) + "," + second + ",");
  }
}

std::string withUnits(double value, const std::string& prefix, const std::string& suffix) {
  return prefix + formatNumber(value, "###,##0.00") + (suffix.empty() || suffix[0] == ' ' ? "" : " ") +
         suffix;
}

std::string nameOf(const TrendedVariable& variable) {
  return variable.crop.empty() ? variable.variable : variable.crop + " " + variable.variable;
}

void writeTrendTable(std::ostream& out, const TrendResult& trend) {
  std::size_t count = 0;
  for (const TrendStep& step : trend.steps) {
    if (count > 0) out << '\n';
    out << "Step " << ++count << " of " << trend.steps.size() << ": " << nameOf(trend.variables.at(0)) << ": "
        << withUnits(step.value, trend.prefix, trend.suffix) << '\n';
    writeTable(out, step.result);
  }
  if (!trend.fixed) return;
  std::vector<OptionResult> options;
  for (const TrendedOption& option : trend.options) {
    options.push_back(option.option);
    out << "Option " << ++count;
    for (std::size_t i = 0; i < option.trend.size(); ++i) {
      const TrendedValue& value = option.trend[i];
      out << (i == 0 ? ": " : "; ") << value.variable << ": "
          << withUnits(value.value, value.prefix, value.suffix);
    }
    out << '\n';
  }
  out << '\n';
  EvaluationResult ranking = trend.evaluation;
  ranking.options = std::move(options);
  writeTable(out, ranking);
}

}  // namespace

void writeTrend(std::ostream& out, const TrendResult& result, std::string_view format) {
  if (format == "json") {
    writeTrendJson(out, result);
  } else if (format == "csv") {
    writeTrendCsv(out, result);
  } else {
    writeTrendTable(out, result);
  }
}

}  // namespace verdalis
