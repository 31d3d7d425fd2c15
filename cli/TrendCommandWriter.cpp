#include "cli/TrendCommandWriter.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/CsvWriter.h"
#include "cli/JsonWriter.h"
#include "cli/OptionsWriter.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr std::string_view csvFront = "step,value,value2,";

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

void writeFixedJson(std::ostream& out, const TrendResult& trend) {
  JsonStream json(out);
  json.beginObject();
  if (!trend.wishes.empty()) json.put("wishes", trend.wishes);
  putGridAndRanking(json, trend);
  json.end();
}

void writeFixedCsv(std::ostream& out, const TrendResult& trend) {
  writeCsvHead(out, csvFront);
  std::size_t count = 0;
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

void writeFixedTable(std::ostream& out, const TrendResult& trend) {
  std::size_t count = 0;
  std::vector<OptionResult> options;
  for (const TrendedOption& option : trend.options) {
    options.push_back(option.option);
    out << "Option " << ++count;
    for (std::size_t i = 0; i < option.trend.size(); ++i) {
      const TrendedValue& value = option.trend[i];
      out << (i == 0 ? ": " : "; ")
          << printable(value.variable + ": " + withUnits(value.value, value.prefix, value.suffix));
    }
    out << '\n';
  }
  out << '\n';
  EvaluationResult ranking = trend.evaluation;
  ranking.options = std::move(options);
  writeTable(out, ranking);
}

}  // namespace

TrendStepWriter::TrendStepWriter(std::ostream& out, const TrendResult& trend, std::size_t steps,
                                 std::string_view format)
    : out_(out), trend_(trend), steps_(steps), format_(format), json_(out) {
  if (format_ == "csv") writeCsvHead(out_, csvFront);
  if (format_ != "json") return;
  json_.beginObject();
  if (!trend.wishes.empty()) json_.put("wishes", trend.wishes);
  json_.put("kind", "variable");
  json_.put("variable", trend.variables.at(0).variable);
  json_.put("crop", trend.variables.at(0).crop);
  json_.beginList("steps");
}

void TrendStepWriter::add(const TrendStep& step) {
  ++count_;
  if (format_ == "json") {
    addJson(step);
  } else if (format_ == "csv") {
    addCsv(step);
  } else {
    addTable(step);
  }
}

void TrendStepWriter::addJson(const TrendStep& step) {
  json_.beginObject();
  json_.put("value", jsonNumber(step.value));
  json_.beginList("options");
  for (const OptionResult& option : step.result.options)
    json_.put(toJson(option));
  json_.end();
  json_.end();
}

void TrendStepWriter::addCsv(const TrendStep& step) {
  const std::string front = std::to_string(count_) + "," + csvNumber(step.value) + ",,";
  std::size_t number = 0;
  for (const OptionResult& option : step.result.options)
    writeCsvRows(out_, ++number, option, front);
}

void TrendStepWriter::addTable(const TrendStep& step) {
  if (count_ > 1) out_ << '\n';
  out_ << "Step " << count_ << " of " << steps_ << ": "
       << printable(nameOf(trend_.variables.at(0)) + ": " +
                    withUnits(step.value, trend_.prefix, trend_.suffix))
       << '\n';
  writeTable(out_, step.result);
}

void TrendStepWriter::finish() {
  if (format_ != "json") return;
  json_.end();
  json_.end();
}

void writeTrend(std::ostream& out, const TrendResult& result, std::string_view format) {
  if (!result.fixed) {
    TrendStepWriter writer(out, result, result.steps.size(), format);
    for (const TrendStep& step : result.steps)
      writer.add(step);
    writer.finish();
  } else if (format == "json") {
    writeFixedJson(out, result);
  } else if (format == "csv") {
    writeFixedCsv(out, result);
  } else {
    writeFixedTable(out, result);
  }
}

}  // namespace verdalis
