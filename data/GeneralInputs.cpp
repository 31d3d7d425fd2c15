#include "data/GeneralInputs.h"

#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr int lastLandSplit = 5;

std::optional<int> landSplitIndex(const std::string& text) {
  if (text.empty()) return std::nullopt;
  const int index = toInt16(toDouble(text), "The land split");
  if (index < 0 || index > lastLandSplit) {
    throw RunTimeError(ErrorNumber::subscript, "There is no land split with the index " + text + ".");
  }
  return index;
}

}  // namespace

std::string GeneralInputs::writeData() const {
  return splitIndex + "\r\n" + totalAcres + "\r\n" + waterAllocation + "\r\n" + irrigEff + "\r\n" +
         annualRain;
}

void GeneralInputs::setData(InputControls& controls) const {
  controls.setText("txtAnnRain", annualRain);
  controls.setText("txtEff", irrigEff);
  controls.chooseLandSplit(landSplitIndex(splitIndex));
  controls.setText("txtArea", totalAcres);
  controls.setText("txtMax", waterAllocation);
}

}  // namespace verdalis
