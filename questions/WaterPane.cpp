#include "questions/WaterPane.h"

#include <utility>

#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/values.h"
#include "questions/waterAnswer.h"

namespace verdalis {
namespace {

const FarmInput water{FarmInput::Kind::water, {}};

}  // namespace

WaterPane::WaterPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneWater", "Value of Water", aboutWater, services, std::move(farm)) {
  for (TextBox* box : {&txtFrom, &txtTo, &txtPoints})
    watch(*box);
}

void WaterPane::prepare(const Farm& farm) {
  const std::vector<double> usual = usualAmounts(farm);
  if (usual.empty()) return;
  offer(txtFrom, fieldText(usual.front()));
  offer(txtTo, fieldText(usual.back()));
  offer(txtPoints, std::to_string(usual.size()));
}

std::vector<double> WaterPane::amounts(const Farm& farm) const {
  // The fields show rounded amounts.
  if (hasOffered(txtFrom) && hasOffered(txtTo) && hasOffered(txtPoints)) {
    std::vector<double> usual = usualAmounts(farm);
    if (!usual.empty()) return usual;
  }
  ValueRange range;
  range.from = readField("From", [&] { return numberOf(txtFrom.text()); });
  range.to = readField("To", [&] { return numberOf(txtTo.text()); });
  readField("To", [&] { requireAbove(range.from, range.to); });
  range.count = readField("Points", [&] { return countOf(txtPoints.text()); });
  readField("From", [&] { requireValue(water, range.from, farm); });
  readField("To", [&] { requireValue(water, range.to, farm); });
  return range.values();
}

QuestionPane::Work WaterPane::question(const Farm& farm) {
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, amounts = amounts(farm)](ProgramState& state, RunHooks& hooks) -> Show {
    auto result = exploreWater(*own, amounts, state, hooks);
    if (!result) return nullptr;
    return [this, own, found = std::make_shared<const WaterResult>(std::move(*result))] { show(own, found); };
  };
}

void WaterPane::show(const std::shared_ptr<const Farm>& farm,
                     const std::shared_ptr<const WaterResult>& result) {
  const auto fields = static_cast<std::size_t>(farm->division.Count());
  std::vector<Row> rows;
  for (const WaterPoint& point : result->points) {
    rows.push_back(
        {{valueText(point.gross), dollarsText(point.best.profit), cropsText(point.best.fields, fields)},
         {point.gross, point.best.profit},
         point.gross == result->now.gross});
  }
  showAnswer(waterAnswer(*farm, *result), {{"in."}, {"Net return"}, {"Crops", Table::Align::left}},
             std::move(rows), [farm, result](auto most) { return waterSection(*farm, *result, most); });
}

}  // namespace verdalis
