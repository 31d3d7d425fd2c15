#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "explore/bestPlan.h"
#include "questions/LivePane.h"
#include "questions/planText.h"
#include "tests/explore/SmallFarm.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {
namespace {

class Live : public ::testing::Test {
 protected:
  Live() { farm.factor = 4; }

  Farm farm = twoCropFarm();
  std::string incomplete;
  Desk desk;
  Window window{desk, "window"};
  FakeServices fakes;
  LivePane pane{window, fakes.services, [this] {
                  if (!incomplete.empty()) throw std::invalid_argument(incomplete);
                  return farm.Copy();
                }};

  void open() {
    window.open();
    pane.open();
  }

  LivePane::Slider& slider(FarmInput::Kind kind) {
    for (const auto& each : pane.sliders) {
      if (each->input.kind == kind) return *each;
    }
    throw std::logic_error("no such slider");
  }

  /// The best plan of the farm with one input changed.
  Plan best(const FarmInput& input, double value) {
    ProgramState state;
    RunHooks hooks;
    return bestPlan(withInput(farm, input, value), state, hooks).value();
  }
};

TEST_F(Live, HasASliderForEachInputThatMoves) {
  open();
  ASSERT_EQ(pane.sliders.size(), 4U + static_cast<std::size_t>(farm.crops.Count()));
  for (const auto& each : pane.sliders) {
    EXPECT_FALSE(each->isMoved());
    EXPECT_EQ(each->value(), valueOf(farm, each->input));
    EXPECT_GT(each->bar.maximum(), 5) << each->lblInput.caption();
  }
  EXPECT_EQ(pane.lblLiveDistance.caption(), "As now");
  EXPECT_FALSE(pane.cmdTakeOver.enabled());
}

TEST_F(Live, EveryPositionShowsTheBestPlanOfThatValue) {
  open();
  for (const auto& each : pane.sliders) {
    for (const int position : {0, each->mark / 2, each->mark + 1, each->bar.maximum()}) {
      each->bar.scroll(position);
      if (!pane.lblLiveFault.caption().empty()) continue;  // no water
      const Plan plan = best(each->input, each->value());
      EXPECT_EQ(pane.lblLiveFarm.caption(), dollarsText(plan.profit) + " for the farm")
          << each->lblInput.caption() << " " << each->value();
      ASSERT_EQ(pane.tblLive.records(), plan.fields.size());
      for (std::size_t field = 0; field < plan.fields.size(); ++field) {
        EXPECT_EQ(pane.tblLive.cell(field, 1).text, plan.fields[field].crop);
        EXPECT_EQ(pane.tblLive.cell(field, 2).text, inchesText(plan.fields[field].grossDepth));
      }
    }
    pane.cmdReset.click();
    EXPECT_EQ(pane.lblLiveDistance.caption(), "As now");
  }
}

TEST_F(Live, TellsTheDistanceFromThePlanOfNow) {
  open();
  LivePane::Slider& water = slider(FarmInput::Kind::water);
  water.bar.scroll(water.mark / 2);
  EXPECT_TRUE(pane.isLoss());
  EXPECT_NE(pane.lblLiveDistance.caption().find(" /acre less than now"), std::string::npos);
  water.bar.scroll(water.bar.maximum());
  EXPECT_FALSE(pane.isLoss());
}

TEST_F(Live, PositionsAreRoundValuesAroundThePresentOne) {
  farm.grossDepth = 13.3;
  farm.takeWater(13.3);
  open();
  const LivePane::Slider& water = slider(FarmInput::Kind::water);
  EXPECT_EQ(water.valueAt(water.mark), 13.3);
  EXPECT_DOUBLE_EQ(water.valueAt(water.mark + 1), 13.3 + water.step);
  EXPECT_GE(water.valueAt(0), 1.33);
  EXPECT_LE(water.valueAt(water.bar.maximum()), 26.6);
}

TEST_F(Live, DrawsAMapThatFollowsTheSliders) {
  open();
  const auto map = [this] { return std::get<MapChart>(pane.chtLive.chart()->data); };
  ASSERT_TRUE(pane.chtLive.chart());
  const MapChart first = map();
  EXPECT_EQ(first.category.size(), first.xValues.size() * first.yValues.size());
  EXPECT_EQ(first.now->y, farm.grossDepth);
  LivePane::Slider& water = slider(FarmInput::Kind::water);
  water.bar.scroll(water.mark + 2);
  EXPECT_EQ(map().now->y, water.value());
  EXPECT_EQ(map().value, first.value) << "the water is an axis";
  LivePane::Slider& rain = slider(FarmInput::Kind::rain);
  rain.bar.scroll(rain.mark - 1);
  EXPECT_NE(map().value, first.value);
  const std::size_t row = 8;
  const std::size_t column = 12;
  Farm there = farm.Copy();
  setInput(there, rain.input, rain.value());
  setInput(there, water.input, first.yValues[row]);
  setInput(there, slider(FarmInput::Kind::price).input, first.xValues[column]);
  ProgramState state;
  RunHooks hooks;
  EXPECT_EQ(map().value[row * first.xValues.size() + column], bestPlan(there, state, hooks)->profit);
}

TEST_F(Live, TakesOverWhatWasMoved) {
  open();
  LivePane::Values taken;
  pane.onTakeOver.connect([&](const LivePane::Values& values) { taken = values; });
  LivePane::Slider& rain = slider(FarmInput::Kind::rain);
  rain.bar.scroll(rain.mark + 1);
  pane.cmdTakeOver.click();
  ASSERT_EQ(taken.size(), 1U);
  EXPECT_EQ(taken.front().first, rain.input);
  EXPECT_EQ(taken.front().second, farm.rain + 1);
}

TEST_F(Live, SaysWhyThereIsNoPlan) {
  incomplete = "Enter the total acres.";
  open();
  EXPECT_EQ(pane.lblLiveFault.caption(), incomplete);
  EXPECT_TRUE(pane.sliders.empty());
  EXPECT_FALSE(pane.cmdReset.enabled());
  incomplete.clear();
  pane.open();
  EXPECT_EQ(pane.lblLiveFault.caption(), "");
  EXPECT_FALSE(pane.sliders.empty());
}

}  // namespace
}  // namespace verdalis::testing
