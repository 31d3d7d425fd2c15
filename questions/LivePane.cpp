#include "questions/LivePane.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "engine/RunHooks.h"
#include "explore/bestPlan.h"
#include "explore/inputMap.h"
#include "explore/inputs.h"
#include "model/checked.h"
#include "questions/QuestionJob.h"
#include "questions/inputTexts.h"
#include "questions/mapChart.h"
#include "questions/noPlanText.h"
#include "questions/planText.h"
#include "questions/values.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/powersOfTen.h"

namespace verdalis {
namespace {

constexpr double usualSteps = 120;  // of a slider from end to end

/// 1, 2 or 5 times a power of ten, near `width`.
double roundStep(double width) {
  if (!(width > 0) || !std::isfinite(width)) return 1;
  const double power = powerOfTen(decimalExponent(width));
  const double lead = width / power;
  return power * (lead < 1.5 ? 1 : lead < 3.5 ? 2 : lead < 7.5 ? 5 : 10);
}

/// Without the last bits that adding steps leaves behind: 4.6 in place of 4.6000000000000005.
double rounded(double value) {
  constexpr double millionths = 1e6;
  const double scaled = value * millionths;
  return std::abs(scaled) < 1e15 ? std::round(scaled) / millionths : value;
}

double stepOf(const FarmInput& input, const ValueRange& range) {
  switch (input.kind) {
    case FarmInput::Kind::water:
      return std::max(roundStep((range.to - range.from) / usualSteps), 0.1);
    case FarmInput::Kind::rain:
    case FarmInput::Kind::efficiency:
      return 1;  // rain counts in whole inches
    default:
      return roundStep((range.to - range.from) / usualSteps);
  }
}

std::string perAcreText(double profit, double acres) {
  return acres > 0 ? dollarsText(profit / acres) + " /acre" : std::string();
}

std::string cropsOf(const FieldCollection& option) {
  std::string names;
  for (const auto& field : option)
    names += (names.empty() ? "" : ", ") + printable(field->theCrop->cropType);
  return names;
}

}  // namespace

LivePane::Slider::Slider(Frame& pane, std::size_t index, FarmInput of, const Farm& farm)
    : input(std::move(of)),
      present(valueOf(farm, input)),
      lblInput(pane, "lblLiveInput(" + std::to_string(index) + ")", inputLabel(input)),
      lblValue(pane, "lblLiveValue(" + std::to_string(index) + ")"),
      bar(pane, "barLive(" + std::to_string(index) + ")") {
  const ValueRange range = usualRange(input, farm);
  const InputBounds bounds = inputBounds(input, farm);
  step = stepOf(input, range);
  unit = inputUnit(input, farm);
  // The present value is a position of its own, and all others lie whole steps apart from it.
  const double below = std::clamp(std::floor((present - std::min(range.from, present)) / step), 0.0, 10000.0);
  const double above = std::clamp(std::floor((std::max(range.to, present) - present) / step), 0.0, 10000.0);
  mark = static_cast<int>(below);
  int last = mark + static_cast<int>(above);
  // A price of 0.02 less a step of 0.05 is no price.
  while (mark > 0 && bounds.held(valueAt(0)) != valueAt(0)) {
    --mark;
    --last;
  }
  while (last > mark && bounds.held(valueAt(last)) != valueAt(last))
    --last;
  bar.setMaximum(last);
  bar.smallStep = 1;
  bar.largeStep = std::max(last / 10, 1);
  bar.setValue(mark);
  lblValue.setCaption(text());
}

double LivePane::Slider::valueAt(int position) const {
  return position == mark ? present : rounded(present + (position - mark) * step);
}

std::string LivePane::Slider::text() const {
  using Kind = FarmInput::Kind;
  const double amount = value();
  switch (input.kind) {
    case Kind::water:
      return formatNumber(amount, "#,##0.0") + " in";
    case Kind::rain:
      return valueText(amount) + " in";
    case Kind::efficiency:
      return valueText(amount) + " %";
    case Kind::fuel:
    case Kind::price:
      return "$" + formatNumber(amount, "#,##0.00") + unit.substr(std::min<std::size_t>(unit.size(), 1));
    case Kind::maxYield:
      break;
  }
  return valueText(amount) + " " + unit;
}

LivePane::LivePane(Frame& window, Services& services, std::function<Farm()> farm)
    : Frame(window, "pneLive"), services_(services), farmNow_(std::move(farm)) {
  setCaption("Live");
  cmdTakeOver.onClick.connect([this] {
    Values values;
    for (const auto& slider : sliders) {
      if (slider->isMoved()) values.emplace_back(slider->input, slider->value());
    }
    onTakeOver(values);
  });
  cmdReset.onClick.connect([this] { reset(); });
  cmdBack.onClick.connect([this] {
    stopMap();
    onBack();
  });
}

LivePane::~LivePane() {
  if (mapJob_) mapJob_->cancel();
}

void LivePane::open() {
  lblLiveFault.setCaption("");
  stopMap();
  map_.reset();
  try {
    farm_ = farmNow_();
    makeSliders();
    now_ = {};
    follow();
  } catch (const std::exception& error) {
    sliders.clear();
    onSliders();
    showFault(error.what());
  }
  onShowPane();
}

void LivePane::makeSliders() {
  sliders.clear();
  for (const FarmInput& input : inputsOf(farm_)) {
    if (input.kind == FarmInput::Kind::maxYield) continue;
    sliders.push_back(std::make_unique<Slider>(*this, sliders.size(), input, farm_));
    Slider& made = *sliders.back();
    made.bar.onChange.connect([this, &made] {
      made.lblValue.setCaption(made.text());
      if (!moving_) follow();
    });
  }
  onSliders();
}

/// Shows the best plan at the sliders.
void LivePane::follow() {
  const bool moved =
      std::any_of(sliders.begin(), sliders.end(), [](const auto& slider) { return slider->isMoved(); });
  cmdTakeOver.setEnabled(moved);
  cmdReset.setEnabled(moved);
  try {
    Farm farm = farm_.Copy();
    for (const auto& slider : sliders) {
      if (slider->isMoved()) setInput(farm, slider->input, slider->value());
    }
    RunHooks silent;
    state_.CancelRequested = false;
    const auto option = bestOption(farm, state_, silent);
    if (!option) return;
    showPlan(farm, option);
    followMap();
  } catch (const NoPlan& none) {
    showFault(noPlanText(none));
  } catch (const RunTimeError& error) {
    showFault(error.what());
  }
}

void LivePane::showPlan(const Farm& farm, const std::shared_ptr<FieldCollection>& option) {
  struct Row {
    std::vector<std::string> texts;
    double gross;
  };
  const double efficiency = farm.efficiency / 100;
  std::vector<Row> rows;
  double most = 0;
  for (const auto& field : *option) {
    const double gross = grossFromNet(field->Depth, efficiency);
    most = std::max(most, gross);
    rows.push_back(
        {{formatNumber(field->acres, "#,##0.0"), printable(field->theCrop->cropType), inchesText(gross),
          inchesText(field->Depth), perAcreText(field->getProfit(efficiency), field->acres)},
         gross});
  }
  lblLiveFault.setCaption("");
  const double profit = option->getProfit(efficiency);
  constexpr std::size_t waterColumn = 2;
  constexpr std::size_t cropColumn = 1;
  using Align = Table::Align;
  tblLive.setContents({{"Acres", Align::right, false},
                       {"Crop", Align::left, false},
                       {"Gross water (in)", Align::left, false, true},
                       {"Net (in)", Align::right, false},
                       {"Net return", Align::right, false}},
                      {rows.size(),
                       [rows, most](std::size_t record, std::size_t column) {
                         Table::Cell cell{rows[record].texts[column], std::nullopt, column == cropColumn};
                         if (column == waterColumn && most > 0) cell.bar = rows[record].gross / most;
                         return cell;
                       },
                       nullptr, nullptr});
  lblLiveProfit.setCaption(perAcreText(profit, farm.acres));
  lblLiveFarm.setCaption(dollarsText(profit) + " for the farm");
  if (now_.crops.empty()) {
    now_ = {profit, cropsOf(*option)};
    lblLiveNow.setCaption("Now: " + now_.crops + " at " + valueText(farm.grossDepth) + " in");
  }
  showDistance(profit);
}

void LivePane::showDistance(double profit) {
  const double distance = profit - now_.profit;
  loss_ = distance < 0;
  if (distance == 0) {
    lblLiveDistance.setCaption("As now");
  } else {
    lblLiveDistance.setCaption(perAcreText(std::abs(distance), farm_.acres) +
                               (loss_ ? " less than now" : " more than now"));
  }
}

void LivePane::showFault(const std::string& text) {
  lblLiveFault.setCaption(text);
  stopMap();
  map_.reset();
  chtLive.setChart({});
  tblLive.setContents({}, {});
  loss_ = false;
  for (Label* label : {&lblLiveProfit, &lblLiveFarm, &lblLiveDistance})
    label->setCaption("");
  if (sliders.empty()) {
    lblLiveNow.setCaption("");
    cmdTakeOver.setEnabled(false);
    cmdReset.setEnabled(false);
  }
}

/// Moves the mark of the map, and draws another map if a slider has moved that is no axis of it.
void LivePane::followMap() {
  const auto sliderOf = [this](FarmInput::Kind kind) -> const Slider* {
    const auto found = std::find_if(sliders.begin(), sliders.end(),
                                    [kind](const auto& slider) { return slider->input.kind == kind; });
    return found == sliders.end() ? nullptr : found->get();
  };
  const Slider* const x = sliderOf(FarmInput::Kind::price);
  const Slider* const y = sliderOf(FarmInput::Kind::water);
  if (x == nullptr || y == nullptr || x->bar.maximum() < 1 || y->bar.maximum() < 1) return;
  std::vector<double> others;
  Farm farm = farm_.Copy();
  for (const auto& slider : sliders) {
    if (slider.get() == x || slider.get() == y) continue;
    others.push_back(slider->value());
    if (slider->isMoved()) setInput(farm, slider->input, slider->value());
  }
  if (others != mapValues_ || !(map_ || mapJob_)) {
    stopMap();
    map_.reset();
    mapValues_ = std::move(others);
    askMap(farm, *x, *y);
    return;
  }
  if (!map_) return;
  Chart chart = *map_;
  std::get<MapChart>(chart.data).now = ChartLine::Point{x->value(), y->value(), {}};
  chtLive.setChart(std::move(chart));
}

void LivePane::askMap(const Farm& farm, const Slider& x, const Slider& y) {
  const auto axis = [](const Slider& slider, std::size_t count) {
    return MapAxis{slider.input, evenValues(slider.valueAt(0), slider.valueAt(slider.bar.maximum()), count)};
  };
  constexpr std::size_t columns = 25;
  constexpr std::size_t rows = 17;
  const MapAxis across = axis(x, columns);
  const MapAxis upwards = axis(y, rows);
  // One thread, because the best plan must follow the hand meanwhile.
  const auto job = std::make_shared<QuestionJob>(
      [this, farm, across, upwards](ProgramState& state, RunHooks& hooks) -> QuestionJob::Show {
        const std::optional<InputMap> map = exploreMap(farm, across, upwards, state, hooks, 1);
        if (!map) return nullptr;
        return [this, farm, map = *map] {
          const std::string title = inputLabel(map.x.input) + " and water: which mix wins";
          map_ = Chart{title, title + ".", mapChart(farm, map), {}};
        };
      });
  mapJob_ = job;
  services_.background.run([job] { job->run(); },
                           [this, job] {
                             if (job->isCancelled()) return;  // this page may be gone
                             mapJob_ = nullptr;
                             if (!job->show()) return;  // a value without a plan: the page does without a map
                             job->show()();
                             followMap();
                           });
}

void LivePane::stopMap() {
  if (mapJob_) mapJob_->cancel();
  mapJob_ = nullptr;
}

void LivePane::reset() {
  moving_ = true;
  for (const auto& slider : sliders)
    slider->bar.setValue(slider->mark);
  moving_ = false;
  follow();
}

}  // namespace verdalis
