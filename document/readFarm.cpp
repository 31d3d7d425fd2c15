#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "data/readFile.h"
#include "document/JsonText.h"
#include "document/documentKeys.h"
#include "document/farmText.h"
#include "model/LandDivision.h"
#include "text/RunTimeError.h"
#include "text/quote.h"
#include "text/version.h"

namespace verdalis {
namespace {

/// Most fields that an option can have.
constexpr std::size_t mostFields = 4;

/// Most values with which a trend makes an option.
constexpr std::size_t mostOptionTrends = 2;

/// Most processes of a trend.
constexpr std::size_t mostProcesses = 2;

/// Most seasons of a farm.
constexpr std::size_t mostSeasons = 9;

/// Most objects in a file: more than a file of the largest size has if the program wrote it. A file of very
/// many empty objects would take many times its size in memory.
constexpr std::size_t mostObjects = 500'000;

[[noreturn]] void refuse(const std::string& message) {
  throw RunTimeError(ErrorNumber::invalidCall, message);
}

[[noreturn]] void refuseDamaged(std::size_t line, const std::string& reason) {
  refuse("The farm file is damaged at line " + std::to_string(line) + ": " + reason);
}

/// Reads the keys of an object. A key that is missing keeps the value that the target has.
class ObjectReader {
 public:
  /// \param objects counts the objects of the file.
  ObjectReader(const JsonValue& object, std::size_t& objects) : object_(object), objects_(objects) {
    if (!object.isObject()) refuseDamaged(object.line(), "Here must be an object, in braces.");
    if (++objects_ > mostObjects)
      refuseDamaged(object.line(), "The file has more entries than a farm can have.");
    for (JsonValue key = object.inside(); key != object.end(); key = key.next().next())
      members_.push_back({key, false});
  }

  void read(std::string_view key, std::string& target) {
    const auto value = take(key);
    if (!value) return;
    if (!value->isText()) damaged(key, *value, "must be a text in quotation marks.");
    target = value->text();
  }

  void read(std::string_view key, bool& target) {
    const auto value = take(key);
    if (!value) return;
    if (!value->isBoolean()) damaged(key, *value, "must be true or false.");
    target = value->boolean();
  }

  void read(std::string_view key, double& target) {
    if (const auto value = take(key)) target = number(key, *value);
  }

  void read(std::string_view key, Number& target) {
    const auto value = take(key);
    if (!value) return;
    if (value->isNull()) {
      target.clear();
    } else {
      target = number(key, *value, "must be a number or null.");
    }
  }

  void read(std::string_view key, std::optional<double>& target) {
    if (const auto value = take(key)) target = number(key, *value);
  }

  /// A number of at least 0, such as acres or inches.
  void readAmount(std::string_view key, double& target) {
    const auto value = take(key);
    if (!value) return;
    target = number(key, *value);
    if (target < 0) damaged(key, *value, "must not be below 0.");
  }

  /// A number above 0.
  void readPositive(std::string_view key, double& target) {
    const auto value = take(key);
    if (!value) return;
    target = number(key, *value);
    if (target <= 0) damaged(key, *value, "must be above 0.");
  }

  /// A whole number within limits, both of which can be reached.
  template <class Whole>
  void readWhole(std::string_view key, Whole& target, int lowest, int highest) {
    if (const auto value = take(key)) target = static_cast<Whole>(whole(key, *value, "", lowest, highest));
  }

  /// Likewise; null stands for nothing.
  void readWhole(std::string_view key, std::optional<std::size_t>& target, int lowest, int highest) {
    const auto value = take(key);
    if (!value || value->isNull()) return;
    target = static_cast<std::size_t>(whole(key, *value, "null or ", lowest, highest));
  }

  /// The index of a name in a list of names.
  void readName(std::string_view key, std::size_t& target, std::span<const std::string_view> names) {
    const auto value = take(key);
    if (!value) return;
    const auto found =
        !value->isText() ? names.end() : std::find_if(names.begin(), names.end(), [&](std::string_view name) {
          return value->textIs(name);
        });
    if (found == names.end()) {
      std::string list;
      for (const std::string_view name : names)
        list += (list.empty() ? "" : ", ") + quoteForMessage(name);
      damaged(key, *value, "must be one of " + list + ".");
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
    const auto value = take(key);
    if (!value) return;
    ObjectReader reader(*value, objects_);
    readInto(reader);
  }

  /// Reads a list of objects.
  template <class Read>
  void readList(std::string_view key, std::size_t most, Read readItem) {
    const auto value = take(key);
    if (!value) return;
    if (!value->isList()) damaged(key, *value, "must be a list in brackets.");
    std::size_t count = 0;
    for (JsonValue item = value->inside(); item != value->end(); item = item.next()) {
      if (++count > most)
        refuseDamaged(item.line(),
                      quoteForMessage(key) + " has more than " + std::to_string(most) + " entries.");
      ObjectReader reader(item, objects_);
      readItem(reader);
    }
  }

  void pass(std::string_view key) { take(key); }

  /// The value of a key, for looking at it before it is read.
  [[nodiscard]] std::optional<JsonValue> find(std::string_view key) const {
    for (const Member& member : members_) {
      if (member.key.textIs(key)) return member.key.next();
    }
    return std::nullopt;
  }

  /// The keys that have not been read, in their order. This is called last, and refuses a key that stands
  /// twice.
  [[nodiscard]] UnknownKeys unknown() const {
    std::vector<JsonValue> left;
    for (const Member& member : members_) {
      if (!member.taken) left.push_back(member.key);
    }
    UnknownKeys rest;
    rest.reserve(left.size());
    for (const JsonValue& key : left) {
      rest.emplace_back(key.text(), key.next().compact());
      if (std::find(read_.begin(), read_.end(), rest.back().first) != read_.end()) refuseTwice(key);
    }
    std::vector<std::size_t> order(rest.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
      return std::tie(rest[a].first, a) < std::tie(rest[b].first, b);
    });
    const auto twice = std::adjacent_find(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
      return rest[a].first == rest[b].first;
    });
    if (twice != order.end()) refuseTwice(left[*std::next(twice)]);
    return rest;
  }

  /// The line on which the object begins.
  [[nodiscard]] std::size_t line() const { return object_.line(); }

 private:
  struct Member {
    JsonValue key;
    bool taken;
  };

  [[noreturn]] static void damaged(std::string_view key, const JsonValue& value, const std::string& reason) {
    refuseDamaged(value.line(), quoteForMessage(key) + " " + reason);
  }

  [[noreturn]] static void refuseTwice(const JsonValue& key) {
    refuseDamaged(key.line(), quoteForMessage(key.text()) + " stands here for the second time.");
  }

  /// The value of a key. Keys are usually in the order in which they are read, so the search starts behind
  /// the last one.
  std::optional<JsonValue> take(std::string_view key) {
    read_.push_back(key);
    for (std::size_t i = 0; i < members_.size(); ++i) {
      Member& member = members_[(last_ + i) % members_.size()];
      if (member.taken || !member.key.textIs(key)) continue;
      member.taken = true;
      last_ += i + 1;
      return member.key.next();
    }
    return std::nullopt;
  }

  [[nodiscard]] static double number(std::string_view key, const JsonValue& value,
                                     const std::string& otherwise = "must be a number.") {
    if (!value.isNumber()) damaged(key, value, otherwise);
    return value.number();
  }

  [[nodiscard]] static int whole(std::string_view key, const JsonValue& value, const std::string& orElse,
                                 int lowest, int highest) {
    const double given = value.isNumber() ? value.number() : 0.5;
    if (given != std::trunc(given) || given < lowest || given > highest) {
      damaged(key, value,
              "must be " + orElse + "a whole number from " + std::to_string(lowest) + " to " +
                  std::to_string(highest) + ".");
    }
    return static_cast<int>(given);
  }

  JsonValue object_;
  std::size_t& objects_;
  std::vector<Member> members_;
  std::vector<std::string_view> read_;  ///< The keys that were asked for
  std::size_t last_ = 0;
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
  in.readWhole("split", farm.split, 0, static_cast<int>(landDivisions().size()) - 1);
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
  in.readWhole("factor", options.factor, 1, 100);
  in.read("mixes", options.mixes);
  options.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentWish& entry) {
  if (!in.find("kind")) refuseDamaged(in.line(), "A wish has no \"kind\".");
  std::size_t kind = 0;
  in.readName("kind", kind, wishKinds);
  Wish& wish = entry.wish;
  wish.kind = static_cast<Wish::Kind>(kind);
  if (namesCrop(wish.kind)) in.read("crop", wish.crop);
  if (namesField(wish.kind)) {
    wish.field = 1;
    in.readWhole("field", wish.field, 1, mostFields);
  }
  if (hasAmount(wish.kind)) in.readAmount("amount", wish.amount);
  entry.unknown = in.unknown();
}

void read(ObjectReader& in, DocumentSeason& season) {
  in.read("name", season.name);
  in.read("rain", season.rain);
  season.weight = 1;
  in.readPositive("weight", season.weight);
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
  in.readObject("ownCosts", [&](ObjectReader& costs) {
    costs.readKeys(costKeys(), field.ownCosts.emplace());
    field.unknownOwnCosts = costs.unknown();
  });
  in.readObject("ownPlant", [&](ObjectReader& plant) {
    plant.readKeys(plantKeys(), field.ownPlant.emplace());
    field.unknownOwnPlant = plant.unknown();
  });
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
    readInto(option, "trend", saved.trend, mostOptionTrends);
    saved.unknownOption = option.unknown();
  });
  in.readObject("inputs", [&](ObjectReader& inputs) {
    readInputs(inputs, saved.inputs);
    saved.inputs.unknown = inputs.unknown();
  });
  saved.unknown = in.unknown();
}

/// The object of the file.
JsonValue objectOf(const JsonText& json) {
  if (!json.root().isObject()) refuse("This is not a farm file.");
  return json.root();
}

/// Checks the format and the version.
void readHead(ObjectReader& in) {
  const auto format = in.find("format");
  if (!format || !format->isText() || !format->textIs(farmFileFormat)) refuse("This is not a farm file.");
  in.pass("format");
  if (!in.find("version")) refuseDamaged(in.line(), "The \"version\" of the format is missing.");
  int version = 0;
  in.readWhole("version", version, 1, std::numeric_limits<int>::max());
  if (version > farmFileVersion) {
    refuse("This farm file has version " + std::to_string(version) +
           " of the format, and this program, Verdalis " + versionNumber() + ", reads up to version " +
           std::to_string(farmFileVersion) + ". Open it with a newer Verdalis.");
  }
  std::string program;
  in.read("program", program);
}

JsonText parse(std::string_view text) {
  if (text.size() > maxFileSize)
    refuse("The farm file is too large: farm files have up to " + std::to_string(maxFileSize >> 20U) +
           " MB.");
  // Anything else that is not JSON is a damaged farm file.
  const std::size_t begin = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  if (begin == std::string_view::npos) refuse("This is not a farm file: it is empty.");
  if (text[begin] != '{') refuse("This is not a farm file: it does not begin with a brace.");
  try {
    return JsonText(text);
  } catch (const JsonFault& fault) {
    refuseDamaged(fault.line(), fault.what());
  }
}

}  // namespace

FarmDocument readFarm(std::string_view text) {
  const JsonText json = parse(text);
  std::size_t objects = 0;
  ObjectReader in(objectOf(json), objects);
  readHead(in);
  FarmDocument document;
  in.read("name", document.name);
  in.read("notes", document.notes);
  in.read("letterhead", document.letterhead);
  readInputs(in, document.inputs);
  readInto(in, "seasons", document.seasons, mostSeasons);
  readInto(in, "trend", document.trend, mostProcesses);
  readInto(in, "saved", document.saved);
  readInto(in, "customCrops", document.customCrops);
  document.unknown = in.unknown();
  return document;
}

}  // namespace verdalis
