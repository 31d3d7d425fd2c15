#include "trend/FixedTrendExport.h"

#include "model/checked.h"
#include "model/listIndex.h"
#include "results/figures.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "trend/exportText.h"

namespace verdalis {
namespace {

const std::string colour = "#cccccc";
constexpr const char* valuePattern = "###,##0.00";
constexpr const char* moneyPattern = "###,###,##0.00";
constexpr const char* plainPattern = "###,##0.0";

/// The heading of a variable of an option (from 1): its name and its unit in brackets.
std::string variableHead(const FieldCollection& option, long number) {
  const std::size_t place = listIndex(number, option.theVariable.size());
  const UnitsPair& units = option.theUnits[place];
  return escaped(option.theVariable[place] + " (" + units[0] + units[1] + ")");
}

std::string valueText(const FieldCollection& option, long number) {
  return formatNumber(option.theValue[listIndex(number, option.theValue.size())], valuePattern);
}

void addValues(const TrendOptionArray& options, std::string& text) {
  const FieldCollection& first = *options.at(0, 0);
  const std::string rowHead = "<td bgcolor='" + colour + "'><b>" + variableHead(first, 1) + "</b></td>";
  if (options.dimensions() == 2) {
    addLine(text, "<tr><td></td><td align='center' bgcolor='" + colour + "'><b>" + variableHead(first, 2) +
                      "</b></td></tr>");
    addLine(text, "<tr>" + rowHead + "<td><table bgcolor='" + colour + "' border=1>");
    for (std::size_t j = 0; j < options.columns(); ++j)
      addLine(text, "<td>" + valueText(*options.at(0, j), 2) + "</td>");
    addLine(text, "</table></td></tr>");
  } else {
    addLine(text, "<tr>" + rowHead + "</tr>");
  }
  addLine(text, "<tr><td><table bgcolor='" + colour + "' border=1>");
  for (std::size_t i = 0; i < options.rows(); ++i)
    addLine(text, "<tr><td>" + valueText(*options.at(i, 0), 1) + "</td></tr>");
  addLine(text, "</table></td>");
}

void addNetReturns(const FixedTrendExport& trend, std::string& text) {
  addLine(text, "<td><table>");
  for (std::size_t i = 0; i < trend.options.rows(); ++i) {
    addLine(text, "<tr>");
    for (std::size_t j = 0; j < trend.options.columns(); ++j) {
      const double profit = trend.options.at(i, j)->getProfit();
      addLine(text, "<td>$" + formatNumber(perAcre(profit, acresOf(trend.SelectedOption)), valuePattern) +
                        " /ac</td>");
    }
    addLine(text, "</tr>");
  }
  addLine(text, "</table></td></tr>");
  addLine(text, "</table>");
}

double grossDepth(double net, const std::string& txtEff) {
  const double fraction = Val(txtEff) / 100;
  if (fraction == 0) {
    throw RunTimeError(ErrorNumber::divisionByZero,
                       "The irrigation efficiency is 0 %, so there is no gross irrigation. Check "
                       "\"Irrigation Efficiency %\".");
  }
  return checked(net / fraction, "The gross irrigation of a field");
}

void addField(const FixedTrendExport& trend, Field& field, int number, std::string& text) {
  Crop& crop = *field.theCrop;
  const auto row = [&](const std::string& head, const std::string& value, const std::string& mark = "") {
    addLine(text, "<tr><td>" + head + "</td><td" + mark + ">" + escaped(value) + "</td></tr>");
  };
  const auto shown = [&](std::int16_t variable) { return !trend.isTrended(variable, crop.cropType); };
  addLine(text, "<table><tr><td></td></tr></table>");
  addLine(text, "<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #" +
                    std::to_string(number) + "</b></td></tr>");
  row("Crop:", crop.cropType, textMark(crop.cropType));
  row("Acres:", generalText(field.acres) + " acres");
  row("Gross Irrigation", formatNumber(grossDepth(field.Depth, trend.txtEff), "##0.0") + " inches");
  // The price has the plural of the unit and the yield the abbreviation. This is intended.
  if (shown(0)) {
    row("Crop Price:", "$" + formatNumber(crop.price, moneyPattern) + "/" + crop.cropUnitsArray[1]);
  }
  if (shown(1)) {
    const double costs = perAcre(field.getProductionCosts(), field.acres);
    row("Total Production Costs:", "$" + formatNumber(costs, moneyPattern) + " /ac");
  }
  if (shown(2)) {
    row("Maximum Yield:", formatNumber(crop.maxYield, plainPattern) + " " + crop.cropUnitsArray[0] + "/ac");
  }
  if (shown(5)) row("Annual Rainfall:", formatNumber(field.annualRain, plainPattern) + " inches");
  if (shown(4)) {
    const double costs = perAcre(field.irrigCosts->getCosts(field.Depth, field.acres), field.acres);
    row("Irrigation Costs:", "$" + formatNumber(costs, moneyPattern) + " /ac");
  }
  if (shown(3)) row("Irrigation System Efficiency:", trend.txtEff + "%");
  addLine(text, "</table>");
}

}  // namespace

std::vector<Results::TrendedVariable> trendedVariables(const std::vector<BatchProcess>& processes) {
  std::vector<Results::TrendedVariable> variables;
  variables.reserve(processes.size());
  for (const BatchProcess& process : processes)
    variables.push_back({process.cropIndex, toInt16(process.VariableIndex)});
  return variables;
}

void writeFixedTrend(const FixedTrendExport& trend, std::string& text) {
  addHead(text, trend.today);
  addLine(text, "<table border=1>");
  addLine(text,
          "<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend "
          "Variable</strong></td></tr>");
  addValues(trend.options, text);
  addNetReturns(trend, text);
  addLine(text, "<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>");
  int number = 0;
  for (const auto& field : trend.SelectedOption)
    addField(trend, *field, ++number, text);
  addTail(text);
}

}  // namespace verdalis
