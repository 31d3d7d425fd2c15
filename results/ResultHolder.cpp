#include "results/ResultHolder.h"

#include "model/checked.h"
#include "results/figures.h"
#include "results/passOver.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr const char* depthPattern = "#0.0";
constexpr const char* moneyPattern = "###,##0";

}  // namespace

ResultHolder::ResultHolder(Frame& container, const std::string& name) : Frame(container, name, Scope::named) {
  cmdDetails.onClick.connect([this] { onDetails(theField); });
}

void ResultHolder::loadField(const Field& field) {
  theField = std::make_shared<Field>(field.Copy());
  Field& shown = *theField;
  passOver([&] { lblAcres.setCaption(formatNumber(shown.acres, "###,###,##0.0")); });
  lblCrop.setCaption(shown.theCrop->cropType);
  passOver([&] { lblYield.setCaption(shown.theCrop->yieldToString()); });
  passOver([&] { lblGross.setCaption(inches(grossFromNet(shown.Depth), depthPattern)); });
  passOver([&] { lblNet.setCaption(inches(shown.Depth, depthPattern)); });
  passOver([&] { lblTC.setCaption(dollarsAnAcre(perAcre(shown.getCosts(), shown.acres), moneyPattern)); });
  passOver([&] { lblTR.setCaption(dollarsAnAcre(perAcre(shown.getReturn(), shown.acres), moneyPattern)); });
  passOver([&] {
    const double profit = shown.getReturn() - shown.getCosts();
    lblProfit.setCaption(dollarsAnAcre(perAcre(profit, shown.acres), moneyPattern));
  });
}

void ResultHolder::inactive() {
  cmdDetails.setEnabled(false);
}

}  // namespace verdalis
