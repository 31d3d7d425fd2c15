#include <cmath>
#include <string>

#include "charts/Chart.h"
#include "text/numbers.h"

namespace verdalis {

std::string styled(double value, const NumberStyle& style) {
  if (!std::isfinite(value)) return {};
  std::string pattern = style.thousands ? "#,##0" : "0";
  if (style.decimals > 0) pattern += "." + std::string(static_cast<std::size_t>(style.decimals), '0');
  const std::string digits = formatNumber(value, pattern);
  // A minus sign stands before the unit, and zero has none.
  if (digits.front() == '-') return "-" + style.before + digits.substr(1) + style.after;
  return style.before + digits + style.after;
}

}  // namespace verdalis
