#include "questions/seasonsAnswer.h"

#include <algorithm>
#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"

namespace verdalis {
namespace {

ChartLine lineOf(const std::string& name, const std::vector<Season>& seasons,
                 const std::vector<double>& profits) {
  ChartLine line{name, {}, true, true};
  for (std::size_t i = 0; i < seasons.size(); ++i)
    line.points.push_back({seasons[i].rain, profits[i], {}});
  std::stable_sort(line.points.begin(), line.points.end(),
                   [](const ChartLine::Point& a, const ChartLine::Point& b) { return a.x < b.x; });
  return line;
}

LineChart chartOf(const Farm& farm, const SeasonsResult& result) {
  const FarmInput rain{FarmInput::Kind::rain, {}};
  LineChart chart{{"rain of the season, inches", inputStyle(rain)},
                  {"Net return of the farm", returnAxis().style},
                  {},
                  {},
                  {},
                  {}};
  std::vector<Season> seasons;
  std::vector<double> own;
  for (const SeasonBest& season : result.seasons) {
    seasons.push_back(season.season);
    own.push_back(season.best.profit);
  }
  chart.lines.push_back(lineOf("Best of each season", seasons, own));
  chart.lines.push_back(lineOf("Best average", seasons, result.options.front().profits));
  chart.lines.push_back(lineOf("Safest", seasons, result.safest.profits));
  chart.markers.push_back({ChartMarker::Kind::now, farm.rain, "now " + valueText(farm.rain) + " in"});
  return chart;
}

HandoutTable plansOf(const SeasonsResult& result, std::size_t fields) {
  HandoutTable table{"Plans that are chosen before the season is known",
                     {{"Plan", "", false, {}},
                      {"Average", "$", true, dollarsStyle},
                      {"Worst", "$", true, dollarsStyle},
                      {"Regret", "$", true, dollarsStyle}},
                     {}};
  for (const SeasonBest& season : result.seasons)
    table.columns.push_back({printable(season.season.name), "$", true, dollarsStyle});
  table.columns.push_back({"Acres, crops and gross inches", "", false, {}});
  addPlanColumns(table, fields, PlanFigures::depths);
  const auto add = [&](const HandoutCell& name, const SeasonPlan& plan, bool strong) {
    HandoutRow row{{name, plan.average, plan.worst, plan.regret}, strong};
    row.cells.insert(row.cells.end(), plan.profits.begin(), plan.profits.end());
    row.cells.emplace_back(planText(plan.fields));
    addPlanCells(row, plan.fields, fields, PlanFigures::depths);
    table.rows.push_back(std::move(row));
  };
  add("Safest", result.safest, true);
  for (std::size_t i = 0; i < result.options.size(); ++i)
    add(static_cast<double>(i + 1), result.options[i], false);
  return table;
}

HandoutTable seasonsOf(const SeasonsResult& result, std::size_t fields) {
  HandoutTable table{"The seasons, each with its own best plan",
                     {{"Season", "", false, {}},
                      {"Rain", "in", true, depthStyle},
                      {"Weight", "", true, {"", "", 2, true}},
                      {"Best net return", "$", true, dollarsStyle},
                      {"Acres, crops and gross inches", "", false, {}}},
                     {}};
  addPlanColumns(table, fields, PlanFigures::all);
  for (const SeasonBest& season : result.seasons) {
    HandoutRow row{{printable(season.season.name), season.season.rain, season.season.weight,
                    season.best.profit, planText(season.best.fields)},
                   false};
    addPlanCells(row, season.best.fields, fields, PlanFigures::all);
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

Answer seasonsAnswer(const Farm& farm, const SeasonsResult& result) {
  const SeasonPlan& best = result.options.front();
  const std::string summary = "The best average is " + dollarsText(best.average) + "; the safest plan has " +
                              dollarsText(result.safest.average) + ".";
  Answer answer;
  answer.title = "Seasons";
  answer.about = aboutSeasons;
  answer.chart = {"Net return of the farm by season", summary, chartOf(farm, result), {}};
  answer.heading = "Before the season is known";
  answer.figures = {{"Best average", dollarsText(best.average)},
                    {"Its worst season", dollarsText(best.worst)},
                    {"The safest plan, average", dollarsText(result.safest.average)},
                    {"The safest, worst season", dollarsText(result.safest.worst)}};
  answer.note =
      "Regret is the most that a plan falls behind the best plan of a season; the safest plan has the least "
      "of "
      "all plans.";
  return answer;
}

HandoutSection seasonsSection(const Farm& farm, const SeasonsResult& result,
                              std::optional<std::size_t> rows) {
  Answer answer = seasonsAnswer(farm, result);
  const auto fields = static_cast<std::size_t>(farm.division.Count());
  answer.tables = {plansOf(result, fields), seasonsOf(result, fields)};
  answer.paperColumns = 5 + result.seasons.size();
  answer.rows = "plans";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
