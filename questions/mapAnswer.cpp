#include "questions/mapAnswer.h"

#include <algorithm>
#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"
#include "questions/mapChart.h"
#include "questions/planText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

MapChart chartOf(const Farm& farm, const InputMap& map) {
  MapChart chart = mapChart(farm, map);
  chart.now = ChartLine::Point{valueOf(farm, map.x.input), valueOf(farm, map.y.input), {}};
  chart.picks = true;
  return chart;
}

HandoutTable mixesOf(const InputMap& map) {
  HandoutTable table{"",
                     {{"Mix", "", false, {}},
                      {"Share", "%", true, {"", "", 1, false}},
                      {"Least net return", "$", true, dollarsStyle},
                      {"Most net return", "$", true, dollarsStyle}},
                     {}};
  const std::vector<MixShare> shares = sharesOf(map);
  for (std::size_t mix = 0; mix < map.mixes.size(); ++mix) {
    const MixShare& share = shares[mix];
    const double percent = 100 * static_cast<double>(share.points) / static_cast<double>(map.mix.size());
    table.rows.push_back({{mixText(map.mixes[mix]), percent, share.least, share.most}, false});
  }
  return table;
}

/// What an axis is, as the head of a column.
HandoutColumn columnOf(const FarmInput& input, const Farm& farm) {
  const bool dollars = input.kind == FarmInput::Kind::price || input.kind == FarmInput::Kind::fuel;
  return {inputLabel(input), inputUnit(input, farm), true, {dollars ? "$" : "", "", 2, true}};
}

HandoutTable pointsOf(const Farm& farm, const InputMap& map) {
  HandoutTable table{"All points",
                     {columnOf(map.x.input, farm),
                      columnOf(map.y.input, farm),
                      {"Net return", "$", true, dollarsStyle},
                      {"Best mix", "", false, {}}},
                     {}};
  std::size_t fields = 0;
  for (const Mix& mix : map.mixes)
    fields = std::max(fields, mix.size());
  addPlanColumns(table, fields, PlanFigures::mix);
  for (std::size_t row = 0; row < map.y.values.size(); ++row) {
    for (std::size_t column = 0; column < map.x.values.size(); ++column) {
      const std::size_t point = map.at(row, column);
      const Mix& mix = map.mixes[map.mix[point]];
      HandoutRow cells{{map.x.values[column], map.y.values[row], map.profit[point], mixText(mix)}, false};
      addPlanCells(cells, partsOf(mix), fields, PlanFigures::mix);
      table.rows.push_back(std::move(cells));
    }
  }
  return table;
}

}  // namespace

std::vector<MixShare> sharesOf(const InputMap& map) {
  std::vector<MixShare> shares(map.mixes.size());
  for (std::size_t point = 0; point < map.mix.size(); ++point) {
    MixShare& share = shares[map.mix[point]];
    ++share.points;
    share.least = std::min(share.least, map.profit[point]);
    share.most = std::max(share.most, map.profit[point]);
  }
  return shares;
}

Answer mapAnswer(const Farm& farm, const InputMap& map) {
  const auto [least, most] = std::minmax_element(map.profit.begin(), map.profit.end());
  Answer answer;
  answer.title = "Map";
  answer.about = aboutMap;
  answer.heading = std::to_string(map.mixes.size()) + (map.mixes.size() == 1 ? " mix is" : " mixes are") +
                   " the best somewhere.";
  answer.chart = {"What is grown", answer.heading, chartOf(farm, map), {}};
  answer.figures = {{"Points", formatNumber(static_cast<double>(map.mix.size()), "###,##0")},
                    {"Least net return", dollarsText(*least)},
                    {"Most net return", dollarsText(*most)}};
  answer.note =
      "Water counts in whole acre-inches over the farm, and rain in whole inches, so a small farm shows "
      "steps.";
  return answer;
}

HandoutSection mapSection(const Farm& farm, const InputMap& map, std::optional<std::size_t> rows) {
  Answer answer = mapAnswer(farm, map);
  answer.tables.push_back(mixesOf(map));
  if (!rows) answer.tables.push_back(pointsOf(farm, map));
  answer.paperColumns = 4;
  answer.rows = "mixes";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
