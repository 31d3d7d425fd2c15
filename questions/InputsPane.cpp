#include "questions/InputsPane.h"

#include <utility>

#include "questions/inputTexts.h"
#include "questions/inputsAnswer.h"
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

}  // namespace

InputsPane::InputsPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneInputs", "What Matters", aboutInputs, services, std::move(farm)) {
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
    return [this, own, percent, found = std::make_shared<const InputsResult>(std::move(*result))] {
      show(own, found, percent);
    };
  };
}

void InputsPane::show(const std::shared_ptr<const Farm>& farm,
                      const std::shared_ptr<const InputsResult>& found, double percent) {
  const InputsResult& result = *found;
  const double now = result.now.profit;
  std::vector<Row> rows;
  for (const InputEffect& effect : result.inputs) {
    rows.push_back({{inputLabel(effect.input), valueText(effect.now), valueText(effect.low),
                     changeText(effect.profitLow - now), valueText(effect.high),
                     changeText(effect.profitHigh - now), effect.changesPlan ? "yes" : "no"},
                    {},
                    false});
  }
  showAnswer(inputsAnswer(*farm, result, percent),
             {{"Input", Table::Align::left, false},
              {"Now", Table::Align::right, false},
              {"Lower", Table::Align::right, false},
              {"Net return", Table::Align::right, false},
              {"Higher", Table::Align::right, false},
              {"Net return", Table::Align::right, false},
              {"Other crops?", Table::Align::left, false}},
             std::move(rows),
             [farm, found, percent](auto most) { return inputsSection(*farm, *found, percent, most); });
}

}  // namespace verdalis
