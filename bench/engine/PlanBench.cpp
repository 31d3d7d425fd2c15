#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "bench/engine/BenchFarm.h"
#include "engine/PlanSearch.h"

namespace verdalis::bench {
namespace {

constexpr std::size_t fourFields = 4;

/// A farm of crops with different names, in one or several seasons.
class PlanFarm {
 public:
  PlanFarm(std::int16_t factor, std::size_t crops, std::vector<double> rains, std::int16_t size = 100)
      : rains_(std::move(rains)), plant_(testing::defaultPlant()), size_(size) {
    const double acres = 100;
    landSplit_ = percentToAcres(landDivision(fourFields), acres);
    ProgramState state;
    state.FineFactor = factor;
    depths_ = volumesToDepths(makeWaterSplits(landSplit_.Count(), 1200 * 0.85, acres, state), landSplit_);
    for (const double rain : rains_) {
      CropScenario planted;
      for (std::size_t i = 0; i < crops; ++i) {
        auto crop = std::make_shared<Crop>(benchCrop(CropList::ordinary, i));
        if (i >= stockCrops().size()) crop->cropType += " " + std::to_string(i);
        crop->setNormal(crop->maxYield, rain);
        planted.Add(std::move(crop));
      }
      combinations_.push_back(std::make_unique<CropCombinations>(planted, landSplit_.Count()));
    }
  }

  [[nodiscard]] PlanQuestion question(std::vector<Wish> wishes, bool mixes) const {
    PlanQuestion question{{}, {1, 2, 1}, std::move(wishes), mixes, static_cast<std::size_t>(size_)};
    for (std::size_t i = 0; i < rains_.size(); ++i) {
      question.seasons.push_back({depths_, *combinations_[i], landSplit_, rains_[i], size_, plant_, 0.85});
    }
    return question;
  }

 private:
  std::vector<double> rains_;
  IrrigationCosts plant_;
  std::int16_t size_;
  Split landSplit_;
  SplitCollection depths_;
  std::vector<std::unique_ptr<CropCombinations>> combinations_;
};

std::vector<Wish> threeWishes() {
  return {{Wish::Kind::acresAtLeast, "Alfalfa", 0, 40},
          {Wish::Kind::acresAtMost, "Corn", 0, 50},
          {Wish::Kind::fieldIsNot, "Wheat", 2, 0}};
}

std::vector<Wish> cropWishes() {
  return {{Wish::Kind::cropsAtLeast, "", 0, 3},
          {Wish::Kind::acresAtLeast, "Soybeans", 0, 25},
          {Wish::Kind::depthAtMost, "", 1, 10}};
}

void plans(benchmark::State& state, const std::vector<Wish>& wishes, bool mixes, std::int16_t size) {
  const PlanFarm farm(99, 59, {16}, size);
  const PlanQuestion question = farm.question(wishes, mixes);
  ProgramState program;
  RunHooks hooks;
  RunPulse pulse(program, hooks);
  while (state.KeepRunning()) {
    PlanSearch search(question, pulse);
    if (!search.price()) return;
    benchmark::DoNotOptimize(search.best());
  }
}

void seasons(benchmark::State& state, bool safest) {
  const PlanFarm farm(99, 59, {13, 16, 19});
  const PlanQuestion question = farm.question({}, false);
  ProgramState program;
  RunHooks hooks;
  RunPulse pulse(program, hooks);
  while (state.KeepRunning()) {
    PlanSearch search(question, pulse);
    if (!search.price()) return;
    benchmark::DoNotOptimize(search.best());
    std::vector<double> best;
    for (std::size_t season = 0; season < 3; ++season)
      best.push_back(search.bestOf(season)->front().profit);
    if (safest) benchmark::DoNotOptimize(search.safest(best));
  }
}

#define PLANS(label, ...) BENCHMARK_CAPTURE(plans, label, __VA_ARGS__)->Unit(benchmark::kMillisecond)
PLANS(59_crops_factor_99_three_wishes, threeWishes(), false, 100);
PLANS(59_crops_factor_99_wishes_for_crops, cropWishes(), false, 100);
PLANS(59_crops_factor_99_100_mixes, {}, true, 100);
PLANS(59_crops_factor_99_3000_mixes, {}, true, 3000);
BENCHMARK_CAPTURE(seasons, 59_crops_factor_99_three_seasons, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(seasons, 59_crops_factor_99_with_the_safest, true)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace verdalis::bench
