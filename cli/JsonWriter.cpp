#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/OptionsWriter.h"

namespace verdalis {
namespace {

using Json = nlohmann::ordered_json;

/// A whole number is written without a decimal point, as a person would; it is the same 64-bit float either
/// way.
Json number(double value) {
  constexpr double exact = 1e15;
  const bool whole = std::fabs(value) < exact && value == std::trunc(value);
  if (whole && !(value == 0 && std::signbit(value))) return static_cast<std::int64_t>(value);
  return value;
}

Json toJson(const FieldResult& field) {
  return {{"acres", number(field.acres)},
          {"crop", field.crop},
          {"netDepth", number(field.netDepth)},
          {"grossDepth", number(field.grossDepth)},
          {"yield", number(field.yield)},
          {"yieldUnit", field.yieldUnit},
          {"price", number(field.price)},
          {"maxYield", number(field.maxYield)},
          {"soil", field.soil},
          {"costs", number(field.costs)},
          {"return", number(field.returns)},
          {"production", number(field.production)},
          {"irrigation", number(field.irrigation)},
          {"hours", number(field.hours)}};
}

Json toJson(const OptionResult& option) {
  Json fields = Json::array();
  for (const FieldResult& field : option.fields)
    fields.push_back(toJson(field));
  return {{"profit", number(option.profit)},
          {"costs", number(option.costs)},
          {"return", number(option.returns)},
          {"netVolume", number(option.netVolume)},
          {"fields", std::move(fields)}};
}

}  // namespace

void writeJson(std::ostream& out, const EvaluationResult& result) {
  Json options = Json::array();
  for (const OptionResult& option : result.options)
    options.push_back(toJson(option));
  const Json json = {{"waterSplits", result.waterSplits}, {"cropCombinations", result.cropCombinations},
                     {"candidates", result.candidates()}, {"efficiency", number(result.efficiency)},
                     {"seconds", number(result.seconds)}, {"options", std::move(options)}};
  constexpr int indent = 2;
  out << json.dump(indent, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace verdalis
