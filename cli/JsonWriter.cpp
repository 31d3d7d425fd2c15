#include "cli/JsonWriter.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <utility>

#include "cli/OptionsWriter.h"
#include "cli/relaxation.h"

namespace verdalis {
namespace {

constexpr int indent = 2;

/// The text of a piece; invalid UTF-8 is replaced.
std::string dump(const Json& value) {
  return value.dump(indent, ' ', false, Json::error_handler_t::replace);
}

Json toJson(const FieldResult& field) {
  return {{"acres", jsonNumber(field.acres)},
          {"crop", field.crop},
          {"netDepth", jsonNumber(field.netDepth)},
          {"grossDepth", jsonNumber(field.grossDepth)},
          {"yield", jsonNumber(field.yield)},
          {"yieldUnit", field.yieldUnit},
          {"price", jsonNumber(field.price)},
          {"maxYield", jsonNumber(field.maxYield)},
          {"soil", field.soil},
          {"costs", jsonNumber(field.costs)},
          {"return", jsonNumber(field.returns)},
          {"production", jsonNumber(field.production)},
          {"irrigation", jsonNumber(field.irrigation)},
          {"hours", jsonNumber(field.hours)}};
}

void writeSteps(JsonStream& json, const Explanation& explanation) {
  json.beginList("steps");
  for (const ExplainedStep& step : explanation.steps) {
    json.put({{"what", step.what},
              {"formula", step.formula},
              {"value", jsonNumber(step.value)},
              {"unit", step.unit}});
  }
  json.end();
}

}  // namespace

Json toJson(const OptionResult& option) {
  Json fields = Json::array();
  for (const FieldResult& field : option.fields)
    fields.push_back(toJson(field));
  return {{"profit", jsonNumber(option.profit)},
          {"costs", jsonNumber(option.costs)},
          {"return", jsonNumber(option.returns)},
          {"netVolume", jsonNumber(option.netVolume)},
          {"fields", std::move(fields)}};
}

Json headOf(const EvaluationResult& result) {
  return {{"waterSplits", result.waterSplits},
          {"cropCombinations", result.cropCombinations},
          {"candidates", result.candidates()},
          {"efficiency", jsonNumber(result.efficiency)}};
}

std::string jsonLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void JsonStream::begin(std::string_view key, char open, char close) {
  startEntry(key);
  out_ << open;
  open_.push_back({close});
}

void JsonStream::end() {
  const Open ended = open_.back();
  open_.pop_back();
  if (!ended.empty) startLine();
  out_ << ended.close;
  if (open_.empty()) out_ << '\n';
}

void JsonStream::put(std::string_view key, const Json& value) {
  startEntry(key);
  const std::string text = dump(value);
  std::size_t from = 0;
  // Line ends within strings are escaped, so each one here ends a line of the text.
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', from)) {
    out_ << std::string_view(text).substr(from, end - from);
    startLine();
    from = end + 1;
  }
  out_ << std::string_view(text).substr(from);
}

void JsonStream::startEntry(std::string_view key) {
  if (open_.empty()) return;
  if (!open_.back().empty) out_ << ',';
  open_.back().empty = false;
  startLine();
  if (open_.back().close == '}') out_ << dump(key) << ": ";
}

void JsonStream::startLine() {
  out_ << '\n' << std::string(indent * open_.size(), ' ');
}

void writeJson(std::ostream& out, const EvaluationResult& result) {
  JsonStream json(out);
  json.beginObject();
  const Json head = headOf(result);
  for (const auto& [key, value] : head.items())
    json.put(key, value);
  json.put("seconds", jsonNumber(result.seconds));
  if (!result.wishes.empty()) json.put("wishes", result.wishes);
  json.beginList("options");
  for (const OptionResult& option : result.options)
    json.put(toJson(option));
  json.end();
  if (result.relax) json.put("relax", relaxJson(*result.relax));
  if (result.explanation) writeSteps(json, *result.explanation);
  json.end();
}

}  // namespace verdalis
