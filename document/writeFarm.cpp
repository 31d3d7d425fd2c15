#include <span>
#include <string>

#include "document/JsonBuilder.h"
#include "document/documentKeys.h"
#include "document/farmText.h"
#include "text/version.h"

namespace verdalis {
namespace {

/// Ends an object with the keys that the program does not know.
void end(JsonBuilder& out, const UnknownKeys& unknown) {
  for (const auto& [key, value] : unknown) {
    out.key(key);
    out.json(value);
  }
  out.endObject();
}

void putIfAny(JsonBuilder& out, std::string_view key, const std::optional<double>& value) {
  if (value) out.put(key, *value);
}

template <class Owner>
void putKeys(JsonBuilder& out, std::span<const DocumentKey<Owner>> keys, const Owner& owner) {
  struct PutValue {
    JsonBuilder& out;
    void operator()(double value) const { out.value(value); }
    void operator()(bool value) const { out.value(value); }
    void operator()(const std::string& value) const { out.value(value); }
    void operator()(const Number& value) const {
      if (value.isEmpty()) {
        out.null();
      } else {
        out.value(static_cast<double>(value));
      }
    }
  };
  for (const DocumentKey<Owner>& each : keys) {
    out.key(each.key);
    each.field.visit(owner, PutValue{out});
  }
}

void write(JsonBuilder& out, const DocumentFarm& farm) {
  out.beginObject();
  out.put("txtArea", farm.txtArea);
  out.put("txtMax", farm.txtMax);
  out.put("txtAnnRain", farm.txtAnnRain);
  out.put("txtEff", farm.txtEff);
  out.put("txtSoil", farm.txtSoil);
  out.key("split");
  if (farm.split) {
    out.value(static_cast<double>(*farm.split));
  } else {
    out.null();
  }
  out.put("noSplit", farm.noSplit);
  out.put("fallowNegatives", farm.fallowNegatives);
  out.put("txtSize", farm.txtSize);
  end(out, farm.unknown);
}

void write(JsonBuilder& out, const DocumentPlant& plant) {
  out.beginObject();
  putKeys(out, plantKeys(), plant.plant);
  end(out, plant.unknown);
}

void write(JsonBuilder& out, const DocumentCrop& crop) {
  out.beginObject();
  out.put("name", crop.name);
  out.put("chosen", crop.chosen);
  out.put("price", crop.price);
  putIfAny(out, "priceInForce", crop.priceInForce);
  out.put("maxYield", crop.maxYield);
  putIfAny(out, "maxYieldInForce", crop.maxYieldInForce);
  out.key("costs");
  out.beginObject();
  putKeys(out, costKeys(), crop.costs);
  end(out, crop.unknownCosts);
  end(out, crop.unknown);
}

void write(JsonBuilder& out, const DocumentOptions& options) {
  out.beginObject();
  out.put("keep", options.keep);
  out.put("factor", static_cast<double>(options.factor));
  if (options.mixes) out.put("mixes", true);
  end(out, options.unknown);
}

void write(JsonBuilder& out, const DocumentWish& entry) {
  const Wish& wish = entry.wish;
  out.beginObject();
  out.put("kind", wishKinds.at(static_cast<std::size_t>(wish.kind)));
  if (namesCrop(wish.kind)) out.put("crop", wish.crop);
  if (namesField(wish.kind)) out.put("field", static_cast<double>(wish.field));
  if (hasAmount(wish.kind)) out.put("amount", wish.amount);
  end(out, entry.unknown);
}

void write(JsonBuilder& out, const DocumentSeason& season) {
  out.beginObject();
  out.put("name", season.name);
  out.put("rain", season.rain);
  out.put("weight", season.weight);
  end(out, season.unknown);
}

void write(JsonBuilder& out, const DocumentProcess& process) {
  out.beginObject();
  out.put("crop", process.crop);
  out.put("variable", trendVariableNames.at(process.variable));
  out.put("values", trendValueKinds.at(process.values));
  out.put("minimum", process.minimum);
  out.put("maximum", process.maximum);
  out.put("steps", process.steps);
  out.put("list", process.list);
  out.put("file", process.file);
  out.put("shown", process.shown);
  end(out, process.unknown);
}

void write(JsonBuilder& out, const EmbeddedCrop& crop) {
  out.beginObject();
  out.put("name", crop.name);
  out.put("text", crop.text);
  end(out, crop.unknown);
}

void write(JsonBuilder& out, const SavedOptionField& field) {
  out.beginObject();
  out.put("crop", field.crop);
  out.put("acres", field.acres);
  out.put("netDepth", field.depth);
  out.put("rain", field.rain);
  out.put("price", field.price);
  out.put("maxYield", field.maxYield);
  out.put("normalFactor", field.normalFactor);
  out.put("yield", field.yield);
  out.put("units", field.units);
  out.put("soil", field.soil);
  out.put("costs", field.costs);
  out.put("return", field.returns);
  putIfAny(out, "trendedProductionCosts", field.trendedCosts);
  putIfAny(out, "trendedIrrigationCosts", field.trendedIrrigation);
  if (field.ownCosts) {
    out.key("ownCosts");
    out.beginObject();
    putKeys(out, costKeys(), *field.ownCosts);
    end(out, field.unknownOwnCosts);
  }
  if (field.ownPlant) {
    out.key("ownPlant");
    out.beginObject();
    putKeys(out, plantKeys(), *field.ownPlant);
    end(out, field.unknownOwnPlant);
  }
  end(out, field.unknown);
}

void write(JsonBuilder& out, const SavedOptionTrend& trend) {
  out.beginObject();
  out.put("variable", trend.variable);
  out.put("value", trend.value);
  out.put("before", trend.before);
  out.put("after", trend.after);
  end(out, trend.unknown);
}

void write(JsonBuilder& out, const SavedOption& saved);

template <class List>
void putList(JsonBuilder& out, std::string_view key, const List& values) {
  out.key(key);
  out.beginList();
  for (const auto& value : values) {
    if constexpr (requires { *value; }) {
      write(out, *value);
    } else {
      write(out, value);
    }
  }
  out.endList();
}

void putInputs(JsonBuilder& out, const FarmInputs& inputs) {
  out.key("farm");
  write(out, inputs.farm);
  out.key("plant");
  write(out, inputs.plant);
  putList(out, "crops", inputs.crops);
  out.key("options");
  write(out, inputs.options);
  putList(out, "wishes", inputs.wishes);
}

void write(JsonBuilder& out, const FarmInputs& inputs) {
  out.beginObject();
  putInputs(out, inputs);
  end(out, inputs.unknown);
}

void write(JsonBuilder& out, const SavedOption& saved) {
  out.beginObject();
  out.put("name", saved.name);
  out.key("option");
  out.beginObject();
  out.put("costs", saved.costs);
  putList(out, "fields", saved.fields);
  if (!saved.trend.empty()) putList(out, "trend", saved.trend);
  end(out, saved.unknownOption);
  out.key("inputs");
  write(out, saved.inputs);
  end(out, saved.unknown);
}

}  // namespace

std::string writeFarm(const FarmDocument& document) {
  JsonBuilder out;
  out.beginObject();
  out.put("format", farmFileFormat);
  out.put("version", static_cast<double>(farmFileVersion));
  out.put("program", versionNumber());
  out.put("name", document.name);
  out.put("notes", document.notes);
  out.put("letterhead", document.letterhead);
  putInputs(out, document.inputs);
  putList(out, "seasons", document.seasons);
  putList(out, "trend", document.trend);
  putList(out, "saved", document.saved);
  putList(out, "customCrops", document.customCrops);
  end(out, document.unknown);
  return out.take();
}

std::string writeInputs(const FarmInputs& inputs) {
  JsonBuilder out;
  write(out, inputs);
  return out.take();
}

}  // namespace verdalis
