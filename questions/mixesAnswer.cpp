#include "questions/mixesAnswer.h"

#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"

namespace verdalis {
namespace {

BarChart chartOf(const std::vector<Plan>& plans) {
  BarChart chart{returnAxis(), {}, {}};
  for (std::size_t i = 0; i < plans.size(); ++i) {
    chart.bars.push_back({mixText(mixOf(plans[i])), 0, plans[i].profit, "", dollarsText(plans[i].profit),
                          i == 0 ? BarChart::Bar::Kind::total : BarChart::Bar::Kind::plain, i});
  }
  return chart;
}

HandoutTable tableOf(const std::vector<Plan>& plans, std::size_t fields) {
  HandoutTable table{"",
                     {{"Rank", "", true, wholeStyle},
                      {"Mix", "", false, {}},
                      {"Net return", "$", true, dollarsStyle},
                      {"Behind", "$", true, dollarsStyle},
                      {"Fields and gross inches", "", false, {}}},
                     {}};
  addPlanColumns(table, fields, PlanFigures::all);
  for (std::size_t i = 0; i < plans.size(); ++i) {
    const Plan& plan = plans[i];
    HandoutRow row{{static_cast<double>(i + 1), mixText(mixOf(plan)), plan.profit,
                    plan.profit - plans.front().profit, planText(plan.fields)},
                   i == 0};
    addPlanCells(row, plan.fields, fields, PlanFigures::all);
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

Answer mixesAnswer(const Farm& /*farm*/, const std::vector<Plan>& plans) {
  const double best = plans.front().profit;
  const std::string summary = "The best mix is " + mixText(mixOf(plans.front())) + ".";
  Answer answer;
  answer.title = "Mixes";
  answer.about = aboutMixes;
  answer.chart = {"Best net return of each mix", summary, chartOf(plans), {}};
  answer.heading = std::to_string(plans.size()) + (plans.size() == 1 ? " mix" : " mixes");
  answer.figures.push_back({"Best net return", dollarsText(best)});
  if (plans.size() > 1) {
    answer.figures.push_back({"The second mix is behind by", dollarsText(best - plans[1].profit)});
    answer.figures.push_back({"The last one by", dollarsText(best - plans.back().profit)});
  }
  answer.note = summary;
  return answer;
}

HandoutSection mixesSection(const Farm& farm, const std::vector<Plan>& plans,
                            std::optional<std::size_t> rows) {
  Answer answer = mixesAnswer(farm, plans);
  answer.tables.push_back(tableOf(plans, static_cast<std::size_t>(farm.division.Count())));
  answer.paperColumns = 5;
  answer.rows = "mixes";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
