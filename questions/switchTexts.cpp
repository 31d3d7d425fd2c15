#include "questions/switchTexts.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "questions/planText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

/// Formats the values of an input, with enough decimals to distinguish them.
class ValueTexts {
 public:
  explicit ValueTexts(const SwitchAnswer& answer) : dollars_(answer.input.kind != Kind::maxYield) {
    constexpr std::size_t mostDecimals = 12;
    decimals_ = dollars_ ? 2 : 1;
    std::vector<double> values{answer.segments.front().from};
    for (const SwitchSegment& segment : answer.segments)
      values.push_back(segment.to);
    const auto isSame = [&](double a, double b) { return (*this)(a) == (*this)(b); };
    while (decimals_ < mostDecimals &&
           std::adjacent_find(values.begin(), values.end(), isSame) != values.end())
      ++decimals_;
  }

  std::string operator()(double value) const {
    return formatNumber(value, (dollars_ ? "$###,##0." : "###,##0.") + std::string(decimals_, '0'));
  }

 private:
  bool dollars_;
  std::size_t decimals_;
};

std::string joined(const std::vector<std::string>& texts) {
  std::string text;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) text += i + 1 == texts.size() ? " and " : ", ";
    text += texts[i];
  }
  return text;
}

/// The fields of one crop, counted from 1: "fields 2 and 3 (11.2 in.)".
std::string placesText(const std::vector<PlannedField>& fields, const std::string& crop, bool everywhere) {
  std::vector<std::string> numbers;
  std::vector<std::string> depths;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].crop != crop) continue;
    numbers.push_back(std::to_string(i + 1));
    depths.push_back(inchesText(fields[i].grossDepth));
  }
  const bool alike = std::all_of(depths.begin(), depths.end(),
                                 [&](const std::string& depth) { return depth == depths.front(); });
  if (alike) depths.resize(1);
  const bool one = numbers.size() == 1;
  return (everywhere ? "everywhere" : (one ? "on field " : "on fields ") + joined(numbers)) + " (" +
         joined(depths) + " in.)";
}

/// The fields of a plan by crop, in field order.
std::string placedCropsText(const std::vector<PlannedField>& fields, bool undivided) {
  if (undivided)
    return printable(fields[0].crop) + " on the undivided farm (" + inchesText(fields[0].grossDepth) +
           " in.)";
  std::vector<std::string> crops;
  for (const PlannedField& field : fields) {
    if (std::find(crops.begin(), crops.end(), field.crop) == crops.end()) crops.push_back(field.crop);
  }
  std::string text;
  for (const std::string& crop : crops) {
    text += (text.empty() ? "" : ", ") + printable(crop) + " " + placesText(fields, crop, crops.size() == 1);
  }
  return text;
}

std::string whatVaries(const SwitchAnswer& answer) {
  if (answer.input.kind == Kind::fuel) return "Price of a unit of fuel";
  const std::string name = printable(answer.input.crop);
  return (answer.input.kind == Kind::price ? "Price of " + name + ", $ per "
                                           : "Maximum yield of " + name + ", per acre in ") +
         printable(answer.unit);
}

/// "Below $4.87", "From $4.87 to $5.20" or "From $5.20"; both ends if there is only one segment.
std::string rangeText(const SwitchAnswer& answer, std::size_t number, const ValueTexts& text) {
  const SwitchSegment& segment = answer.segments[number];
  const bool first = number == 0;
  const bool last = number + 1 == answer.segments.size();
  if (first && !last) return "Below " + text(segment.to);
  if (last && !first) return "From " + text(segment.from);
  return "From " + text(segment.from) + " to " + text(segment.to);
}

bool holds(const SwitchSegment& segment, double value, bool last) {
  return value >= segment.from && (value < segment.to || (last && value == segment.to));
}

/// A plan with the most fields, so a plan of the divided farm if there is one.
const std::vector<PlannedField>& dividedOf(const SwitchAnswer& answer) {
  return std::max_element(
             answer.segments.begin(), answer.segments.end(),
             [](const SwitchSegment& a, const SwitchSegment& b) { return a.fields.size() < b.fields.size(); })
      ->fields;
}

std::string fieldsText(const std::vector<PlannedField>& fields) {
  if (fields.size() == 1) return {};
  std::vector<std::string> acres;
  for (const PlannedField& field : fields)
    acres.push_back(acresText(field.acres));
  if (std::count(acres.begin(), acres.end(), acres.front()) == std::ssize(acres))
    return " Each of the " + std::to_string(acres.size()) + " fields has " + acres.front() + ".";
  return " The fields have " + joined(acres) + ".";
}

std::string returnText(const SwitchSegment& segment) {
  const std::string from = dollarsText(segment.profitFrom);
  const std::string to = dollarsText(segment.profitTo);
  return from + (from == to ? "" : " to " + to);
}

}  // namespace

SwitchTexts switchTexts(const SwitchAnswer& answer) {
  const ValueTexts text(answer);
  const std::vector<PlannedField>& fields = dividedOf(answer);
  SwitchTexts texts;
  texts.heading = whatVaries(answer) + ", from " + text(answer.segments.front().from) + " to " +
                  text(answer.segments.back().to) + "; now " + text(answer.now) + "." + fieldsText(fields);
  texts.now = text(answer.now);
  for (std::size_t i = 0; i < answer.segments.size(); ++i) {
    const SwitchSegment& segment = answer.segments[i];
    const bool last = i + 1 == answer.segments.size();
    const bool undivided = segment.fields.size() < fields.size();
    texts.segments.push_back({rangeText(answer, i, text), text(segment.from), text(segment.to),
                              holds(segment, answer.now, last), placedCropsText(segment.fields, undivided),
                              returnText(segment)});
  }
  return texts;
}

}  // namespace verdalis
