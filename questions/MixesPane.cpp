#include "questions/MixesPane.h"

#include <cstdint>
#include <utility>

#include "explore/mixes.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/values.h"

namespace verdalis {
namespace {

constexpr const char* usualMixes = "12";
constexpr double mostMixes = 1000;

/// \throws std::invalid_argument
std::int16_t mixCountOf(const std::string& text) {
  const double count = numberOf(text);
  if (count < 1 || count > mostMixes || count != static_cast<double>(static_cast<std::int16_t>(count)))
    throw std::invalid_argument("The number of mixes must be a whole number from 1 to 1,000.");
  return static_cast<std::int16_t>(count);
}

BarChart chartOf(const std::vector<Plan>& plans) {
  BarChart chart{returnAxis(), {}, {}};
  for (std::size_t i = 0; i < plans.size(); ++i) {
    chart.bars.push_back({mixText(mixOf(plans[i])), 0, plans[i].profit, "", dollarsText(plans[i].profit),
                          i == 0 ? BarChart::Bar::Kind::total : BarChart::Bar::Kind::plain, i});
  }
  return chart;
}

}  // namespace

MixesPane::MixesPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneMixes", "Mixes",
                   "The best plan of each mix: what is grown on how many acres, whatever field it stands on "
                   "and however the water is given.",
                   services, std::move(farm)) {
  watch(txtMixes);
}

void MixesPane::prepare(const Farm& /*farm*/) {
  offer(txtMixes, usualMixes);
}

QuestionPane::Work MixesPane::question(const Farm& farm) {
  const std::int16_t count = readField("Mixes", [&] { return mixCountOf(txtMixes.text()); });
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, count](ProgramState& state, RunHooks& hooks) -> Show {
    auto plans = exploreMixes(*own, count, state, hooks);
    if (!plans) return nullptr;
    return [this, plans = std::move(*plans)] { show(plans); };
  };
}

void MixesPane::show(const std::vector<Plan>& plans) {
  const double best = plans.front().profit;
  std::vector<Row> rows;
  for (std::size_t i = 0; i < plans.size(); ++i) {
    const Plan& plan = plans[i];
    rows.push_back({{std::to_string(i + 1), mixText(mixOf(plan)), dollarsText(plan.profit),
                     dollarsText(plan.profit - best), planText(plan.fields)},
                    {static_cast<double>(i + 1)},
                    i == 0});
  }
  const std::string name = mixText(mixOf(plans.front()));
  const std::string summary = "The best mix is " + name + ".";
  showAnswer({"Best net return of each mix", summary, chartOf(plans), {}},
             {{"#"},
              {"Mix", Table::Align::left},
              {"Net return", Table::Align::right, false},
              {"Behind", Table::Align::right, false},
              {"Fields and gross inches", Table::Align::left, false}},
             std::move(rows));
  std::vector<FigureText> texts{{"Best net return", dollarsText(best)}};
  if (plans.size() > 1) {
    texts.push_back({"The second mix is behind by", dollarsText(best - plans[1].profit)});
    texts.push_back({"The last one by", dollarsText(best - plans.back().profit)});
  }
  showFigures(std::to_string(plans.size()) + (plans.size() == 1 ? " mix" : " mixes"), texts, summary);
}

}  // namespace verdalis
