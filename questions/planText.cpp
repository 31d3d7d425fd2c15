#include "questions/planText.h"

#include <algorithm>
#include <string_view>

#include "text/numbers.h"

namespace verdalis {
namespace {

/// A number without trailing zeros.
std::string trimmedNumber(double value, std::string_view pattern) {
  std::string text = formatNumber(value, pattern);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

}  // namespace

std::string fieldText(double value) {
  return trimmedNumber(value, "0.0000");
}

std::string dollarsText(double amount) {
  return formatNumber(amount, "$###,###,##0");
}

std::string inchesText(double depth) {
  return formatNumber(depth, "#0.0");
}

std::string acresText(double acres) {
  return trimmedNumber(acres, "###,###,##0.00") + " ac";
}

std::string valueText(double value) {
  return trimmedNumber(value, "###,###,##0.0000");
}

std::string planText(const std::vector<PlannedField>& fields) {
  std::string text;
  for (const PlannedField& field : fields) {
    text += (text.empty() ? "" : ", ") + acresText(field.acres) + " " + printable(field.crop) + " " +
            inchesText(field.grossDepth) + " in.";
  }
  return text;
}

std::string mixText(const Mix& mix) {
  Mix sums;
  for (const MixPart& part : mix) {
    const auto same =
        std::find_if(sums.begin(), sums.end(), [&](const MixPart& sum) { return sum.crop == part.crop; });
    if (same == sums.end()) {
      sums.push_back(part);
    } else {
      same->acres += part.acres;
    }
  }
  std::string text;
  for (const MixPart& sum : sums)
    text += (text.empty() ? "" : " + ") + acresText(sum.acres) + " " + printable(sum.crop);
  return text;
}

std::string cropsText(const std::vector<PlannedField>& plan, std::size_t fields) {
  if (plan.size() < fields && plan.size() == 1) return printable(plan[0].crop) + " (undivided)";
  std::string text;
  for (const PlannedField& field : plan)
    text += (text.empty() ? "" : ", ") + printable(field.crop);
  return text;
}

}  // namespace verdalis
