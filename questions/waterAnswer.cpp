#include "questions/waterAnswer.h"

#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

const FarmInput water{FarmInput::Kind::water, {}};

std::string perAcreInch(double dollars) {
  return formatNumber(dollars, "$###,##0.00") + " /ac-in";
}

std::string inches(double gross) {
  return valueText(gross) + " in";
}

LineChart chartOf(const Farm& farm, const WaterResult& result) {
  LineChart chart{inputAxis(water, farm), returnAxis(), {}, {}, cropNames(farm), ChartStrip()};
  ChartLine line;
  for (std::size_t i = 0; i < result.points.size(); ++i)
    line.points.push_back({result.points[i].gross, result.points[i].best.profit, i});
  chart.lines.push_back(std::move(line));
  const WaterPoint& most = result.points[result.most];
  chart.markers.push_back({ChartMarker::Kind::now, result.now.gross, "now " + inches(result.now.gross)});
  if (most.gross != result.now.gross)
    chart.markers.push_back({ChartMarker::Kind::best, most.gross, "most at " + inches(most.gross)});
  for (std::size_t i = 0; i < result.points.size(); ++i) {
    const double at = result.points[i].gross;
    const double before = i > 0 ? result.points[i - 1].gross : at;
    const double after = i + 1 < result.points.size() ? result.points[i + 1].gross : at;
    chart.strip->boxes.push_back(
        {(before + at) / 2, (at + after) / 2, categoriesOf(result.points[i].best.fields, chart.categories)});
  }
  return chart;
}

HandoutTable tableOf(const WaterResult& result, std::size_t fields) {
  HandoutTable table{"",
                     {{"Gross irrigation", "in", true, depthStyle},
                      {"Net return", "$", true, dollarsStyle},
                      {"Crops", "", false, {}}},
                     {}};
  addPlanColumns(table, fields, PlanFigures::all);
  for (const WaterPoint& point : result.points) {
    HandoutRow row{{point.gross, point.best.profit, cropsText(point.best.fields, fields)},
                   point.gross == result.now.gross};
    addPlanCells(row, point.best.fields, fields, PlanFigures::all);
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

Answer waterAnswer(const Farm& farm, const WaterResult& result) {
  const WaterPoint& most = result.points[result.most];
  const std::string worth = "One more inch is worth " + perAcreInch(result.nextInch) + ".";
  Answer answer;
  answer.title = "Value of water";
  answer.about = aboutWater;
  answer.chart = {"Best net return of the farm", worth, chartOf(farm, result), {}};
  answer.heading = "At " + inches(result.now.gross);
  answer.figures.push_back({"One more inch is worth", perAcreInch(result.nextInch)});
  if (result.lastInch) answer.figures.push_back({"The last inch brought", perAcreInch(*result.lastInch)});
  answer.figures.push_back({"Net return now", dollarsText(result.now.best.profit)});
  answer.figures.push_back({"The most, at " + inches(most.gross), dollarsText(most.best.profit)});
  answer.note =
      "Water counts in whole acre-inches over the farm, and rain in whole inches, so a small farm shows "
      "steps.";
  return answer;
}

HandoutSection waterSection(const Farm& farm, const WaterResult& result, std::optional<std::size_t> rows) {
  Answer answer = waterAnswer(farm, result);
  answer.tables.push_back(tableOf(result, static_cast<std::size_t>(farm.division.Count())));
  answer.paperColumns = 3;
  answer.rows = "amounts";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
