#include "questions/MapPane.h"

#include <algorithm>
#include <utility>

#include "explore/inputs.h"
#include "questions/inputTexts.h"
#include "questions/mapAnswer.h"
#include "questions/planText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr const char* usualPoints = "41";

std::string percentText(std::size_t part, std::size_t whole) {
  return formatNumber(100 * static_cast<double>(part) / static_cast<double>(whole), "0.0") + " %";
}

/// All points, for a spreadsheet.
std::vector<std::vector<std::string>> pointsOf(const InputMap& map) {
  std::vector<std::vector<std::string>> rows{
      {inputLabel(map.x.input), inputLabel(map.y.input), "Net return", "Best mix"}};
  for (std::size_t row = 0; row < map.y.values.size(); ++row) {
    for (std::size_t column = 0; column < map.x.values.size(); ++column) {
      const std::size_t point = map.at(row, column);
      rows.push_back({valueText(map.x.values[column]), valueText(map.y.values[row]),
                      dollarsText(map.profit[point]), mixText(map.mixes[map.mix[point]])});
    }
  }
  return rows;
}

}  // namespace

MapPane::MapPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneMap", "Map", aboutMap, services, std::move(farm)) {
  for (Axis* axis : {&x, &y}) {
    axis->cboInput.onClick.connect([axis] { axis->picked = true; });
    watch(axis->cboInput);
    for (TextBox* box : {&axis->txtFrom, &axis->txtTo, &axis->txtPoints})
      watch(*box);
  }
  // A cell stands for its mix, which has a line in the table.
  chart.onPick.connect([this](std::size_t point) {
    const auto* const drawn = chart.chart() ? std::get_if<MapChart>(&chart.chart()->data) : nullptr;
    if (drawn != nullptr && point < drawn->category.size()) table.setCurrent(drawn->category[point]);
  });
}

void MapPane::prepare(const Farm& farm) {
  const std::vector<FarmInput> inputs = inputsOf(farm);
  const auto price = std::find_if(inputs.begin(), inputs.end(), [](const FarmInput& input) {
    return input.kind == FarmInput::Kind::price;
  });
  const std::size_t rain = 1;
  prepareAxis(x, farm, price == inputs.end() ? rain : static_cast<std::size_t>(price - inputs.begin()));
  prepareAxis(y, farm, 0);
}

void MapPane::prepareAxis(Axis& axis, const Farm& farm, std::size_t preferred) {
  const bool byUser = axis.picked;
  const std::optional<FarmInput> before = axis.input.input();
  axis.input.fill(inputsOf(farm), preferred);
  const std::optional<FarmInput> input = axis.input.input();
  const bool picked = byUser || input != before;
  axis.picked = false;
  if (!input) return;
  const ValueRange range = usualRange(*input, farm);
  if (picked) {
    put(axis.txtFrom, fieldText(range.from));
    put(axis.txtTo, fieldText(range.to));
  } else {
    offer(axis.txtFrom, fieldText(range.from));
    offer(axis.txtTo, fieldText(range.to));
  }
  offer(axis.txtPoints, usualPoints);
}

MapAxis MapPane::readAxis(const Axis& axis, const std::string& name, const Farm& farm) {
  const std::optional<FarmInput> input = axis.input.input();
  if (!input) throw std::invalid_argument(name + ": Please choose an input.");
  ValueRange range;
  range.from = readField(name + ", from", [&] { return numberOf(axis.txtFrom.text()); });
  range.to = readField(name + ", to", [&] { return numberOf(axis.txtTo.text()); });
  readField(name + ", to", [&] { requireAbove(range.from, range.to); });
  range.count = readField(name + ", points", [&] { return countOf(axis.txtPoints.text()); });
  readField(name + ", from", [&] { requireValue(*input, range.from, farm); });
  readField(name + ", to", [&] { requireValue(*input, range.to, farm); });
  return {*input, range.values()};
}

QuestionPane::Work MapPane::question(const Farm& farm) {
  const MapAxis across = readAxis(x, "Across", farm);
  const MapAxis upwards = readAxis(y, "Upwards", farm);
  if (across.input == upwards.input) throw std::invalid_argument("A map needs two different inputs.");
  if (across.values.size() > mostPoints / upwards.values.size()) {
    throw std::invalid_argument("A map has at most " +
                                formatNumber(static_cast<double>(mostPoints), "###,###") + " points.");
  }
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, across, upwards](ProgramState& state, RunHooks& hooks) -> Show {
    auto map = exploreMap(*own, across, upwards, state, hooks);
    if (!map) return nullptr;
    return [this, own, found = std::make_shared<const InputMap>(std::move(*map))] { show(own, found); };
  };
}

void MapPane::show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const InputMap>& found) {
  const InputMap& map = *found;
  const std::vector<MixShare> shares = sharesOf(map);
  std::vector<Row> rows;
  for (std::size_t mix = 0; mix < map.mixes.size(); ++mix) {
    const MixShare& share = shares[mix];
    rows.push_back({{mixText(map.mixes[mix]), percentText(share.points, map.mix.size()),
                     dollarsText(share.least), dollarsText(share.most)},
                    {static_cast<double>(mix), static_cast<double>(share.points), share.least, share.most},
                    false});
  }
  showAnswer(mapAnswer(*farm, map), {{"Mix", Table::Align::left}, {"Share"}, {"Least"}, {"Most"}},
             std::move(rows), [farm, found](auto most) { return mapSection(*farm, *found, most); });
  Chart drawn = *chart.chart();
  drawn.table = pointsOf(map);
  chart.setChart(std::move(drawn));
}

std::string MapPane::copyText() const {
  return chart.chart() ? tabSeparated(chart.chart()->table) : std::string();
}

}  // namespace verdalis
