#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/documentKeys.h"
#include "document/farmText.h"
#include "document/jsonLines.h"
#include "model/LandDivision.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/quote.h"
#include "text/version.h"

namespace verdalis {
namespace {

// Sorted keys, because an object with very many keys in insertion order would take hours.
using Parsed = nlohmann::json;
using Path = std::vector<JsonStep>;

/// Nesting that no farm file reaches. Deeper text could exhaust the stack.
constexpr std::size_t deepestNesting = 64;

/// Most fields that an option can have.
constexpr std::size_t mostFields = 4;

[[noreturn]] void refuse(const std::string& message) {
  throw RunTimeError(ErrorNumber::invalidCall, message);
}

/// The text being read, for messages.
class Source {
 public:
  explicit Source(std::string_view text) : text_(text) {}

  [[noreturn]] void damaged(const Path& path, const std::string& reason) const {
    refuse("The farm file is damaged at line " + std::to_string(lineOf(text_, path)) + ": " + reason);
  }

 private:
  std::string_view text_;
};

/// Reads the keys of an object. A key that is missing keeps the value that the target has.
class ObjectReader {
 public:
  ObjectReader(const Source& source, const Parsed& value, Path path)
      : source_(source), value_(value), path_(std::move(path)) {
    if (!value.is_object()) damaged("Here must be an object in braces.");
  }

  void read(std::string_view key, std::string& target) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    if (!value->is_string()) damaged(key, "must be a text.");
    target = value->get_ref<const std::string&>();
  }

  void read(std::string_view key, bool& target) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    if (!value->is_boolean()) damaged(key, "must be true or false.");
    target = value->get<bool>();
  }

  void read(std::string_view key, double& target) {
    if (const Parsed* const value = take(key)) target = number(key, *value);
  }

  void read(std::string_view key, Number& target) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    if (value->is_null()) {
      target.clear();
    } else {
      target = number(key, *value);
    }
  }

  void read(std::string_view key, std::optional<double>& target) {
    if (const Parsed* const value = take(key)) target = number(key, *value);
  }

  /// A number of at least 0, such as acres or inches.
  void readAmount(std::string_view key, double& target) {
    read(key, target);
    if (target < 0) damaged(key, "must not be below 0.");
  }

  void readWhole(std::string_view key, std::int64_t& target, std::int64_t lowest, std::int64_t highest) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    const double given = number(key, *value);
    if (given != std::trunc(given) || given < static_cast<double>(lowest) ||
        given > static_cast<double>(highest)) {
      damaged(key, "must be a whole number from " + std::to_string(lowest) + " to " +
                       std::to_string(highest) + ".");
    }
    target = static_cast<std::int64_t>(given);
  }

  /// The index of a name in a list of names.
  void readName(std::string_view key, std::size_t& target, std::span<const std::string_view> names) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    const auto found = !value->is_string()
                           ? names.end()
                           : std::find(names.begin(), names.end(), value->get_ref<const std::string&>());
    if (found == names.end()) {
      std::string list;
      for (const std::string_view name : names)
        list += (list.empty() ? "" : ", ") + std::string(name);
      damaged(key, "must be one of " + list + ".");
    }
    target = static_cast<std::size_t>(found - names.begin());
  }

  template <class Owner>
  void readKeys(std::span<const DocumentKey<Owner>> keys, Owner& owner) {
    for (const DocumentKey<Owner>& each : keys)
      each.field.visit(owner, [&](auto& member) { read(each.key, member); });
  }

  /// Reads an object; nothing if the key is missing.
  template <class Read>
  void readObject(std::string_view key, Read readInto) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    ObjectReader reader(source_, *value, pathOf(key));
    readInto(reader);
  }

  /// Reads a list of objects.
  template <class Read>
  void readList(std::string_view key, std::size_t most, Read readItem) {
    const Parsed* const value = take(key);
    if (value == nullptr) return;
    if (!value->is_array()) damaged(key, "must be a list in brackets.");
    if (value->size() > most) damaged(key, "has more than " + std::to_string(most) + " entries.");
    for (std::size_t i = 0; i < value->size(); ++i) {
      Path path = pathOf(key);
      path.push_back({"", i, true});
      ObjectReader reader(source_, (*value)[i], std::move(path));
      readItem(reader);
    }
  }

  void pass(std::string_view key) { take(key); }

  /// The keys that have not been read.
  [[nodiscard]] UnknownKeys unknown() const {
    UnknownKeys rest;
    for (const auto& [key, value] : value_.items()) {
      if (std::find(taken_.begin(), taken_.end(), key) == taken_.end()) rest.emplace_back(key, value.dump());
    }
    return rest;
  }

  [[noreturn]] void damaged(const std::string& reason) const { source_.damaged(path_, reason); }
  [[noreturn]] void damaged(std::string_view key, const std::string& reason) const {
    source_.damaged(pathOf(key), quoteForMessage(key) + " " + reason);
  }

 private:
  const Parsed* take(std::string_view key) {
    taken_.push_back(key);
    const auto found = value_.find(key);
    return found == value_.end() ? nullptr : &*found;
  }

  [[nodiscard]] double number(std::string_view key, const Parsed& value) const {
    if (!value.is_number()) damaged(key, "must be a number.");
    const auto number = value.get<double>();
    if (!std::isfinite(number)) damaged(key, "is too large a number.");
    return number;
  }

  [[nodiscard]] Path pathOf(std::string_view key) const {
    Path path = path_;
    path.push_back({std::string(key), 0, false});
    return path;
  }

  const Source& source_;
  const Parsed& value_;
  Path path_;
  std::vector<std::string_view> taken_;
};

void read(ObjectReader& in, DocumentFarm& farm) {
  in.read("txtArea", farm.txtArea);
  in.read("txtMax", farm.txtMax);
  in.read("txtAnnRain", farm.txtAnnRain);
  in.read("txtEff", farm.txtEff);
  in.read("txtSoil", farm.txtSoil);
  in.read("noSplit", farm.noSplit);
  in.read("fallowNegatives", farm.fallowNegatives);
  in.read("txtSize", farm.txtSize);
  Number split;
  in.read("split", split);
  if (!split.isEmpty()) {
    const double index = split;
    const auto count = static_cast<double>(landDivisions().size());
    if (index != std::trunc(index) || index < 0 || index >= count)
      in.damaged("split", "must be null or a whole number from 0 to 5.");
    farm.split = static_cast<std::size_t>(index);
  }
  farm.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentPlant& plant) {
  in.readKeys(plantKeys(), plant.plant);
  plant.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentCrop& crop) {
  in.read("name", crop.name);
  in.read("chosen", crop.chosen);
  in.read("price", crop.price);
  in.read("priceInForce", crop.priceInForce);
  in.read("maxYield", crop.maxYield);
  in.read("maxYieldInForce", crop.maxYieldInForce);
  in.readObject("costs", [&](ObjectReader& costs) {
    costs.readKeys(costKeys(), crop.costs);
    crop.unknownCosts = costs.unknown();
  });
  crop.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentOptions& options) {
  in.read("keep", options.keep);
  std::int64_t factor = options.factor;
  in.readWhole("factor", factor, 1, 100);
  options.factor = static_cast<std::int16_t>(factor);
  in.read("mixes", options.mixes);
  options.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentWish& entry) {
  std::size_t kind = 0;
  in.readName("kind", kind, wishKinds);
  Wish& wish = entry.wish;
  wish.kind = static_cast<Wish::Kind>(kind);
  if (namesCrop(wish.kind)) in.read("crop", wish.crop);
  if (namesField(wish.kind)) {
    std::int64_t field = 1;
    in.readWhole("field", field, 1, mostFields);
    wish.field = static_cast<std::size_t>(field);
  }
  if (hasAmount(wish.kind)) in.readAmount("amount", wish.amount);
  entry.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentSeason& season) {
  in.read("name", season.name);
  in.read("rain", season.rain);
  season.weight = 1;
  in.read("weight", season.weight);
  if (season.weight <= 0) in.damaged("weight", "must be above 0.");
  season.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentProcess& process) {
  in.read("crop", process.crop);
  in.readName("variable", process.variable, trendVariableNames);
  in.readName("values", process.values, trendValueKinds);
  in.read("minimum", process.minimum);
  in.read("maximum", process.maximum);
  in.read("steps", process.steps);
  in.read("list", process.list);
  in.read("file", process.file);
  in.read("shown", process.shown);
  process.unknown = in.unknown();
}

void read(ObjectReader& in, EmbeddedCrop& crop) {
  in.read("name", crop.name);
  in.read("text", crop.text);
  crop.unknown = in.unknown();
}

void read(ObjectReader& in, SavedOptionField& field) {
  in.read("crop", field.crop);
  in.readAmount("acres", field.acres);
  in.readAmount("netDepth", field.depth);
  in.read("rain", field.rain);
  in.read("price", field.price);
  in.read("maxYield", field.maxYield);
  in.read("normalFactor", field.normalFactor);
  in.read("yield", field.yield);
  in.read("units", field.units);
  in.read("soil", field.soil);
  in.read("costs", field.costs);
  in.read("return", field.returns);
  in.read("trendedProductionCosts", field.trendedCosts);
  in.read("trendedIrrigationCosts", field.trendedIrrigation);
  in.readObject("ownCosts",
                [&](ObjectReader& costs) { costs.readKeys(costKeys(), field.ownCosts.emplace()); });
  in.readObject("ownPlant",
                [&](ObjectReader& plant) { plant.readKeys(plantKeys(), field.ownPlant.emplace()); });
  field.unknown = in.unknown();
}

void read(ObjectReader& in, SavedOptionTrend& trend) {
  in.read("variable", trend.variable);
  in.read("value", trend.value);
  in.read("before", trend.before);
  in.read("after", trend.after);
  trend.unknown = in.unknown();
}

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

template <class Value>
void readInto(ObjectReader& in, std::string_view key, std::vector<Value>& list,
              std::size_t most = anyNumber) {
  in.readList(key, most, [&](ObjectReader& item) { read(item, list.emplace_back()); });
}

template <class Value>
void readInto(ObjectReader& in, std::string_view key, SharedList<Value>& list, std::size_t most = anyNumber) {
  in.readList(key, most, [&](ObjectReader& item) {
    Value value;
    read(item, value);
    list.add(std::move(value));
  });
}

/// Reads the inputs among the keys of `in`.
void readInputs(ObjectReader& in, FarmInputs& inputs) {
  in.readObject("farm", [&](ObjectReader& farm) { read(farm, inputs.farm); });
  in.readObject("plant", [&](ObjectReader& plant) { read(plant, inputs.plant); });
  readInto(in, "crops", inputs.crops);
  in.readObject("options", [&](ObjectReader& options) { read(options, inputs.options); });
  readInto(in, "wishes", inputs.wishes, mostWishes);
}

void read(ObjectReader& in, SavedOption& saved) {
  in.read("name", saved.name);
  in.readObject("option", [&](ObjectReader& option) {
    option.read("costs", saved.costs);
    readInto(option, "fields", saved.fields, mostFields);
    readInto(option, "trend", saved.trend);
    saved.unknownOption = option.unknown();
  });
  in.readObject("inputs", [&](ObjectReader& inputs) {
    readInputs(inputs, saved.inputs);
    saved.inputs.unknown = inputs.unknown();
  });
  saved.unknown = in.unknown();
}

/// Notes where and why a text is no JSON.
class FaultFinder : public Parsed::json_sax_t {
 public:
  std::size_t position = 0;
  std::string reason;

  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }
  bool start_object(std::size_t) override { return true; }
  bool key(string_t&) override { return true; }
  bool end_object() override { return true; }
  bool start_array(std::size_t) override { return true; }
  bool end_array() override { return true; }
  bool parse_error(std::size_t where, const std::string& token,
                   const nlohmann::detail::exception& error) override {
    position = where;
    const std::string_view said = error.what();
    if (said.find("invalid UTF-8") != std::string_view::npos || !isUtf8(token)) {
      reason = "A text is not UTF-8.";
    } else if (said.find("out_of_range") != std::string_view::npos) {
      reason = "A number is too large.";
    } else if (said.find("unexpected end of input") != std::string_view::npos) {
      reason = "The file ends too early.";
    } else {
      reason = "Unexpected " + quoteForMessage(token) + ".";
    }
    return false;
  }
};

[[noreturn]] void refuseText(std::string_view text) {
  FaultFinder finder;
  Parsed::sax_parse(text, &finder);
  const std::string_view before = text.substr(0, std::min(finder.position, text.size()));
  refuse("The farm file is damaged at line " +
         std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ": " + finder.reason);
}

Parsed parse(std::string_view text) {
  if (isNestedDeeper(text, deepestNesting))
    refuse("The farm file is damaged: its lists and objects are nested too deeply.");
  Parsed value = Parsed::parse(text, nullptr, false);
  if (value.is_discarded()) refuseText(text);
  return value;
}

/// Checks the format and the version.
void readHead(ObjectReader& in) {
  std::string format;
  in.read("format", format);
  if (format != "verdalis-farm") refuse("This is not a farm file.");
  std::int64_t version = 0;
  in.readWhole("version", version, 1, std::numeric_limits<std::int32_t>::max());
  if (version == 0) in.damaged("The version of the format is missing.");
  if (version > farmFileVersion) {
    refuse("This farm file has version " + std::to_string(version) +
           " of the format, and this program, Verdalis " + versionNumber() + ", reads up to version " +
           std::to_string(farmFileVersion) + ". Open it with a newer Verdalis.");
  }
  in.pass("program");
}

}  // namespace

FarmDocument readFarm(std::string_view text) {
  const Parsed value = parse(text);
  const Source source(text);
  if (!value.is_object()) refuse("This is not a farm file.");
  ObjectReader in(source, value, {});
  readHead(in);
  FarmDocument document;
  in.read("name", document.name);
  in.read("notes", document.notes);
  in.read("letterhead", document.letterhead);
  readInputs(in, document.inputs);
  readInto(in, "seasons", document.seasons, 9);
  readInto(in, "trend", document.trend, 2);
  readInto(in, "saved", document.saved);
  readInto(in, "customCrops", document.customCrops);
  document.unknown = in.unknown();
  return document;
}

}  // namespace verdalis
