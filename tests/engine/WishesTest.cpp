#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "engine/WaterPaths.h"
#include "engine/evaluateScenario.h"
#include "engine/meetsWishes.h"
#include "engine/relaxWishes.h"
#include "selfcheck/PlainEvaluator.h"
#include "selfcheck/PlainPlans.h"
#include "selfcheck/RandomFarm.h"
#include "tests/support/Plant.h"

namespace verdalis {
namespace {

using reference::FarmKind;
using reference::RandomFarm;
using testing::ScopedEfficiency;

const std::string corn = "Corn";
const std::string wheat = "Wheat";
const std::string fallow = "Fallow";

TEST(MeetsWish, AcresOfACropAreSummedAndComparedWithinABillionth) {
  const std::vector<WishedField> plan{{33, &corn, 10}, {33, &wheat, 5}, {33, &corn, 0}};
  EXPECT_TRUE(meetsWish({Wish::Kind::acresAtLeast, corn, 0, 66}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::acresAtLeast, corn, 0, 66 * (1 + 0.9e-9)}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::acresAtLeast, corn, 0, 66 * (1 + 1.1e-9)}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::acresAtMost, corn, 0, 66 * (1 - 0.9e-9)}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::acresAtMost, corn, 0, 66 * (1 - 1.1e-9)}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::acresAtMost, "Sunflower", 0, 0}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::acresAtMost, wheat, 0, 0}, plan));
}

TEST(MeetsWish, AFieldHasOneCropAndOneDepth) {
  const std::vector<WishedField> plan{{50, &corn, 12}, {50, &fallow, 0}};
  EXPECT_TRUE(meetsWish({Wish::Kind::fieldIs, corn, 1, 0}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::fieldIs, corn, 2, 0}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::fieldIsNot, corn, 1, 0}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::depthAtLeast, "", 1, 12}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::depthAtLeast, "", 2, 0.1}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::depthAtMost, "", 2, 0}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::depthAtMost, "", 1, 11}, plan));
}

TEST(MeetsWish, AMissingFieldMeetsOnlyWishesThatForbidOrLimit) {
  const std::vector<WishedField> plan{{100, &corn, 12}};
  EXPECT_FALSE(meetsWish({Wish::Kind::fieldIs, corn, 2, 0}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::fieldIsNot, corn, 2, 0}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::depthAtLeast, "", 2, 0}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::depthAtMost, "", 2, 0}, plan));
}

TEST(MeetsWish, DifferentCropsAreCountedIncludingFallow) {
  const std::vector<WishedField> plan{{25, &corn, 1}, {25, &fallow, 0}, {25, &corn, 1}, {25, &wheat, 0}};
  EXPECT_TRUE(meetsWish({Wish::Kind::cropsAtLeast, "", 0, 3}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::cropsAtLeast, "", 0, 4}, plan));
  EXPECT_TRUE(meetsWish({Wish::Kind::cropsAtMost, "", 0, 3}, plan));
  EXPECT_FALSE(meetsWish({Wish::Kind::cropsAtMost, "", 0, 2}, plan));
}

TEST(WaterPathsTest, EndInTheSplitsInAnyOrder) {
  std::mt19937_64 random(7);
  for (int round = 0; round < 200; ++round) {
    std::set<std::vector<std::uint16_t>> different;
    const std::size_t width = 1 + random() % 4;
    for (std::size_t i = 0; i < 30; ++i) {
      std::vector<std::uint16_t> levels;
      for (std::size_t field = 0; field < width; ++field)
        levels.push_back(static_cast<std::uint16_t>(random() % 4));
      different.insert(levels);
    }
    std::vector<std::vector<std::uint16_t>> splits(different.begin(), different.end());
    if (round % 2 == 0) std::shuffle(splits.begin(), splits.end(), random);
    std::vector<std::uint16_t> numbers;
    for (const auto& levels : splits)
      numbers.insert(numbers.end(), levels.begin(), levels.end());
    const SplitCollection collection({0, 1, 2, 3}, numbers, width);
    const WaterPaths paths(collection);
    std::size_t count = 0;
    std::vector<std::uint16_t> levels;
    const auto walk = [&](const auto& self, std::size_t field, std::uint32_t node) -> void {
      for (const WaterPaths::Edge& edge : paths.edgesOf(field, node)) {
        levels.push_back(edge.level);
        if (field + 1 < width) {
          self(self, field + 1, edge.target);
        } else {
          ++count;
          const Split found = collection.Item(static_cast<long>(edge.target) + 1);
          for (std::size_t k = 0; k < width; ++k)
            EXPECT_EQ(collection.levels(k)[levels[k]], found.getSplits()[k]);
        }
        levels.pop_back();
      }
    };
    walk(walk, 0, 0);
    ASSERT_EQ(count, splits.size());
    if (HasFailure()) return;
  }
}

/// A random farm as a scenario with wishes.
Scenario scenarioOf(const RandomFarm& farm, std::vector<Wish> wishes, bool noSplit, bool mixes) {
  const SearchInputs inputs = farm.inputs();
  return {farm.acres(), inputs.landSplit, farm.netVolume(),    inputs.efficiency,
          inputs.rain,  inputs.depths,    inputs.combinations, inputs.irrigationCosts.Copy(),
          inputs.size,  noSplit,          std::move(wishes),   mixes};
}

/// All candidates that meet the wishes, including those of the undivided farm, best first.
std::vector<BestMix::Option> allOptions(const Scenario& scenario) {
  std::vector<BestMix::Option> options;
  reference::forEachCandidate(scenario, [&](FieldCollection& candidate) {
    static_cast<void>(candidate.getProfit(scenario.efficiency));
    options.push_back(std::make_shared<FieldCollection>(candidate.Copy()));
  });
  std::reverse(options.begin(), options.end());
  std::stable_sort(options.begin(), options.end(), [&](const auto& a, const auto& b) {
    return a->getProfit(scenario.efficiency) > b->getProfit(scenario.efficiency);
  });
  return options;
}

std::vector<BestMix::Option> oneOfEachMix(const std::vector<BestMix::Option>& ranking) {
  std::vector<BestMix::Option> result;
  std::set<std::vector<std::pair<double, std::string>>> seen;
  for (const auto& option : ranking) {
    std::vector<std::pair<double, std::string>> mix;
    for (const auto& field : *option)
      mix.emplace_back(field->acres, field->theCrop->cropType);
    std::sort(mix.begin(), mix.end());
    if (seen.insert(mix).second) result.push_back(option);
  }
  return result;
}

/// The displayed values of options: profit, crops, acres, depths, yields. Pumping hours are omitted: those of
/// a dry undivided field come from the field before it, which the simple options here do not share.
std::vector<std::string> seen(const std::vector<BestMix::Option>& options, double efficiency) {
  std::vector<std::string> texts;
  for (const auto& option : options) {
    if (option->isNew) continue;
    std::string text = std::to_string(option->getProfit(efficiency));
    for (const auto& field : *option) {
      text += "; " + field->theCrop->cropType + " " + std::to_string(field->acres) + " " +
              std::to_string(field->Depth) + " " + std::to_string(field->theCrop->Yield);
    }
    texts.push_back(std::move(text));
  }
  return texts;
}

Wish someWish(const Scenario& scenario, std::mt19937_64& random) {
  Wish wish;
  wish.kind = static_cast<Wish::Kind>(random() % 8);
  const auto& crops = scenario.combinations.crops();
  wish.crop = crops[random() % crops.size()]->cropType;
  wish.field = 1 + random() % 3;
  wish.amount = static_cast<double>(random() % 4);
  if (wish.kind == Wish::Kind::acresAtLeast || wish.kind == Wish::Kind::acresAtMost)
    wish.amount *= scenario.acres / 4;
  if (wish.kind == Wish::Kind::depthAtLeast || wish.kind == Wish::Kind::depthAtMost) wish.amount *= 4;
  return wish;
}

class WishesOn : public ::testing::TestWithParam<FarmKind> {};

TEST_P(WishesOn, EvaluationsRankTheUndividedFarmLikeAFullEnumeration) {
  std::mt19937_64 random(static_cast<std::uint64_t>(GetParam()));
  for (std::uint64_t seed = 0; seed < 40; ++seed) {
    const RandomFarm farm(GetParam(), seed, 1200);
    const ScopedEfficiency efficiency(farm.efficiency());
    for (int question = 0; question < 4; ++question) {
      Scenario scenario = scenarioOf(farm, {}, random() % 4 != 0, random() % 2 == 0);
      for (std::size_t i = random() % 4; i > 0; --i)
        scenario.wishes.push_back(someWish(scenario, random));
      SCOPED_TRACE("farm " + std::to_string(seed) + ", question " + std::to_string(question));
      ProgramState state;
      RunHooks hooks;
      auto best = evaluateScenario(scenario, state, hooks);
      ASSERT_TRUE(best);
      EXPECT_EQ(best->LowEnd, best->Copy().returnCollection(false).back()->getProfit(scenario.efficiency));
      std::vector<BestMix::Option> plain = allOptions(scenario);
      if (scenario.mixes) plain = oneOfEachMix(plain);
      const auto size = static_cast<std::size_t>(scenario.size);
      if (plain.size() > size) plain.resize(size);
      BestMix expected;
      expected.SetBestArray(plain);
      EXPECT_EQ(seen(best->Copy().returnCollection(true), scenario.efficiency),
                seen(expected.returnCollection(!scenario.mixes), scenario.efficiency));
      if (!plain.empty() || scenario.wishes.empty()) continue;

      // No plan meets the wishes: find the smallest sets to give up by trying all sets.
      const auto relaxations = relaxWishes(scenario, state, hooks);
      ASSERT_TRUE(relaxations);
      std::size_t sets = 0;
      for (std::size_t given = 1; given <= scenario.wishes.size() && sets == 0; ++given) {
        for (std::size_t set = 0; set < std::size_t{1} << scenario.wishes.size(); ++set) {
          Scenario relaxed = scenario;
          relaxed.wishes.clear();
          std::vector<Wish> without;
          for (std::size_t i = 0; i < scenario.wishes.size(); ++i)
            ((set >> i & 1U) == 0 ? relaxed.wishes : without).push_back(scenario.wishes[i]);
          if (without.size() != given) continue;
          const auto left = allOptions(relaxed);
          if (left.empty()) continue;
          ++sets;
          EXPECT_TRUE(std::any_of(relaxations->begin(), relaxations->end(), [&](const Relaxation& found) {
            return found.without == without && found.profit == left.front()->getProfit(scenario.efficiency);
          }));
        }
      }
      EXPECT_EQ(relaxations->size(), sets);
      EXPECT_TRUE(std::is_sorted(relaxations->begin(), relaxations->end(),
                                 [](const auto& a, const auto& b) { return a.profit > b.profit; }));
      if (HasFailure()) return;
    }
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(All, WishesOn,
                         ::testing::Values(FarmKind::ordinary, FarmKind::twinCrops, FarmKind::neighbourPrices,
                                           FarmKind::zeroPrices, FarmKind::losses, FarmKind::wholeDollars,
                                           FarmKind::equalGains, FarmKind::fewCandidates),
                         [](const auto& test) { return std::string(name(test.param)); });

}  // namespace
}  // namespace verdalis
