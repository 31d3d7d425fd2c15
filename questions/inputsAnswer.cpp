#include "questions/inputsAnswer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"

namespace verdalis {
namespace {

BarChart chartOf(const InputsResult& result) {
  BarChart chart{returnAxis(), {}, result.now.profit};
  for (std::size_t i = 0; i < result.inputs.size(); ++i) {
    const InputEffect& effect = result.inputs[i];
    const bool rises = effect.profitLow <= effect.profitHigh;
    const std::string low = valueText(effect.low);
    const std::string high = valueText(effect.high);
    chart.bars.push_back({inputLabel(effect.input), std::min(effect.profitLow, effect.profitHigh),
                          std::max(effect.profitLow, effect.profitHigh), rises ? low : high,
                          rises ? high : low, BarChart::Bar::Kind::plain, i});
  }
  return chart;
}

HandoutTable tableOf(const Farm& farm, const InputsResult& result) {
  const NumberStyle values{"", "", 2, true};
  HandoutTable table{"",
                     {{"Input", "", false, {}},
                      {"Unit", "", false, {}},
                      {"Now", "", true, values},
                      {"Lower", "", true, values},
                      {"Change of the net return", "$", true, dollarsStyle},
                      {"Higher", "", true, values},
                      {"Change of the net return", "$", true, dollarsStyle},
                      {"Other crops?", "", false, {}},
                      {"Net return, lower", "$", true, dollarsStyle},
                      {"Net return, higher", "$", true, dollarsStyle}},
                     {}};
  const double now = result.now.profit;
  for (const InputEffect& effect : result.inputs) {
    table.rows.push_back({{inputLabel(effect.input), inputUnit(effect.input, farm), effect.now, effect.low,
                           effect.profitLow - now, effect.high, effect.profitHigh - now,
                           effect.changesPlan ? "yes" : "no", effect.profitLow, effect.profitHigh},
                          false});
  }
  return table;
}

}  // namespace

Answer inputsAnswer(const Farm& /*farm*/, const InputsResult& result, double percent) {
  const double now = result.now.profit;
  Answer answer;
  answer.title = "What matters";
  answer.about = aboutInputs;
  answer.figures.push_back({"Net return now", dollarsText(now)});
  std::string summary = "The best net return now is " + dollarsText(now) + ".";
  if (!result.inputs.empty()) {
    const InputEffect& first = result.inputs.front();
    const double change = std::max(std::abs(first.profitLow - now), std::abs(first.profitHigh - now));
    answer.figures.push_back({"Matters most", inputLabel(first.input)});
    answer.figures.push_back({"It changes up to", dollarsText(change)});
    summary += " " + inputLabel(first.input) + " changes it most.";
  }
  const auto changing = std::count_if(result.inputs.begin(), result.inputs.end(),
                                      [](const InputEffect& effect) { return effect.changesPlan; });
  answer.figures.push_back({"Inputs that change the plan", std::to_string(changing)});
  answer.chart = {"Best net return of the farm", summary, chartOf(result), {}};
  answer.heading = "Each input " + valueText(percent) + " % lower and higher";
  answer.note =
      "Values stay within what the fields of the program take, and rain within 11 to 21 inches. Water counts "
      "in "
      "whole acre-inches and rain in whole inches, so small changes may show none.";
  return answer;
}

HandoutSection inputsSection(const Farm& farm, const InputsResult& result, double percent,
                             std::optional<std::size_t> rows) {
  Answer answer = inputsAnswer(farm, result, percent);
  answer.tables.push_back(tableOf(farm, result));
  answer.paperColumns = 8;
  answer.rows = "inputs";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
