#include "questions/SwitchPane.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "explore/inputs.h"
#include "questions/inputTexts.h"
#include "questions/planText.h"
#include "questions/switchAnswer.h"
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

}  // namespace

SwitchPane::SwitchPane(Frame& window, Services& services, FarmToExplore farm)
    : QuestionPane(window, "pneSwitch", "Switch Prices", aboutSwitch, services, std::move(farm)) {
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
    const auto found = std::make_shared<const SwitchAnswer>(
        SwitchAnswer{input, unitOf(input, *own), valueOf(*own, input), std::move(*segments)});
    return [this, own, found] { show(own, found); };
  };
}

void SwitchPane::show(const std::shared_ptr<const Farm>& farm,
                      const std::shared_ptr<const SwitchAnswer>& found) {
  const SwitchTexts texts = switchTexts(*found);
  std::vector<Row> rows;
  for (std::size_t i = 0; i < found->segments.size(); ++i) {
    const SwitchTexts::Segment& text = texts.segments[i];
    const SwitchSegment& segment = found->segments[i];
    rows.push_back({{text.from, text.to, text.profit, text.plan},
                    {segment.from, segment.to, segment.profitFrom},
                    text.isNow});
  }
  showAnswer(switchAnswer(*farm, *found), {{"From"}, {"To"}, {"Net return"}, {"Plan", Table::Align::left}},
             std::move(rows), [farm, found](auto most) { return switchSection(*farm, *found, most); });
}

}  // namespace verdalis
