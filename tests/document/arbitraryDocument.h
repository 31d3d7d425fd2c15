#pragma once

#include <rapidcheck.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "document/FarmDocument.h"
#include "document/documentKeys.h"
#include "document/farmText.h"

namespace verdalis::testing {

/// Any finite number: all bit patterns, numbers at the edges of what a float can hold, and numbers that
/// people type.
inline rc::Gen<double> arbitraryNumber() {
  const auto bits = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
  const auto finite =
      rc::gen::suchThat(rc::gen::map(bits, [](std::uint64_t b) { return std::bit_cast<double>(b); }),
                        [](double x) { return std::isfinite(x); });
  using Limits = std::numeric_limits<double>;
  const auto edges = rc::gen::element(
      0.0, -0.0, 0.1, 1.0 / 3, -17.0, 1e-4, 9.999e-5, 1e15, 1e15 - 1, 1e15 + 2, 9007199254740993.0, 1e22,
      1e23, 1e308, -1e308, Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
      -Limits::denorm_min(), Limits::min() - Limits::denorm_min(), Limits::epsilon());
  return rc::gen::oneOf(finite, edges,
                        rc::gen::map(rc::gen::inRange(-5, 10'000), [](int n) { return n / 100.0; }));
}

/// Any text in UTF-8.
inline rc::Gen<std::string> arbitraryText() {
  const auto piece = rc::gen::oneOf(
      rc::gen::element<std::string>(
          "\"", "\\", "\\u0041", "/", "\n", "\r\n", "\r", "\t", std::string(1, '\0'), "\x01", "\x1F", "\x7F",
          "\xC3\xA4", "Ma\xC3\xAFs", "\xE2\x82\xAC 5", "\xF0\x9F\x8C\xBD", "\xEF\xBB\xBF", "\xEF\xBF\xBD",
          "\xE2\x80\xA8", "1e5", "{", "}", "[", "]", ",", ":", "null", " ", std::string(3000, 'x')),
      rc::gen::container<std::string>(rc::gen::inRange<char>(32, 127)));
  const auto pieces = rc::gen::map(rc::gen::container<std::vector<std::string>>(piece),
                                   [](const std::vector<std::string>& all) {
                                     std::string text;
                                     for (std::size_t i = 0; i < std::min<std::size_t>(all.size(), 4); ++i)
                                       text += all[i];
                                     return text;
                                   });
  return rc::gen::oneOf(pieces, rc::gen::element<std::string>("", "125", "6.52", "Corn", "Silt Loam"));
}

/// Keys of a later version, with values that do not read back the same if they are taken for numbers or
/// texts.
inline rc::Gen<UnknownKeys> arbitraryUnknownKeys() {
  return rc::gen::exec([] {
    UnknownKeys keys;
    const int count = *rc::gen::weightedElement<int>({{6, 0}, {2, 1}, {1, 3}});
    for (int i = 0; i < count; ++i) {
      const auto value = rc::gen::element<std::string>(
          "null", "true", "-0", "1.10", "1E5", "12345678901234567890123", R"("a\u00e4\/b")",
          R"("a\"b, c: {[")", "{}", "[]", R"({"b":1,"a":[1,{"c":[]},"x y"],"b":2})", "[[],[[]],{}]");
      // No key of the format ends in a digit, and no two of these are equal.
      keys.emplace_back(*arbitraryText() + std::to_string(i), *value);
    }
    return keys;
  });
}

inline void fillArbitrarily(double& member) {
  member = *arbitraryNumber();
}
inline void fillArbitrarily(bool& member) {
  member = *rc::gen::arbitrary<bool>();
}
inline void fillArbitrarily(Number& member) {
  if (*rc::gen::arbitrary<bool>()) {
    member.clear();
  } else {
    member = *arbitraryNumber();
  }
}
inline void fillArbitrarily(std::string& member) {
  member = *arbitraryText();
}
inline void fillArbitrarily(std::optional<double>& member) {
  member.reset();
  if (*rc::gen::arbitrary<bool>()) member = *arbitraryNumber();
}
inline void fillArbitrarily(UnknownKeys& member) {
  member = *arbitraryUnknownKeys();
}

template <class... Members>
void fillAllArbitrarily(Members&... members) {
  (fillArbitrarily(members), ...);
}

template <class Owner>
void fillKeysArbitrarily(std::span<const DocumentKey<Owner>> keys, Owner& owner) {
  for (const DocumentKey<Owner>& each : keys)
    each.field.visit(owner, [](auto& member) { fillArbitrarily(member); });
}

inline std::size_t arbitraryBelow(std::size_t limit) {
  return *rc::gen::inRange<std::size_t>(0, limit);
}

inline DocumentCrop makeArbitraryCrop() {
  DocumentCrop crop;
  fillAllArbitrarily(crop.name, crop.chosen, crop.price, crop.priceInForce, crop.maxYield,
                     crop.maxYieldInForce, crop.unknown, crop.unknownCosts);
  fillKeysArbitrarily(costKeys(), crop.costs);
  return crop;
}

inline DocumentWish makeArbitraryWish() {
  DocumentWish entry;
  Wish& wish = entry.wish;
  wish.kind = static_cast<Wish::Kind>(arbitraryBelow(wishKinds.size()));
  if (namesCrop(wish.kind)) fillArbitrarily(wish.crop);
  if (namesField(wish.kind)) wish.field = 1 + arbitraryBelow(4);
  if (hasAmount(wish.kind)) wish.amount = std::fabs(*arbitraryNumber());
  fillArbitrarily(entry.unknown);
  return entry;
}

inline FarmInputs makeArbitraryInputs() {
  FarmInputs inputs;
  DocumentFarm& farm = inputs.farm;
  fillAllArbitrarily(farm.txtArea, farm.txtMax, farm.txtAnnRain, farm.txtEff, farm.txtSoil, farm.txtSize,
                     farm.noSplit, farm.fallowNegatives, farm.unknown);
  const std::size_t split = arbitraryBelow(7);
  if (split < 6) farm.split = split;
  fillKeysArbitrarily(plantKeys(), inputs.plant.plant);
  fillArbitrarily(inputs.plant.unknown);
  for (std::size_t i = arbitraryBelow(3); i > 0; --i)
    inputs.crops.add(makeArbitraryCrop());
  fillAllArbitrarily(inputs.options.keep, inputs.options.mixes, inputs.options.unknown);
  inputs.options.factor = *rc::gen::inRange<std::int16_t>(1, 101);
  for (std::size_t i = arbitraryBelow(4); i > 0; --i)
    inputs.wishes.push_back(makeArbitraryWish());
  return inputs;
}

inline SavedOptionField makeArbitraryField() {
  SavedOptionField field;
  fillAllArbitrarily(field.crop, field.rain, field.price, field.maxYield, field.normalFactor, field.yield,
                     field.soil, field.units, field.costs, field.returns, field.trendedCosts,
                     field.trendedIrrigation, field.unknown);
  field.acres = std::fabs(*arbitraryNumber());
  field.depth = std::fabs(*arbitraryNumber());
  if (*rc::gen::arbitrary<bool>()) fillKeysArbitrarily(costKeys(), field.ownCosts.emplace());
  if (*rc::gen::arbitrary<bool>()) fillKeysArbitrarily(plantKeys(), field.ownPlant.emplace());
  return field;
}

inline SavedOption makeArbitrarySavedOption() {
  SavedOption saved;
  fillAllArbitrarily(saved.name, saved.costs, saved.unknown, saved.unknownOption);
  for (std::size_t i = arbitraryBelow(5); i > 0; --i)
    saved.fields.push_back(makeArbitraryField());
  for (std::size_t i = arbitraryBelow(3); i > 0; --i) {
    SavedOptionTrend& trend = saved.trend.emplace_back();
    fillAllArbitrarily(trend.variable, trend.value, trend.before, trend.after, trend.unknown);
  }
  saved.inputs = makeArbitraryInputs();
  fillArbitrarily(saved.inputs.unknown);
  return saved;
}

/// A document with any value that a control or a run can give, and unknown keys in all places.
inline rc::Gen<FarmDocument> arbitraryDocument() {
  return rc::gen::exec([] {
    FarmDocument document;
    fillAllArbitrarily(document.name, document.notes, document.letterhead, document.unknown);
    document.inputs = makeArbitraryInputs();
    for (std::size_t i = arbitraryBelow(4); i > 0; --i) {
      DocumentSeason& season = document.seasons.emplace_back();
      fillAllArbitrarily(season.name, season.rain, season.unknown);
      season.weight = std::max(std::fabs(*arbitraryNumber()), std::numeric_limits<double>::denorm_min());
    }
    for (std::size_t i = arbitraryBelow(3); i > 0; --i) {
      DocumentProcess& process = document.trend.emplace_back();
      fillAllArbitrarily(process.crop, process.minimum, process.maximum, process.steps, process.list,
                         process.file, process.shown, process.unknown);
      process.variable = arbitraryBelow(trendVariableNames.size());
      process.values = arbitraryBelow(trendValueKinds.size());
    }
    for (std::size_t i = arbitraryBelow(3); i > 0; --i)
      document.saved.add(makeArbitrarySavedOption());
    for (std::size_t i = arbitraryBelow(3); i > 0; --i) {
      EmbeddedCrop crop;
      fillAllArbitrarily(crop.name, crop.text, crop.unknown);
      document.customCrops.add(std::move(crop));
    }
    return document;
  });
}

}  // namespace verdalis::testing

namespace verdalis {

inline void showValue(const FarmDocument& document, std::ostream& os) {
  os << writeFarm(document);
}

}  // namespace verdalis
