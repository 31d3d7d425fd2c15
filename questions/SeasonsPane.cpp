#include "questions/SeasonsPane.h"

#include <algorithm>
#include <utility>

#include "questions/planText.h"
#include "questions/seasonsAnswer.h"
#include "questions/values.h"

namespace verdalis {
namespace {

constexpr double safestRank = 0;

}  // namespace

SeasonsPane::SeasonsPane(Frame& window, Services& services, FarmToExplore farm,
                         std::function<std::vector<Season>()> farmSeasons)
    : QuestionPane(window, "pneSeasons", "Seasons", aboutSeasons, services, std::move(farm)),
      farmSeasons_(std::move(farmSeasons)) {
  for (std::size_t i = 0; i < mostSeasons; ++i) {
    lines.push_back(std::make_unique<Line>(*this, i));
    for (TextBox* box : {&lines[i]->txtSeason, &lines[i]->txtRain, &lines[i]->txtWeight})
      watch(*box);
  }
  setCount(0);
  cmdAddSeason.onClick.connect([this] { addSeason(); });
  cmdRemoveSeason.onClick.connect([this] {
    if (count_ <= leastSeasons) return;
    setCount(count_ - 1);
    changed();
  });
}

void SeasonsPane::setCount(std::size_t count) {
  count_ = count;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (TextBox* box : {&lines[i]->txtSeason, &lines[i]->txtRain, &lines[i]->txtWeight})
      box->setVisible(i < count);
  }
  cmdAddSeason.setEnabled(count >= leastSeasons && count < mostSeasons);
  cmdRemoveSeason.setEnabled(count > leastSeasons);
}

/// Adds a season like the last one, with a name of its own.
void SeasonsPane::addSeason() {
  if (count_ < leastSeasons || count_ == mostSeasons) return;
  const auto isTaken = [&](const std::string& name) {
    return std::any_of(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count_),
                       [&](const auto& line) { return line->txtSeason.text() == name; });
  };
  std::size_t number = count_ + 1;
  while (isTaken("season " + std::to_string(number)))
    ++number;
  Line& line = *lines[count_];
  const Line& last = *lines[count_ - 1];
  fill([&] {
    line.txtSeason.setText("season " + std::to_string(number));
    line.txtRain.setText(last.txtRain.text());
    line.txtWeight.setText("1");
  });
  setCount(count_ + 1);
  changed();
}

void SeasonsPane::prepare(const Farm& farm) {
  std::vector<Season> usual = farmSeasons_();
  if (usual.size() < leastSeasons) usual = usualSeasons(farm.rain);
  usual.resize(std::min(usual.size(), mostSeasons));
  if (count_ == offered_) setCount(usual.size());
  offered_ = usual.size();
  for (std::size_t i = 0; i < usual.size(); ++i) {
    offer(lines[i]->txtSeason, usual[i].name);
    offer(lines[i]->txtRain, fieldText(usual[i].rain));
    offer(lines[i]->txtWeight, fieldText(usual[i].weight));
  }
}

std::vector<Season> SeasonsPane::seasons() const {
  std::vector<Season> seasons;
  for (std::size_t i = 0; i < count_; ++i) {
    const Line& line = *lines[i];
    const std::string which = "Season " + std::to_string(i + 1);
    if (line.txtSeason.text().empty()) throw std::invalid_argument(which + ": Please enter a name.");
    Season season{line.txtSeason.text(), 0, 0};
    season.rain = readField(which + ", rain", [&] { return numberOf(line.txtRain.text()); });
    season.weight = readField(which + ", weight", [&] {
      const double weight = numberOf(line.txtWeight.text());
      requireWeight(weight);
      return weight;
    });
    readField(which, [&] { requireNewName(season.name, seasons); });
    seasons.push_back(std::move(season));
  }
  requireSeasons(seasons);
  return seasons;
}

QuestionPane::Work SeasonsPane::question(const Farm& farm) {
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, seasons = seasons()](ProgramState& state, RunHooks& hooks) -> Show {
    auto result = exploreSeasons(*own, seasons, state, hooks);
    if (!result) return nullptr;
    return
        [this, own, found = std::make_shared<const SeasonsResult>(std::move(*result))] { show(own, found); };
  };
}

void SeasonsPane::show(const std::shared_ptr<const Farm>& farm,
                       const std::shared_ptr<const SeasonsResult>& found) {
  const SeasonsResult& result = *found;
  std::vector<Table::Column> columns{{"Plan", Table::Align::left}, {"Average"}, {"Worst"}, {"Regret"}};
  for (const SeasonBest& season : result.seasons)
    columns.push_back({printable(season.season.name)});
  columns.push_back({"Acres, crops and gross inches", Table::Align::left});
  std::vector<Row> rows;
  const auto add = [&](const std::string& name, double rank, const SeasonPlan& plan, bool strong) {
    Row row{{name, dollarsText(plan.average), dollarsText(plan.worst), dollarsText(plan.regret)},
            {rank, plan.average, plan.worst, plan.regret},
            strong};
    for (const double profit : plan.profits) {
      row.cells.push_back(dollarsText(profit));
      row.numbers.push_back(profit);
    }
    row.cells.push_back(planText(plan.fields));
    rows.push_back(std::move(row));
  };
  add("Safest", safestRank, result.safest, true);
  for (std::size_t i = 0; i < result.options.size(); ++i)
    add(std::to_string(i + 1), static_cast<double>(i + 1), result.options[i], false);
  showAnswer(seasonsAnswer(*farm, *found), columns, std::move(rows),
             [farm, found](auto most) { return seasonsSection(*farm, *found, most); });
}

}  // namespace verdalis
