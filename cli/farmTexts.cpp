#include "cli/farmTexts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "cli/Messages.h"
#include "model/LandDivision.h"
#include "text/encoding.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr std::size_t mostCropsToName = 60;

}  // namespace

bool onOrOff(const std::string& text) {
  const std::string lower = lowerCase(text);
  if (lower == "true" || lower == "1") return true;
  if (lower == "false" || lower == "0") return false;
  throw Refusal("Please enter True or False");
}

std::string landSplitNames(std::string_view separator) {
  std::string names;
  for (std::size_t i = 0; i < landDivisions().size(); ++i) {
    if (i > 0) names += separator;
    names += std::to_string(i) + " is \"" + std::string(landDivisions().at(i).caption) + "\"";
  }
  return names;
}

std::size_t landSplitIndex(const std::string& text) {
  std::size_t index = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, index);
  const bool whole = error == std::errc() && stop == end;
  if (whole && index < landDivisions().size()) return index;
  throw Refusal("There is no such land split: " + landSplitNames(", ") + ".");
}

/// The control accepts a leading number; on the command line this would hide a typing error.
void requireNumber(const std::string& text) {
  if (!isNumeric(text) || text.find(',') != std::string::npos) throw Refusal("Please enter a valid number");
}

void requireKept(const std::string& text) {
  requireNumber(text);
  const double number = toDouble(text);
  constexpr int most = std::numeric_limits<std::int16_t>::max();
  if (number != std::floor(number) || number < 1 || number > most)
    throw Refusal("Please enter a whole number from 1 to " + std::to_string(most));
}

FineFactorEntry requireFactor(const std::string& text) {
  FineFactorEntry entry = readFineFactor(text);
  if (entry.factor && *entry.factor >= 1) return entry;
  if (!isNumeric(text)) throw Refusal(entry.message->text);
  throw Refusal("Please enter a number between 1 and 100. 100 itself is too large.");
}

std::optional<std::size_t> findCrop(const CropNames& names, std::string_view name) {
  const auto lastWhere = [&](auto matches) -> std::optional<std::size_t> {
    const auto found = std::find_if(names.rbegin(), names.rend(), matches);
    if (found == names.rend()) return std::nullopt;
    return static_cast<std::size_t>(names.rend() - found) - 1;
  };
  if (const auto exact = lastWhere([&](const std::string& crop) { return crop == name; })) return exact;
  const std::string lower = lowerCase(name);
  return lastWhere([&](const std::string& crop) { return lowerCase(crop) == lower; });
}

std::string unknownCrop(const CropNames& crops, std::string_view name) {
  std::string text = "There is no crop " + quoteForMessage(name) + ".";
  for (std::size_t i = 0; i < std::min(crops.size(), mostCropsToName); ++i) {
    text += (i == 0 ? " The crops are " : ", ") + quoteForMessage(crops[i]);
  }
  return text + (crops.empty() ? " The library is empty." : ".");
}

std::vector<Wish> readWishes(const std::string& option, const std::vector<std::string>& texts,
                             const WishContext& context, std::vector<Wish> wishes) {
  for (const std::string& text : texts) {
    try {
      addWish(wishes, readWish(text, context));
    } catch (const std::invalid_argument& error) {
      throw Refusal(option + " " + quoteForMessage(text) + ": " + error.what());
    }
  }
  return wishes;
}

}  // namespace verdalis
