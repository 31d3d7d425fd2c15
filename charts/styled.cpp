#include <algorithm>
#include <cmath>
#include <string>

#include "charts/Chart.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr int mostDecimals = 30;

/// How many decimals a number has; 0 for one that is written with an exponent.
int decimalsOf(double value) {
  const std::string text = generalText(value);
  const std::size_t point = text.find('.');
  if (point == std::string::npos || text.find('E') != std::string::npos) return 0;
  return static_cast<int>(text.size() - point - 1);
}

}  // namespace

std::string styled(double value, const NumberStyle& style) {
  if (!std::isfinite(value)) return {};
  const int least = style.exact ? decimalsOf(value) : 0;
  const int decimals = std::min(std::max(style.decimals, least), mostDecimals);
  std::string pattern = style.thousands ? "#,##0" : "0";
  if (decimals > 0) pattern += "." + std::string(static_cast<std::size_t>(decimals), '0');
  const std::string digits = formatNumber(value, pattern);
  // A minus sign stands before the unit, and zero has none.
  if (digits.front() == '-') return "-" + style.before + digits.substr(1) + style.after;
  return style.before + digits + style.after;
}

}  // namespace verdalis
