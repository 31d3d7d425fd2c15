#include "cli/explain.h"

#include <charconv>
#include <string_view>

#include "cli/Messages.h"
#include "results/explainField.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// Reads a text that consists of a number from 1.
std::optional<std::size_t> placeOf(std::string_view text) {
  std::size_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || number == 0) return std::nullopt;
  return number;
}

[[noreturn]] void refuse(const std::string& asked, const std::string& why) {
  throw Refusal("--explain " + quoteForMessage(asked) + ": " + why);
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "." : "s.");
}

}  // namespace

FieldPlace readFieldPlace(const std::string& text) {
  const std::string_view asked = text;
  const std::size_t point = asked.find('.');
  if (point != std::string_view::npos) {
    const std::optional<std::size_t> option = placeOf(asked.substr(0, point));
    const std::optional<std::size_t> field = placeOf(asked.substr(point + 1));
    if (option && field) return {text, *option, *field};
  }
  refuse(text, "The form is K.F, such as 1.2 for field 2 of option 1. Both are counted from 1.");
}

Explanation explain(const FieldPlace& place, const std::vector<Results::Option>& options, double efficiency) {
  std::vector<Results::Option> found;
  for (const Results::Option& option : options) {
    if (option->Count() > 0) found.push_back(option);
  }
  if (place.option > found.size())
    refuse(place.asked, "The evaluation found " + counted(found.size(), "option"));
  const FieldCollection& option = *found[place.option - 1];
  const auto fields = static_cast<std::size_t>(option.Count());
  if (place.field > fields)
    refuse(place.asked, "Option " + std::to_string(place.option) + " has " + counted(fields, "field"));
  return {place.option, place.field, explainField(option, place.field, efficiency)};
}

}  // namespace verdalis
