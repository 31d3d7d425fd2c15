#include "results/ExplainedSteps.h"

#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {

void ExplainedSteps::add(std::string what, std::string formula, double value, std::string digits,
                         std::string unit) {
  std::string shown = std::move(digits);
  if (unit == "inches") {
    shown += "''";
  } else if (!unit.empty()) {
    shown += " " + unit;
  }
  steps_.push_back({std::move(what), std::move(formula), value, std::move(unit), std::move(shown)});
}

void ExplainedSteps::addPerAcre(std::string what, std::string formula, double amount,
                                std::string_view acrePattern) {
  addPerAcre(std::move(what), std::move(formula), amount, acrePattern, acres_);
}

void ExplainedSteps::addPerAcre(std::string what, std::string formula, double amount,
                                std::string_view acrePattern, double acres) {
  if (acres != 0) formula += " (" + dollarsAnAcre(perAcre(amount, acres), acrePattern) + ")";
  addMoney(std::move(what), std::move(formula), amount);
}

void ExplainedSteps::addMoney(std::string what, std::string formula, double amount) {
  steps_.push_back({std::move(what), std::move(formula), amount, "$", moneyText(amount)});
}

std::string ExplainedSteps::acresText() const {
  return counted(acres_, "acre");
}

std::string rateText(double rate) {
  return "$" + generalText(rate);
}

std::string moneyText(double amount) {
  return formatNumber(amount, "$###,##0.00");
}

std::string counted(double number, const std::string& unit) {
  return generalText(number) + " " + unit + (number == 1 ? "" : "s");
}

}  // namespace verdalis
