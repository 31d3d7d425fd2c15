#include "questions/switchAnswer.h"

#include <algorithm>
#include <utility>

#include "handout/styles.h"
#include "questions/inputTexts.h"

namespace verdalis {
namespace {

LineChart chartOf(const Farm& farm, const SwitchAnswer& answer, const SwitchTexts& texts) {
  LineChart chart{inputAxis(answer.input, farm), returnAxis(), {}, {}, cropNames(farm), ChartStrip()};
  ChartLine line;
  for (std::size_t i = 0; i < answer.segments.size(); ++i) {
    const SwitchSegment& segment = answer.segments[i];
    line.points.push_back({segment.from, segment.profitFrom, i});
    if (i > 0) chart.markers.push_back({ChartMarker::Kind::change, segment.from, ""});
    chart.strip->boxes.push_back({segment.from, segment.to, categoriesOf(segment.fields, chart.categories)});
  }
  const std::size_t last = answer.segments.size() - 1;
  line.points.push_back({answer.segments[last].to, answer.segments[last].profitTo, last});
  chart.lines.push_back(std::move(line));
  if (answer.now >= answer.segments.front().from && answer.now <= answer.segments.back().to)
    chart.markers.push_back({ChartMarker::Kind::now, answer.now, "now " + texts.now});
  return chart;
}

HandoutTable tableOf(const Farm& farm, const SwitchAnswer& found, const SwitchTexts& texts) {
  const bool dollars = found.input.kind != FarmInput::Kind::maxYield;
  const NumberStyle values{dollars ? "$" : "", "", dollars ? 4 : 2, true};
  const std::string unit = inputUnit(found.input, farm);
  HandoutTable table{"",
                     {{"From", unit, true, values},
                      {"To", unit, true, values},
                      {"Net return at the first value", "$", true, dollarsStyle},
                      {"Net return at the last value", "$", true, dollarsStyle},
                      {"Plan", "", false, {}}},
                     {}};
  const auto fields = static_cast<std::size_t>(farm.division.Count());
  addPlanColumns(table, fields, PlanFigures::all);
  for (std::size_t i = 0; i < found.segments.size(); ++i) {
    const SwitchSegment& segment = found.segments[i];
    HandoutRow row{{segment.from, segment.to, segment.profitFrom, segment.profitTo, texts.segments[i].plan},
                   texts.segments[i].isNow};
    addPlanCells(row, segment.fields, fields, PlanFigures::all);
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

Answer switchAnswer(const Farm& farm, const SwitchAnswer& found) {
  const SwitchTexts texts = switchTexts(found);
  const std::size_t plans = found.segments.size();
  Answer answer;
  answer.title = "Switch prices";
  answer.about = aboutSwitch;
  answer.heading = plans == 1 ? "The same plan is the best everywhere in this range."
                              : std::to_string(plans) + " plans are the best in this range.";
  answer.chart = {"Best net return of the farm", answer.heading, chartOf(farm, found, texts), {}};
  answer.figures.push_back({inputLabel(found.input) + " now", texts.now});
  for (std::size_t i = 0; i < plans; ++i) {
    const SwitchTexts::Segment& text = texts.segments[i];
    if (!text.isNow) continue;
    if (i > 0) answer.figures.push_back({"Another plan is the best below", text.from});
    if (i + 1 < plans) answer.figures.push_back({"Another plan is the best from", text.to});
  }
  answer.note = texts.heading;
  return answer;
}

HandoutSection switchSection(const Farm& farm, const SwitchAnswer& found, std::optional<std::size_t> rows) {
  Answer answer = switchAnswer(farm, found);
  answer.tables.push_back(tableOf(farm, found, switchTexts(found)));
  answer.paperColumns = 5;
  answer.rows = "plans";
  return sectionOf(answer, rows);
}

}  // namespace verdalis
