#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/Run.h"
#include "text/RunTimeError.h"

// Events during a run: a cancel, a nested run, and edits of its inputs.

namespace verdalis::testing {
namespace {

using ::testing::SizeIs;

class DuringARun : public ::testing::Test {
 private:
  ScopedEfficiency efficiency_{0};
};

/// Checks the state after a cancelled run.
void expectCancelled(FarmRun& farm, const BestMix& best) {
  EXPECT_EQ(best.getSize(), 0);
  EXPECT_THAT(optionsOf(best), SizeIs(0));
  EXPECT_TRUE(farm.state.CancelRequested);
  EXPECT_EQ(farm.hooks.closed, 1);
}

TEST_F(DuringARun, ACancelAtAnyWaterSplitGivesNoOptions) {
  for (int at = 1; at <= 11; ++at) {
    SCOPED_TRACE(at);
    const auto farm = cornAndWheatFarm();
    farm->hooks.onUpdate = [&](int update) { farm->state.CancelRequested |= update == at; };
    expectCancelled(*farm, farm->run());
  }
}

TEST_F(DuringARun, ACancelStopsTheProgress) {
  const auto farm = cornAndWheatFarm();
  farm->divide(4);
  farm->hooks.onUpdate = [&](int update) { farm->state.CancelRequested |= update == 3; };
  expectCancelled(*farm, farm->run());
  EXPECT_EQ(farm->hooks.updates, 3);
}

TEST_F(DuringARun, ACancelWithinTheFirstWaterSplitGivesNoOptions) {
  const auto farm = cornAndWheatFarm();
  farm->hooks.onPump = [&](int pump) { farm->state.CancelRequested |= pump == 2; };
  expectCancelled(*farm, farm->run());
}

TEST_F(DuringARun, ACancelAtTheFirstWaterSplitPrecedesAnyError) {
  const auto farm = cornAndWheatFarm();
  farm->inputs.txtAnnRain = "25";
  EXPECT_THROW(static_cast<void>(farm->run()), RunTimeError);
  const auto cancelled = cornAndWheatFarm();
  cancelled->inputs.txtAnnRain = "25";
  cancelled->hooks.onUpdate = [&](int) { cancelled->state.CancelRequested = true; };
  expectCancelled(*cancelled, cancelled->run());
}

TEST_F(DuringARun, ACancelBeforeTheSearchIsIgnored) {
  const auto farm = cornAndWheatFarm();
  farm->state.CancelRequested = true;
  farm->hooks.onShow = [&] { farm->state.CancelRequested = true; };
  farm->hooks.onPump = [&](int pump) { farm->state.CancelRequested |= pump == 1; };
  EXPECT_THAT(optionsOf(farm->run()), SizeIs(44));
  EXPECT_FALSE(farm->state.CancelRequested);
}

TEST_F(DuringARun, ACancelWhileTheProgressWindowClosesDropsTheResult) {
  const auto farm = cornAndWheatFarm();
  farm->inputs.chkNoSplit = true;
  farm->hooks.onClose = [&] { farm->state.CancelRequested = true; };
  expectCancelled(*farm, farm->run());
  EXPECT_EQ(farm->library.Item(1)->Yield, 0);
}

TEST_F(DuringARun, ACancelInsideATrendIsReportedToTheTrend) {
  for (const bool trend : {false, true}) {
    const auto farm = cornAndWheatFarm();
    farm->state.TrendMode = trend;
    farm->state.TrendCancelled = !trend;
    farm->hooks.onUpdate = [&](int) { farm->state.CancelRequested = true; };
    (void)farm->run();
    EXPECT_EQ(farm->state.TrendCancelled, trend);
  }
}

TEST_F(DuringARun, WithoutACancelTheTrendContinues) {
  const auto farm = cornAndWheatFarm();
  farm->state.TrendMode = true;
  (void)farm->run();
  EXPECT_FALSE(farm->state.TrendCancelled);
}

TEST_F(DuringARun, ACancelKeepsTheStateSetUpByTheRun) {
  const auto farm = cornAndWheatFarm();
  farm->hooks.onUpdate = [&](int) { farm->state.CancelRequested = true; };
  (void)farm->run();
  EXPECT_EQ(EfficiencyFraction, 0.85);
  EXPECT_EQ(farm->state.cs.toString(), "Corn, Wheat");
  farm->hooks.onUpdate = [](int) {};
  EXPECT_THAT(optionsOf(farm->run()), SizeIs(44));
}

/// A nested run with other texts on the same library, plant and state, as pressing the button again starts
/// it.
std::vector<std::string> runInside(FarmRun& farm) {
  ScenarioInputs typed = farm.inputs;
  typed.txtEff = "60";
  typed.txtArea = "250";
  typed.txtMax = "9";
  getVolume(typed);
  typed.txtAnnRain = "20";
  typed.Option1 = {};
  typed.Option1[3] = true;
  typed.currentSoil = "Valent";
  typed.chkNoSplit = true;
  typed.txtArraySize = "30";
  for (CropRowInput& row : typed.cr) {
    row.txtPrice = "3.5";
    row.txtMaxYield = "90";
  }
  Recorder hooks;
  const BestMix best = RunScenario(typed, farm.library, farm.plant, farm.state, hooks, "inside");
  EXPECT_EQ(best.getSize(), 30);
  EXPECT_EQ(EfficiencyFraction, 0.6);
  return describe(best);
}

/// A farm whose outer run uses everything that a nested run could disturb.
std::unique_ptr<FarmRun> fullFarm() {
  auto farm = cornAndWheatFarm();
  farm->add(alfalfaCrop());
  farm->add(fallowCrop());
  farm->inputs.chkNoSplit = true;
  farm->inputs.txtArraySize = "200";
  return farm;
}

TEST_F(DuringARun, ANestedRunAffectsNeitherItselfNorTheOuterRun) {
  const auto expected = describe(fullFarm()->run());
  const auto alone = runInside(*fullFarm());
  const auto startAt = [&](bool update, int at) {
    SCOPED_TRACE(std::string(update ? "update " : "pump ") + std::to_string(at));
    const auto farm = fullFarm();
    std::optional<std::vector<std::string>> inside;
    const auto start = [&](int now) {
      if (now == at && !inside) inside = runInside(*farm);
    };
    (update ? farm->hooks.onUpdate : farm->hooks.onPump) = start;
    EXPECT_EQ(describe(farm->run()), expected);
    ASSERT_TRUE(inside);
    EXPECT_EQ(*inside, alone);
    EXPECT_EQ(EfficiencyFraction, 0.85);
    EXPECT_EQ(farm->hooks.closed, 1);
  };
  for (const int pump : {1, 2})
    startAt(false, pump);
  for (const int update : {1, 2, 6, 11})
    startAt(true, update);
}

TEST_F(DuringARun, ANestedRunThatFailsDoesNotAffectTheOuterRun) {
  const auto expected = describe(fullFarm()->run());
  const auto farm = fullFarm();
  int failures = 0;
  farm->hooks.onUpdate = [&](int update) {
    if (update != 4) return;
    ScenarioInputs typed = farm->inputs;
    typed.txtEff = "50";
    typed.txtAnnRain = "40";
    Recorder hooks;
    try {
      (void)RunScenario(typed, farm->library, farm->plant, farm->state, hooks, "");
    } catch (const RunTimeError&) {
      ++failures;  // reported where the event started
    }
  };
  EXPECT_EQ(describe(farm->run()), expected);
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(EfficiencyFraction, 0.85);
}

TEST_F(DuringARun, CancellingANestedRunCancelsTheOuterRunToo) {
  const auto farm = fullFarm();
  farm->hooks.onUpdate = [&](int update) {
    if (update != 4) return;
    Recorder hooks;
    hooks.onUpdate = [&](int) { farm->state.CancelRequested = true; };
    EXPECT_EQ(RunScenario(farm->inputs, farm->library, farm->plant, farm->state, hooks, "").getSize(), 0);
  };
  expectCancelled(*farm, farm->run());
}

TEST_F(DuringARun, EditsOfCropsAndPlantAffectOnlyTheNextRun) {
  const auto expected = describe(fullFarm()->run());
  const auto farm = fullFarm();
  farm->hooks.onUpdate = [&](int update) {
    if (update != 2) return;
    for (const auto& crop : farm->library) {
      crop->price = 1;
      crop->maxYield = 1;
      crop->cropType += " (edited)";
      crop->inputCosts.Herbicide = 1000;
      crop->setYieldTable(tableOf(11, {{5}}));
    }
    farm->plant->cost = 100;
    farm->plant->active = false;
    farm->state.landSplit.splits.clear();
    farm->state.cs = CropScenario();
  };
  EXPECT_EQ(describe(farm->run()), expected);
  EXPECT_EQ(farm->plant->cost, 100);  // and the edits stay
  EXPECT_EQ(farm->library.Item(1)->inputCosts.Herbicide, 1000);
}

TEST_F(DuringARun, TypedCostsAreNotOverwrittenByTheUndividedFarm) {
  const auto farm = fullFarm();
  Crop& corn = *farm->library.Item(1);
  Crop& wheat = *farm->library.Item(2);
  Crop& alfalfa = *farm->library.Item(3);
  Crop& oats = farm->add(steadyCrop("Oats", 1));  // no rate of its own by water
  wheat.inputCosts.SeedOptimal = false;
  wheat.inputCosts.SeedRate = 80;
  oats.inputCosts.SeedOptimal = true;
  alfalfa.inputCosts.AlfalfaStand.clear();
  farm->hooks.onUpdate = [&](int) {
    corn.inputCosts.SeedOptimal = false;
    corn.inputCosts.SeedRate = 30500;
    wheat.inputCosts.SeedRate = 70;
    oats.inputCosts.SeedRate = 100;
    alfalfa.inputCosts.AlfalfaStand = 5;
  };
  (void)farm->run();
  EXPECT_EQ(corn.inputCosts.SeedRate, 30500);
  EXPECT_EQ(wheat.inputCosts.SeedRate, 70);
  EXPECT_EQ(oats.inputCosts.SeedRate, 100);
  EXPECT_EQ(alfalfa.inputCosts.AlfalfaStand.text(), "5");
}

}  // namespace
}  // namespace verdalis::testing
