#include "screens/rangeTest.h"

#include "text/numbers.h"

namespace verdalis {

std::optional<std::string> rangeFault(const std::string& text, double limit, const std::string& label) {
  if (text.empty() || text == "-" || text == ".") return std::nullopt;
  if (!isNumeric(text)) return label + ":  Please enter a numeric value!";
  const double value = toDouble(text);
  if (value >= 0 && value <= limit) return std::nullopt;
  // The limit is told in whole numbers, so that one below a half is not told at all; and 0 passes, although
  // the other message asks for more: both are meant.
  if (value >= 0) {
    return label + ":  Please enter a value that's less than or equal to " +
           formatNumber(limit, "###,###,###");
  }
  return label + ":  Please enter a value that's greater than 0";
}

}  // namespace verdalis
