#include <string>
#include <string_view>
#include <utility>

#include "document/documentKeys.h"
#include "document/farmText.h"
#include "document/jsonNumber.h"
#include "text/version.h"

namespace verdalis {
namespace {

void putUnknown(Json& object, const UnknownKeys& unknown) {
  for (const auto& [key, value] : unknown)
    object[key] = Json::parse(value);
}

template <class Owner>
Json ofKeys(std::span<const DocumentKey<Owner>> keys, const Owner& owner) {
  struct ToJson {
    Json operator()(double value) const { return jsonNumber(value); }
    Json operator()(bool value) const { return value; }
    Json operator()(const std::string& value) const { return value; }
    Json operator()(const Number& value) const {
      return value.isEmpty() ? Json(nullptr) : jsonNumber(static_cast<double>(value));
    }
  };
  Json object = Json::object();
  for (const DocumentKey<Owner>& each : keys)
    object.push_back({std::string(each.key), each.field.visit(owner, ToJson())});
  return object;
}

Json toJson(const DocumentFarm& farm) {
  Json object = {{"txtArea", farm.txtArea},       {"txtMax", farm.txtMax},
                 {"txtAnnRain", farm.txtAnnRain}, {"txtEff", farm.txtEff},
                 {"txtSoil", farm.txtSoil},       {"split", nullptr},
                 {"noSplit", farm.noSplit},       {"fallowNegatives", farm.fallowNegatives},
                 {"txtSize", farm.txtSize}};
  if (farm.split) object["split"] = *farm.split;
  putUnknown(object, farm.unknown);
  return object;
}

Json toJson(const DocumentPlant& plant) {
  Json object = ofKeys(plantKeys(), plant.plant);
  putUnknown(object, plant.unknown);
  return object;
}

Json toJson(const DocumentCrop& crop) {
  Json object = {{"name", crop.name}, {"chosen", crop.chosen}, {"price", crop.price}};
  if (crop.priceInForce) object["priceInForce"] = jsonNumber(*crop.priceInForce);
  object["maxYield"] = crop.maxYield;
  if (crop.maxYieldInForce) object["maxYieldInForce"] = jsonNumber(*crop.maxYieldInForce);
  Json costs = ofKeys(costKeys(), crop.costs);
  putUnknown(costs, crop.unknownCosts);
  object["costs"] = std::move(costs);
  putUnknown(object, crop.unknown);
  return object;
}

Json toJson(const DocumentOptions& options) {
  Json object = {{"keep", options.keep}, {"factor", options.factor}};
  if (options.mixes) object["mixes"] = true;
  putUnknown(object, options.unknown);
  return object;
}

Json toJson(const DocumentWish& entry) {
  const Wish& wish = entry.wish;
  Json object = {{"kind", wishKinds.at(static_cast<std::size_t>(wish.kind))}};
  if (namesCrop(wish.kind)) object["crop"] = wish.crop;
  if (namesField(wish.kind)) object["field"] = wish.field;
  if (hasAmount(wish.kind)) object["amount"] = jsonNumber(wish.amount);
  putUnknown(object, entry.unknown);
  return object;
}

Json toJson(const DocumentSeason& season) {
  Json object = {
      {"name", season.name}, {"rain", jsonNumber(season.rain)}, {"weight", jsonNumber(season.weight)}};
  putUnknown(object, season.unknown);
  return object;
}

Json toJson(const DocumentProcess& process) {
  Json object = {{"crop", process.crop},
                 {"variable", trendVariableNames.at(process.variable)},
                 {"values", trendValueKinds.at(process.values)},
                 {"minimum", process.minimum},
                 {"maximum", process.maximum},
                 {"steps", process.steps},
                 {"list", process.list},
                 {"file", process.file},
                 {"shown", process.shown}};
  putUnknown(object, process.unknown);
  return object;
}

Json toJson(const EmbeddedCrop& crop) {
  Json object = {{"name", crop.name}, {"text", crop.text}};
  putUnknown(object, crop.unknown);
  return object;
}

Json toJson(const SavedOptionField& field) {
  Json object = {{"crop", field.crop},
                 {"acres", jsonNumber(field.acres)},
                 {"netDepth", jsonNumber(field.depth)},
                 {"rain", jsonNumber(field.rain)},
                 {"price", jsonNumber(field.price)},
                 {"maxYield", jsonNumber(field.maxYield)},
                 {"normalFactor", jsonNumber(field.normalFactor)},
                 {"yield", jsonNumber(field.yield)},
                 {"units", field.units},
                 {"soil", field.soil},
                 {"costs", jsonNumber(field.costs)},
                 {"return", jsonNumber(field.returns)}};
  if (field.trendedCosts) object["trendedProductionCosts"] = jsonNumber(*field.trendedCosts);
  if (field.trendedIrrigation) object["trendedIrrigationCosts"] = jsonNumber(*field.trendedIrrigation);
  if (field.ownCosts) object["ownCosts"] = ofKeys(costKeys(), *field.ownCosts);
  if (field.ownPlant) object["ownPlant"] = ofKeys(plantKeys(), *field.ownPlant);
  putUnknown(object, field.unknown);
  return object;
}

Json toJson(const SavedOptionTrend& trend) {
  Json object = {{"variable", trend.variable},
                 {"value", jsonNumber(trend.value)},
                 {"before", trend.before},
                 {"after", trend.after}};
  putUnknown(object, trend.unknown);
  return object;
}

Json toJson(const SavedOption& saved);

template <class List>
Json listOf(const List& values) {
  Json list = Json::array();
  for (const auto& value : values) {
    if constexpr (requires { *value; }) {
      list.push_back(toJson(*value));
    } else {
      list.push_back(toJson(value));
    }
  }
  return list;
}

void putInputs(Json& object, const FarmInputs& inputs) {
  object["farm"] = toJson(inputs.farm);
  object["plant"] = toJson(inputs.plant);
  object["crops"] = listOf(inputs.crops);
  object["options"] = toJson(inputs.options);
  object["wishes"] = listOf(inputs.wishes);
}

Json toJson(const FarmInputs& inputs) {
  Json object = Json::object();
  putInputs(object, inputs);
  putUnknown(object, inputs.unknown);
  return object;
}

Json toJson(const SavedOption& saved) {
  Json option = {{"costs", jsonNumber(saved.costs)}, {"fields", listOf(saved.fields)}};
  if (!saved.trend.empty()) option["trend"] = listOf(saved.trend);
  putUnknown(option, saved.unknownOption);
  Json object = {{"name", saved.name}, {"option", std::move(option)}, {"inputs", toJson(saved.inputs)}};
  putUnknown(object, saved.unknown);
  return object;
}

std::string textOf(const Json& object) {
  return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string writeFarm(const FarmDocument& document) {
  Json object = {{"format", "verdalis-farm"},  {"version", farmFileVersion},
                 {"program", versionNumber()}, {"name", document.name},
                 {"notes", document.notes},    {"letterhead", document.letterhead}};
  putInputs(object, document.inputs);
  object["seasons"] = listOf(document.seasons);
  object["trend"] = listOf(document.trend);
  object["saved"] = listOf(document.saved);
  object["customCrops"] = listOf(document.customCrops);
  putUnknown(object, document.unknown);
  return textOf(object);
}

std::string writeInputs(const FarmInputs& inputs) {
  return textOf(toJson(inputs));
}

}  // namespace verdalis
