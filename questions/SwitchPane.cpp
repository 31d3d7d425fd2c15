#include "questions/SwitchPane.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "explore/inputs.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/values.h"

namespace verdalis {
namespace {

using Kind = FarmInput::Kind;

/// Prices first, then maximum yields, then fuel.
std::vector<FarmInput> linearInputs(const Farm& farm) {
  std::vector<FarmInput> inputs;
  const std::vector<FarmInput> all = inputsOf(farm);
  for (const Kind kind : {Kind::price, Kind::maxYield, Kind::fuel}) {
    std::copy_if(all.begin(), all.end(), std::back_inserter(inputs),
                 [&](const FarmInput& input) { return input.kind == kind; });
  }
  return inputs;
}

std::string unitOf(const FarmInput& input, const Farm& farm) {
  const auto found = std::find_if(farm.crops.begin(), farm.crops.end(),
                                  [&](const auto& crop) { return crop->cropType == input.crop; });
  return found == farm.crops.end() ? std::string() : (*found)->priceUnits();
}

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

}  // namespace

SwitchPane::SwitchPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneSwitch", "Switch Prices",
                   "At which price another plan becomes the best. The corners are found exactly, not by "
                   "trying values.",
                   services, std::move(farm)) {
  cboInput.onClick.connect([this] { picked_ = true; });
  watch(cboInput);
  watch(txtFrom);
  watch(txtTo);
}

void SwitchPane::prepare(const Farm& farm) {
  const bool byUser = picked_;
  const std::optional<FarmInput> before = input_.input();
  input_.fill(linearInputs(farm), 0);
  const std::optional<FarmInput> input = input_.input();
  const bool picked = byUser || input != before;
  picked_ = false;
  if (!input) return;
  const ValueRange range = usualRange(*input, farm);
  const auto set = [&](TextBox& box, double value) {
    if (picked) {
      put(box, fieldText(value));
    } else {
      offer(box, fieldText(value));
    }
  };
  set(txtFrom, range.from);
  set(txtTo, range.to);
  lblUnit.setCaption(inputUnit(*input, farm));
}

QuestionPane::Work SwitchPane::question(const Farm& farm) {
  const std::optional<FarmInput> input = input_.input();
  if (!input) throw std::invalid_argument("The chosen crops have no price.");
  const double from = readField("From", [&] { return numberOf(txtFrom.text()); });
  const double to = readField("To", [&] { return numberOf(txtTo.text()); });
  readField("To", [&] { requireAbove(from, to); });
  readField("From", [&] { requireValue(*input, from, farm); });
  readField("To", [&] { requireValue(*input, to, farm); });
  const auto own = std::make_shared<const Farm>(farm.Copy());
  return [this, own, input = *input, from, to](ProgramState& state, RunHooks& hooks) -> Show {
    auto segments = switchPrices(*own, input, from, to, state, hooks);
    if (!segments) return nullptr;
    const SwitchAnswer answer{input, unitOf(input, *own), valueOf(*own, input), std::move(*segments)};
    return [this, own, answer] { show(*own, answer); };
  };
}

void SwitchPane::show(const Farm& farm, const SwitchAnswer& answer) {
  const SwitchTexts texts = switchTexts(answer);
  std::vector<Row> rows;
  std::vector<FigureText> figureTexts{{inputLabel(answer.input) + " now", texts.now}};
  for (std::size_t i = 0; i < answer.segments.size(); ++i) {
    const SwitchTexts::Segment& text = texts.segments[i];
    rows.push_back({{text.from, text.to, text.profit, text.plan},
                    {answer.segments[i].from, answer.segments[i].to, answer.segments[i].profitFrom},
                    text.isNow});
    if (!text.isNow) continue;
    if (i > 0) figureTexts.push_back({"Another plan is the best below", text.from});
    if (i + 1 < texts.segments.size()) figureTexts.push_back({"Another plan is the best from", text.to});
  }
  const std::size_t plans = answer.segments.size();
  const std::string summary = plans == 1 ? "The same plan is the best everywhere in this range."
                                         : std::to_string(plans) + " plans are the best in this range.";
  showAnswer({"Best net return of the farm", summary, chartOf(farm, answer, texts), {}},
             {{"From"}, {"To"}, {"Net return"}, {"Plan", Table::Align::left}}, std::move(rows));
  showFigures(summary, figureTexts, texts.heading);
}

}  // namespace verdalis
