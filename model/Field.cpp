#include "model/Field.h"

#include <string_view>

#include "model/CropKind.h"
#include "model/PricedField.h"
#include "model/checked.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The first `count` characters of a UTF-8 text.
std::string_view firstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const bool begins = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
    if (begins && count-- == 0) break;
  }
  return text.substr(0, end);
}

}  // namespace

std::string Field::toString() {
  const double costs = getCosts();
  const double returns = getReturn();
  const double irrigation = irrigCosts->getCosts(Depth, acres);
  const double landUsage = theCrop->inputCosts.getReturns(acres);
  return generalText(acres) + " ac.\t" + formatNumber(Depth, "###,##0.00") + "'' Net Irrig Water, \t" +
         std::string(firstCharacters(theCrop->cropType, 7)) + " Yield = " + theCrop->yieldToString() +
         "\tTotal Costs = $" + formatNumber(costs, "###,###,#00.##") + "\t\tTotal Returns = $" +
         formatNumber(returns, "###,###,##0.##") +
         "\r\nGross Irrig Water = " + formatNumber(grossFromNet(Depth), "#,##0.00") +
         "''\r\nTotal Water Pumping Cost : $" + formatNumber(irrigation, "###,###,000") +
         "\r\nLand Usage Return = $" + formatNumber(landUsage, "###,###,##0");
}

double Field::getReturn() {
  if (TotalReturn != 0) return TotalReturn;
  TotalReturn = totalReturns(*theCrop, salesOf(*theCrop, theCrop->Yield, acres), acres);
  return TotalReturn;
}

void Field::makeFallow() {
  auto fallow = std::make_shared<Crop>();
  fallow->cropType = cropName(CropKind::fallow);
  theCrop = std::move(fallow);
  Depth = 0;
}

double Field::getCosts(double efficiency) {
  if (TotalCost != 0) return TotalCost;
  const double production = getProductionCosts(efficiency);
  const double irrigation = irrigCosts->getCosts(Depth, acres, efficiency);
  TotalCost = checked(irrigation + production, "The cost of a field");
  return TotalCost;
}

double Field::getProductionCosts(double efficiency) {
  Crop& crop = *theCrop;
  double grossDepth = grossFromNet(Depth, efficiency);
  return crop.inputCosts.getCosts(acres, crop.Yield, crop, grossDepth, efficiency);
}

double Field::getProfit(double efficiency) {
  const double costs = getCosts(efficiency);
  return checked(getReturn() - costs, "The profit of a field");
}

Field Field::Copy() const {
  Field copy;
  copy.acres = acres;
  copy.Depth = Depth;
  copy.annualRain = annualRain;
  copy.TotalCost = TotalCost;
  copy.theCrop = std::make_shared<Crop>(theCrop->Copy());
  copy.irrigCosts = std::make_shared<IrrigationCosts>(irrigCosts->Copy());
  return copy;
}

}  // namespace verdalis
