#include "cli/TrendCommandWriter.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>

#include "cli/OptionsWriter.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using Json = nlohmann::ordered_json;

/// A whole number is written without a decimal point, as in an evaluation.
Json number(double value) {
  constexpr double exact = 1e15;
  const bool whole = std::fabs(value) < exact && value == std::trunc(value);
  if (whole && !(value == 0 && std::signbit(value))) return static_cast<std::int64_t>(value);
  return value;
}

/// The options exactly as an evaluation writes them.
Json optionsJson(const EvaluationResult& result) {
  std::stringstream text;
  writeJson(text, result);
  return Json::parse(text)["options"];
}

EvaluationResult resultOf(const std::vector<OptionResult>& options) {
  EvaluationResult result;
  result.options = options;
  return result;
}

Json optionJson(const TrendedOption& option) {
  Json json = optionsJson(resultOf({option.option}))[0];
  json["trend"] = Json::array();
  for (const TrendedValue& value : option.trend) {
    json["trend"].push_back({{"variable", value.variable},
                             {"value", number(value.value)},
                             {"prefix", value.prefix},
                             {"suffix", value.suffix}});
  }
  return json;
}

Json variableJson(const TrendResult& trend) {
  Json steps = Json::array();
  for (const TrendStep& step : trend.steps)
    steps.push_back({{"value", number(step.value)}, {"options", optionsJson(step.result)}});
  return {{"kind", "variable"},
          {"variable", trend.variables.at(0).variable},
          {"crop", trend.variables.at(0).crop},
          {"steps", std::move(steps)}};
}

Json fixedJson(const TrendResult& trend) {
  Json variables = Json::array();
  for (const TrendedVariable& variable : trend.variables)
    variables.push_back({{"variable", variable.variable}, {"crop", variable.crop}});
  Json grid = Json::array();
  for (const TrendGridEntry& entry : trend.grid) {
    Json values = Json::array();
    for (const double value : entry.values)
      values.push_back(number(value));
    grid.push_back({{"values", std::move(values)}, {"option", optionJson(entry.option)}});
  }
  Json options = Json::array();
  for (const TrendedOption& option : trend.options)
    options.push_back(optionJson(option));
  return {{"kind", "fixed"},
          {"variables", std::move(variables)},
          {"grid", std::move(grid)},
          {"options", std::move(options)}};
}

void writeTrendJson(std::ostream& out, const TrendResult& trend) {
  constexpr int indent = 2;
  const Json json = trend.fixed ? fixedJson(trend) : variableJson(trend);
  out << json.dump(indent, ' ', false, Json::error_handler_t::replace) << '\n';
}

std::string csvNumber(double value) {
  return value == 0 && std::signbit(value) ? "-0" : generalText(value);
}

/// Writes the rows of an evaluation, each behind `front`; the head row only behind that of the head. A line
/// end inside quotes ends no row.
void writeRows(std::ostream& out, const EvaluationResult& result, const std::string& front, bool head) {
  std::ostringstream csv;
  writeCsv(csv, result);
  const std::string text = csv.str();
  bool quoted = false;
  bool first = true;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') quoted = !quoted;
    if (text[i] != '\n' || quoted) continue;
    if (first == head) out << front << text.substr(begin, i + 1 - begin);
    begin = i + 1;
    first = false;
  }
}

void writeTrendCsv(std::ostream& out, const TrendResult& trend) {
  writeRows(out, {}, "step,value,value2,", true);
  std::size_t count = 0;
  for (const TrendStep& step : trend.steps)
    writeRows(out, step.result, std::to_string(++count) + "," + csvNumber(step.value) + ",,", false);
  for (const TrendGridEntry& entry : trend.grid) {
    const std::string second = entry.values.size() > 1 ? csvNumber(entry.values[1]) : "";
    writeRows(out, resultOf({entry.option.option}),
              std::to_string(++count) + "," + csvNumber(entry.values.at(0)) + "," + second + ",", false);
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
