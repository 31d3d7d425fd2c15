#include "questions/MixesPane.h"

#include <cstdint>
#include <utility>

#include "explore/mixes.h"
#include "questions/mixesAnswer.h"
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

}  // namespace

MixesPane::MixesPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneMixes", "Mixes", aboutMixes, services, std::move(farm)) {
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
    return [this, own, found = std::make_shared<const std::vector<Plan>>(std::move(*plans))] {
      show(own, found);
    };
  };
}

void MixesPane::show(const std::shared_ptr<const Farm>& farm,
                     const std::shared_ptr<const std::vector<Plan>>& found) {
  const std::vector<Plan>& plans = *found;
  const double best = plans.front().profit;
  std::vector<Row> rows;
  for (std::size_t i = 0; i < plans.size(); ++i) {
    const Plan& plan = plans[i];
    rows.push_back({{std::to_string(i + 1), mixText(mixOf(plan)), dollarsText(plan.profit),
                     dollarsText(plan.profit - best), planText(plan.fields)},
                    {static_cast<double>(i + 1)},
                    i == 0});
  }
  showAnswer(mixesAnswer(*farm, plans),
             {{"#"},
              {"Mix", Table::Align::left},
              {"Net return", Table::Align::right, false},
              {"Behind", Table::Align::right, false},
              {"Fields and gross inches", Table::Align::left, false}},
             std::move(rows), [farm, found](auto most) { return mixesSection(*farm, *found, most); });
}

}  // namespace verdalis
