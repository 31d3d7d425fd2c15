#include "model/reportText.h"

#include "model/checked.h"
#include "text/numbers.h"

namespace verdalis {

std::string profitLine(double dollars) {
  return "Profit = $" + formatNumber(dollars, "###,###,###,000.00") + "\r\n";
}

std::string returnLine(double dollars) {
  return "Return = $" + formatNumber(dollars, "###,###,###,000") + "\r\n";
}

std::string grossVolumeLine(const FieldCollection& option, bool twoDecimals) {
  const double volume = grossFromNet(option.getVolume());
  return "Total Gross Irrigated Volume = " +
         formatNumber(volume, twoDecimals ? "###,###.00" : "###,###,000") + "ac-in\r\n\r\n";
}

std::string volumesText(const std::vector<double>& acreInches) {
  std::string text;
  for (const double volume : acreInches)
    text += generalText(volume) + " ac-in      ";
  return text;
}

}  // namespace verdalis
