#include "trend/VariableTrendExport.h"

#include "model/listIndex.h"
#include "results/figures.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "trend/exportText.h"

namespace verdalis {
namespace {

constexpr int ranks = 4;
constexpr const char* valuePattern = "###,##0.00";
constexpr const char* nextCell = "</td><td valign=top>";

/// The alternating colours of the rows. The second has two number signs. This is intended.
class RowColours {
 public:
  const std::string& next() {
    colour_ = colour_ == first ? second : first;
    return colour_;
  }

 private:
  static constexpr const char* first = "#ffcc99";
  static constexpr const char* second = "##FFFF99";
  std::string colour_;
};

/// The value of a step (from 1).
std::string valueText(const VariableTrendExport& trend, long step) {
  const TrendValue& value = trend.TrendValues[listIndex(step, trend.TrendValues.size())];
  return formatNumber(numberOf(value), valuePattern);
}

void addField(const VariableTrendExport& trend, long step, Field& field, std::string& text) {
  const Crop& crop = *field.theCrop;
  const std::string efficiency =
      trend.units[1] == "%" ? valueText(trend, step) + " " + trend.units[1] : trend.txtEff + " %";
  const double irrigation = perAcre(field.irrigCosts->getCosts(field.Depth, field.acres), field.acres);
  const double costs = perAcre(field.getCosts(), field.acres);
  std::string line = "<tr><td valign=top" + textMark(crop.cropType) + ">" + escaped(crop.cropType);
  line += nextCell + generalText(field.acres);
  line += nextCell + formatNumber(field.Depth, "###,##0.0") + "''";
  line += nextCell + ("$" + generalText(crop.price)) + " / " + escaped(crop.cropUnitsArray[0]);
  line += nextCell + generalText(crop.maxYield) + " " + escaped(crop.cropUnitsArray[1]) + "/ac";
  line += nextCell + generalText(field.annualRain) + " in.";
  line += nextCell + escaped(efficiency);
  line += nextCell + formatNumber(irrigation, "$###,###,###0") + " /ac";
  line += nextCell + formatNumber(costs, "$###,###,##0") + " /ac</td></tr>";
  addLine(text, line);
}

RunTimeError tooFewOptions(ErrorNumber number, long step) {
  return {number,
          "Step " + std::to_string(step) + " has fewer than " + std::to_string(ranks) +
              " options, and the table shows that many of each step. Keep more options, tick more crops, "
              "or raise the iteration factor."};
}

void addStep(const VariableTrendExport& trend, long step, FieldCollection& option, RowColours& colours,
             std::string& text) {
  addLine(text, "<tr bgcolor='" + colours.next() + "'><td>Step " + std::to_string(step) + "</td>");
  addLine(text, "<td valign=top>" + escaped(trend.units[0]) + valueText(trend, step) + " " +
                    escaped(trend.units[1]) + "</td>");
  addLine(text, "<td colspan='9'><table border=1>");
  for (const auto& field : option)
    addField(trend, step, *field, text);
  addLine(text, "</table></td>");
  if (option.Count() == 0) throw tooFewOptions(ErrorNumber::divisionByZero, step);
  const double profit = perAcre(option.getProfit(), acresOf(option));
  addLine(text, "<td valign=top>" + formatNumber(profit, "$###,###,##0") + " /ac</td>");
  addLine(text, "</tr>");
}

}  // namespace

void writeVariableTrend(const VariableTrendExport& trend, std::string& text) {
  addHead(text, trend.today);
  addLine(text,
          "<table><tr><td colspan=12 align=center><h2><strong>The output below shows the top results from "
          "each option.</strong></h2><hr></td></tr></table>");
  const std::string variable = escaped(trend.TrendVariableCrop + " " + trend.TrendVariableName);
  RowColours colours;
  for (int rank = 1; rank <= ranks; ++rank) {
    addLine(text, "<table border=1>");
    addLine(text, "<tr><th colspan=12 align=center><h2>" + ordinal(rank) + " Best Options for " + variable +
                      " Variable-Irrigation Trend Process</h2></th></tr>");
    addLine(text, "<tr bgcolor=#cccccc><td></td><th" + textMark(trend.TrendVariableCrop) + ">" + variable +
                      "</th><th>Crop</th><th>Acres</th><th>Net Irr</th><th>Price</th><th>Maximum Yield</th>"
                      "<th>Annual Rain</th><th>Irrig Efficiency</th><th>Irr Cost</th><th>Total Prod Costs"
                      "</th><th>Net Return</th></tr>");
    for (std::size_t s = 0; s < trend.batches.size(); ++s) {
      const std::vector<BestMix::Option> options = trend.batches[s].returnCollection(true);
      const long step = static_cast<long>(s) + 1;
      if (static_cast<std::size_t>(rank) > options.size()) throw tooFewOptions(ErrorNumber::subscript, step);
      addStep(trend, step, *options[static_cast<std::size_t>(rank) - 1], colours, text);
    }
    addLine(text, "</table>");
  }
  addTail(text);
}

}  // namespace verdalis
