#include "cli/ExploreArguments.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "cli/textOptions.h"
#include "document/farmHandout.h"
#include "engine/BestMix.h"
#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

/// The unit of an input in a table head; empty if it depends on the crop or the fuel.
constexpr std::string_view unitOf(Kind kind) {
  switch (kind) {
    case Kind::water:
    case Kind::rain:
      return "in.";
    case Kind::efficiency:
      return "%";
    case Kind::fuel:
    case Kind::price:
      return "$";
    case Kind::maxYield:
      break;
  }
  return "/ac";
}

constexpr std::string_view inputForms = "water, rain, efficiency, fuel, price CROP or max-yield CROP";
constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The names of the chosen crops, without duplicates.
std::vector<std::string> chosenCrops(const Farm& farm) {
  std::vector<std::string> names;
  for (const auto& crop : farm.crops) {
    if (std::find(names.begin(), names.end(), crop->cropType) == names.end()) names.push_back(crop->cropType);
  }
  return names;
}

std::string listOf(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names)
    text += (text.empty() ? "" : ", ") + quoteForMessage(name);
  return text;
}

std::string cropOf(std::string_view name, const Farm& farm) {
  const std::vector<std::string> names = chosenCrops(farm);
  if (std::find(names.begin(), names.end(), name) != names.end()) return std::string(name);
  std::vector<std::string> alike;
  std::copy_if(names.begin(), names.end(), std::back_inserter(alike),
               [&](const std::string& crop) { return lowerCase(crop) == lowerCase(name); });
  if (alike.size() == 1) return alike.front();
  if (alike.empty()) {
    throw Refusal("The crop " + quoteForMessage(name) + " is not chosen. The chosen crops are " +
                  listOf(names) + ".");
  }
  throw Refusal("Several chosen crops have this name: " + listOf(alike) + ".");
}

/// Reads an input.
/// \throws Refusal without the name of the option
FarmInput inputOf(std::string_view text, const Farm& farm) {
  const std::size_t end = std::min(text.find_first_of(blanks), text.size());
  const std::string word = lowerCase(text.substr(0, end));
  const auto* const found = std::find(inputWords.begin(), inputWords.end(), word);
  const auto kind = static_cast<Kind>(found - inputWords.begin());
  const std::string_view name = trimmed(text.substr(end));
  if (found == inputWords.end() || isOfCrop(kind) == name.empty())
    throw Refusal("There is no such input. An input is " + std::string(inputForms) + ".");
  if (!isOfCrop(kind)) return {kind, {}};
  FarmInput input{kind, cropOf(name, farm)};
  if (cropKind(input.crop) == CropKind::fallow) {
    throw Refusal(input.crop + (input.kind == Kind::price ? " has no price." : " has no maximum yield."));
  }
  return input;
}

}  // namespace

ExploredFarm exploredFarm(const FarmRequest& request, Messages& messages) {
  const std::unique_ptr<TypedFarm> typed = makeFarm(request, messages);
  requireReady(request, *typed);
  ExploredFarm explored{typed->farm(),
                        {},
                        typed->document(),
                        typed->library(),
                        farmHandout("", {}, typed->document(), typed->library())};
  BestMix().setSize(explored.farm.size);  // fails for a size of 0, as an evaluation does
  for (const DocumentSeason& season : explored.document.seasons)
    explored.seasons.push_back({season.name, season.rain, season.weight});
  return explored;
}

std::string inputTitle(const FarmInput& input) {
  return inputName(input) + ", " + std::string(unitOf(input.kind));
}

FarmInput readInput(const std::string& option, const std::string& text, const Farm& farm) {
  return applyOption(option, text, [&] { return inputOf(trimmed(text), farm); });
}

double readNumber(const std::string& option, const std::string& text) {
  return applyOption(option, text, [&] { return numberOf(text); });
}

ValueRange readRange(const std::string& fromOption, const std::string& from, const std::string& toOption,
                     const std::string& to, const std::string& countOption, const std::string& count) {
  ValueRange range{readNumber(fromOption, from), readNumber(toOption, to), 0};
  applyOption(toOption, to, [&] { requireAbove(range.from, range.to); });
  range.count = applyOption(countOption, count, [&] { return countOf(count); });
  return range;
}

InputRange readInputRange(const std::string& option, const std::string& text, const Farm& farm) {
  return applyOption(option, text, [&] {
    // The name of a crop may contain "=", a range cannot.
    const std::size_t sign = text.rfind('=');
    const std::size_t first = sign == std::string::npos ? sign : text.find(':', sign);
    const std::size_t second = first == std::string::npos ? first : text.find(':', first + 1);
    if (second == std::string::npos || text.find(':', second + 1) != std::string::npos)
      throw Refusal("The form is INPUT=FROM:TO:N.");
    InputRange result;
    result.input = inputOf(trimmed(std::string_view(text).substr(0, sign)), farm);
    result.range.from = numberOf(text.substr(sign + 1, first - sign - 1));
    result.range.to = numberOf(text.substr(first + 1, second - first - 1));
    requireAbove(result.range.from, result.range.to);
    result.range.count = countOf(text.substr(second + 1));
    requireValue(result.input, result.range.from, farm);
    requireValue(result.input, result.range.to, farm);
    return result;
  });
}

void requireAccepted(const std::string& option, const std::string& text, const FarmInput& input, double value,
                     const Farm& farm) {
  applyOption(option, text, [&] { requireValue(input, value, farm); });
}

}  // namespace verdalis
