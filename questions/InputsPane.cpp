#include "questions/InputsPane.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/values.h"

namespace verdalis {
namespace {

constexpr const char* usualPercent = "10";

/// A change in dollars, with its sign.
std::string changeText(double dollars) {
  const std::string text = dollarsText(dollars);
  return dollars > 0 && text != dollarsText(0) ? "+" + text : text;
}

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

}  // namespace

InputsPane::InputsPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(
          window, "pneInputs", "What Matters",
          "How the best net return changes with each input somewhat lower and higher, one at a time. "
          "What changes it most stands first.",
          services, std::move(farm)) {
  watch(txtPercent);
}

void InputsPane::prepare(const Farm& /*farm*/) {
  offer(txtPercent, usualPercent);
}

QuestionPane::Work InputsPane::question(const Farm& farm) {
  const double percent = readField("Percent", [&] {
    const double number = numberOf(txtPercent.text());
    requirePercent(number, farm);
    return number;
  });
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, percent](ProgramState& state, RunHooks& hooks) -> Show {
    const auto boundsOf = [&](const FarmInput& input) { return inputBounds(input, *own); };
    auto result = exploreInputs(*own, percent, boundsOf, state, hooks);
    if (!result) return nullptr;
    return [this, percent, result = std::move(*result)] { show(result, percent); };
  };
}

void InputsPane::show(const InputsResult& result, double percent) {
  const double now = result.now.profit;
  std::vector<Row> rows;
  for (const InputEffect& effect : result.inputs) {
    rows.push_back({{inputLabel(effect.input), valueText(effect.now), valueText(effect.low),
                     changeText(effect.profitLow - now), valueText(effect.high),
                     changeText(effect.profitHigh - now), effect.changesPlan ? "yes" : "no"},
                    {},
                    false});
  }
  std::vector<FigureText> texts{{"Net return now", dollarsText(now)}};
  std::string summary = "The best net return now is " + dollarsText(now) + ".";
  if (!result.inputs.empty()) {
    const InputEffect& first = result.inputs.front();
    const double change = std::max(std::abs(first.profitLow - now), std::abs(first.profitHigh - now));
    texts.push_back({"Matters most", inputLabel(first.input)});
    texts.push_back({"It changes up to", dollarsText(change)});
    summary += " " + inputLabel(first.input) + " changes it most.";
  }
  const auto changing = std::count_if(result.inputs.begin(), result.inputs.end(),
                                      [](const InputEffect& effect) { return effect.changesPlan; });
  texts.push_back({"Inputs that change the plan", std::to_string(changing)});
  showAnswer({"Best net return of the farm", summary, chartOf(result), {}},
             {{"Input", Table::Align::left, false},
              {"Now", Table::Align::right, false},
              {"Lower", Table::Align::right, false},
              {"Net return", Table::Align::right, false},
              {"Higher", Table::Align::right, false},
              {"Net return", Table::Align::right, false},
              {"Other crops?", Table::Align::left, false}},
             std::move(rows));
  showFigures("Each input " + valueText(percent) + " % lower and higher", texts,
              "Values stay within what the fields of the program take, and rain within 11 to 21 inches. "
              "Water counts in whole acre-inches and rain in whole inches, so small changes may show none.");
}

}  // namespace verdalis
