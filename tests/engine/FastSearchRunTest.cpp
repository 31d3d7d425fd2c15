#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/FieldCalculator.h"
#include "engine/MakingSplits.h"
#include "selfcheck/OptionBytes.h"
#include "selfcheck/PlainEvaluator.h"
#include "selfcheck/RandomFarm.h"
#include "tests/support/Crops.h"
#include "tests/support/Errors.h"
#include "tests/support/Plant.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using reference::FarmKind;
using reference::RandomFarm;
using testing::ScopedEfficiency;

/// Counts the calls of a run and lets a test act during them.
class CountingHooks : public RunHooks {
 public:
  std::size_t updates = 0;
  std::size_t pumps = 0;
  std::size_t closings = 0;
  std::function<void()> onUpdate = [] {};
  std::function<void()> onPump = [] {};

  void update() override {
    ++updates;
    onUpdate();
  }
  void pumpEvents() override {
    ++pumps;
    onPump();
  }
  void closeProgress() override { ++closings; }
};

/// Four fields, factor 99, and 59 crops whose gains differ only by rounding: more than two million million
/// candidates, none of which a bound can skip.
class EndlessFarm {
 public:
  EndlessFarm() : plant_(testing::defaultPlant()), efficiency_(0.85) {
    plant_.LaborPerHour = 0;
    CropScenario crops;
    for (int i = 0; i < 59; ++i) {
      auto crop = std::make_shared<Crop>(testing::namedCrop("Millet"));
      crop->setYieldTable(testing::tableOf(11, {{150, 150}, {150, 150}}));
      crop->normalFactor = 1;
      crop->price = 4.1;
      crop->inputCosts.Returns = 0.37 * i;
      crop->inputCosts.MiscCost = 0.37 * i;
      crops.Add(std::move(crop));
    }
    combinations_ = std::make_unique<CropCombinations>(crops, landSplit_.Count());
    ProgramState state;
    state.FineFactor = 99;
    depths_ = volumesToDepths(makeWaterSplits(landSplit_.Count(), 1020, 100, state), landSplit_);
  }

  [[nodiscard]] SearchInputs inputs() const {
    return {depths_, *combinations_, landSplit_, 11, 100, plant_, EfficiencyFraction};
  }

 private:
  IrrigationCosts plant_;
  ScopedEfficiency efficiency_;
  Split landSplit_{25, 25, 25, 25};
  SplitCollection depths_;
  std::unique_ptr<CropCombinations> combinations_;
};

/// The first random farm with at least this many water splits.
RandomFarm farmWithSplits(FarmKind kind, long splits) {
  std::uint64_t seed = 0;
  while (RandomFarm(kind, seed).inputs().depths.Count() < splits)
    ++seed;
  return {kind, seed};
}

std::vector<std::string> optionsOf(BestMix& best) {
  std::vector<std::string> result;
  for (const auto& option : best.returnCollection(false))
    result.push_back(reference::optionBytes(*option));
  return result;
}

TEST(FastSearchRun, ProgressAdvancesOncePerWaterSplit) {
  for (const FarmKind kind : {FarmKind::ordinary, FarmKind::fallowOnly, FarmKind::equalGainsNoPlant}) {
    for (std::uint64_t seed = 0; seed < 30; ++seed) {
      const RandomFarm farm(kind, seed);
      const ScopedEfficiency efficiency(farm.efficiency());
      ProgramState state;
      CountingHooks hooks;
      ASSERT_TRUE(evaluateCombinations(farm.inputs(), state, hooks));
      EXPECT_EQ(hooks.updates, static_cast<std::size_t>(farm.inputs().depths.Count()));
      EXPECT_EQ(hooks.closings, 1U);
      EXPECT_GE(hooks.pumps, 1U);
    }
  }
}

TEST(FastSearchRun, ProgressAdvancesOncePerWaterSplitEvenWithoutCrops) {
  const ScopedEfficiency efficiency(0.85);
  const Split landSplit{50, 50};
  ProgramState state;
  const SplitCollection depths = volumesToDepths(makeWaterSplits(2, 1020, 100, state), landSplit);
  const CropCombinations combinations(CropScenario(), 2);
  const IrrigationCosts plant;
  CountingHooks hooks;
  const auto best = evaluateCombinations({depths, combinations, landSplit, 16, 5, plant, 0.85}, state, hooks);
  ASSERT_TRUE(best);
  EXPECT_EQ(best->getSize(), 5);
  EXPECT_EQ(hooks.updates, 11U);
}

TEST(FastSearchRun, CancellingAtAnyStepGivesNoResult) {
  const RandomFarm farm = farmWithSplits(FarmKind::ordinary, 20);
  const ScopedEfficiency efficiency(farm.efficiency());
  const auto splits = static_cast<std::size_t>(farm.inputs().depths.Count());
  for (std::size_t at = 1; at <= splits; ++at) {
    ProgramState state;
    CountingHooks hooks;
    hooks.onUpdate = [&] { state.CancelRequested = hooks.updates == at; };
    EXPECT_FALSE(evaluateCombinations(farm.inputs(), state, hooks)) << at;
    EXPECT_EQ(hooks.updates, at);
    EXPECT_EQ(hooks.closings, 1U);
    EXPECT_TRUE(state.CancelRequested);
  }
}

TEST(FastSearchRun, ACancelBeforeTheSearchIsIgnored) {
  const RandomFarm farm = farmWithSplits(FarmKind::ordinary, 20);
  const ScopedEfficiency efficiency(farm.efficiency());
  ProgramState state;
  CountingHooks hooks;
  state.CancelRequested = true;
  hooks.onPump = [&] { state.CancelRequested = hooks.pumps == 1; };
  EXPECT_TRUE(evaluateCombinations(farm.inputs(), state, hooks));
  EXPECT_FALSE(state.CancelRequested);
}

/// Would not return if the run did not process events.
TEST(FastSearchRun, CancellingEndsASearchThatWouldTakeHours) {
  const EndlessFarm farm;
  for (const std::size_t at : {2U, 3U, 10U}) {
    ProgramState state;
    CountingHooks hooks;
    hooks.onPump = [&] { state.CancelRequested = hooks.pumps == at; };
    EXPECT_FALSE(evaluateCombinations(farm.inputs(), state, hooks));
    EXPECT_EQ(hooks.pumps, at);
    EXPECT_EQ(hooks.closings, 1U);
  }
}

/// Simulates a press of the run button while a search pumps events: starts another run with its own
/// efficiency.
TEST(FastSearchRun, ANestedRunDoesNotChangeTheOuterRun) {
  const RandomFarm outer = farmWithSplits(FarmKind::ordinary, 50);
  const RandomFarm inner(FarmKind::highFactor, 6);
  const ScopedEfficiency efficiency(outer.efficiency());
  const auto runInner = [&] {
    ProgramState state;
    RunHooks hooks;
    EfficiencyFraction = inner.efficiency();
    ASSERT_TRUE(evaluateCombinations(inner.inputs(), state, hooks));
  };
  ProgramState state;
  RunHooks noHooks;
  auto expected = evaluateCombinations(outer.inputs(), state, noHooks);
  CountingHooks hooks;
  hooks.onPump = runInner;
  hooks.onUpdate = [&] {
    if (hooks.updates % 5 == 1) runInner();
  };
  auto best = evaluateCombinations(outer.inputs(), state, hooks);
  ASSERT_TRUE(best && expected);
  EXPECT_GT(hooks.pumps, 1U);
  EXPECT_EQ(optionsOf(*best), optionsOf(*expected));
}

/// The error text of a search, or else its options.
template <class Evaluate>
std::vector<std::string> outcome(const RandomFarm& farm, Evaluate evaluate) {
  ProgramState state;
  CountingHooks hooks;
  try {
    std::optional<BestMix> best = evaluate(farm.inputs(), state, hooks);
    EXPECT_EQ(hooks.closings, 1U);
    return optionsOf(*best);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(hooks.closings, 0U);
    return {error.what()};
  }
}

TEST(FastSearchRun, FaultyFarmsGiveTheSameErrorAsTheSimpleLoop) {
  std::size_t faults = 0;
  for (std::uint64_t seed = 0; seed < 400; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed));
    const RandomFarm farm(FarmKind::faulty, seed, 2000);
    const ScopedEfficiency efficiency(seed % 50 == 49 ? 0 : farm.efficiency());
    const auto fast = outcome(farm, evaluateCombinations);
    EXPECT_EQ(fast, outcome(farm, reference::evaluatePlainly));
    faults += fast.size() == 1 && farm.inputs().size > 1 ? 1 : 0;
  }
  EXPECT_GT(faults, 100U);
  EXPECT_LT(faults, 380U);
}

TEST(FastSearchRun, ARankingWithoutPlacesIsAnError) {
  const RandomFarm farm(FarmKind::ordinary, 1);
  const ScopedEfficiency efficiency(farm.efficiency());
  const SearchInputs inputs = farm.inputs();
  ProgramState state;
  RunHooks hooks;
  for (const std::int16_t size : std::initializer_list<std::int16_t>{0, -1}) {
    const SearchInputs without{inputs.depths, inputs.combinations,    inputs.landSplit, inputs.rain,
                               size,          inputs.irrigationCosts, inputs.efficiency};
    const std::string text = testing::errorText(
        ErrorNumber::subscript, [&] { static_cast<void>(evaluateCombinations(without, state, hooks)); });
    EXPECT_THAT(text, ::testing::HasSubstr(std::to_string(size)));
  }
}

}  // namespace
}  // namespace verdalis
