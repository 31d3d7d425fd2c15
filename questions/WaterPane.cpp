#include "questions/WaterPane.h"

#include <utility>

#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/values.h"
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

}  // namespace

WaterPane::WaterPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneWater", "Value of Water",
                   "How the best net return of the farm grows with its water. Each point is the best of all "
                   "plans with that much water.",
                   services, std::move(farm)) {
  for (TextBox* box : {&txtFrom, &txtTo, &txtPoints})
    watch(*box);
}

void WaterPane::prepare(const Farm& farm) {
  const std::vector<double> usual = usualAmounts(farm);
  if (usual.empty()) return;
  offer(txtFrom, fieldText(usual.front()));
  offer(txtTo, fieldText(usual.back()));
  offer(txtPoints, std::to_string(usual.size()));
}

std::vector<double> WaterPane::amounts(const Farm& farm) const {
  // The fields show rounded amounts.
  if (hasOffered(txtFrom) && hasOffered(txtTo) && hasOffered(txtPoints)) {
    std::vector<double> usual = usualAmounts(farm);
    if (!usual.empty()) return usual;
  }
  ValueRange range;
  range.from = readField("From", [&] { return numberOf(txtFrom.text()); });
  range.to = readField("To", [&] { return numberOf(txtTo.text()); });
  readField("To", [&] { requireAbove(range.from, range.to); });
  range.count = readField("Points", [&] { return countOf(txtPoints.text()); });
  readField("From", [&] { requireValue(water, range.from, farm); });
  readField("To", [&] { requireValue(water, range.to, farm); });
  return range.values();
}

QuestionPane::Work WaterPane::question(const Farm& farm) {
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, amounts = amounts(farm)](ProgramState& state, RunHooks& hooks) -> Show {
    auto result = exploreWater(*own, amounts, state, hooks);
    if (!result) return nullptr;
    return [this, own, result = std::move(*result)] { show(*own, result); };
  };
}

void WaterPane::show(const Farm& farm, const WaterResult& result) {
  const WaterPoint& most = result.points[result.most];
  const auto fields = static_cast<std::size_t>(farm.division.Count());
  std::vector<Row> rows;
  for (const WaterPoint& point : result.points) {
    rows.push_back(
        {{valueText(point.gross), dollarsText(point.best.profit), cropsText(point.best.fields, fields)},
         {point.gross, point.best.profit},
         point.gross == result.now.gross});
  }
  std::string worth = "One more inch is worth " + perAcreInch(result.nextInch);
  showAnswer({"Best net return of the farm", worth + ".", chartOf(farm, result), {}},
             {{"in."}, {"Net return"}, {"Crops", Table::Align::left}}, std::move(rows));
  std::vector<FigureText> texts{{"One more inch is worth", perAcreInch(result.nextInch)}};
  if (result.lastInch) texts.push_back({"The last inch brought", perAcreInch(*result.lastInch)});
  texts.push_back({"Net return now", dollarsText(result.now.best.profit)});
  texts.push_back({"The most, at " + inches(most.gross), dollarsText(most.best.profit)});
  showFigures("At " + inches(result.now.gross), texts,
              "Water counts in whole acre-inches over the farm, and rain in whole inches, so a small farm "
              "shows steps.");
}

}  // namespace verdalis
